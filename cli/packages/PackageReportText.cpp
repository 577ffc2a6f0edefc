// SPDX-License-Identifier: MIT
#include "PackageReportText.h"

#include "cli/console/CommandText.h"
#include "cli/console/Complaint.h"
#include "foundation/PrintableText.h"
#include "validator/bundle/MetadataChecks.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int labelWidth = 18;

QString factLine(const QString &label, const QString &value)
{
    return u"  "_s + label.leftJustified(labelWidth) + (value.isEmpty() ? u"-"_s : printableText(value));
}

/// The result of a check, padded to the width of the widest.
QString verdictText(const char *textKey)
{
    constexpr int width = 9;
    return u"  "_s + commandText(textKey).leftJustified(width);
}

QString checkLine(bool valid, const QString &what, const QString &fault)
{
    return verdictText(valid ? "CLI_CHECK_VALID" : "CLI_CHECK_INVALID") + what + (valid ? QString() : u": "_s + fault);
}

QString presenceLine(bool present, const QString &what)
{
    return verdictText(present ? "CLI_CHECK_PRESENT" : "CLI_CHECK_ABSENT") + what;
}

} // namespace

QJsonObject failureJson(const QString &file, const Complaint &complaint)
{
    return {{u"file"_s, file}, {u"error"_s, complaint.line()}};
}

QStringList reportLines(const QString &file, const PackageReport &report)
{
    const PackageFacts &facts = report.facts;
    const ArtworkFindings &findings = report.artwork.findings;
    const MetadataVerdicts verdicts = metadataVerdicts(facts);
    QStringList schemes;
    for (const QString &scheme : facts.appURLSchemes().value_or(QStringList()))
        schemes += scheme + u"://"_s;
    return {
        printableText(file),
        factLine(commandText("CLI_FACT_NAME"), facts.shownName()),
        factLine(commandText("CLI_FACT_VERSION"), facts.appVersion()),
        factLine(commandText("CLI_FACT_PLATFORM"), facts.shownPlatform()),
        factLine(commandText("CLI_FACT_MINIMUM_OS"), facts.shownMinimumOS()),
        factLine(commandText("CLI_FACT_IDENTIFIER"), facts.appBundleIdentifier()),
        factLine(commandText("CLI_FACT_BUILD"), buildName(buildKind(facts))),
        factLine(commandText("CLI_FACT_LOCALIZATIONS"), facts.appLocalizations.join(u", "_s)),
        factLine(commandText("CLI_FACT_URL_SCHEMES"), schemes.join(u", "_s)),
        factLine(commandText("CLI_FACT_FACEBOOK"), facts.appFacebookID().value_or(QString())),
        checkLine(findings.missingIcons.isEmpty(), commandText("CLI_CHECK_ICONS"),
                  commandText("CLI_CHECK_MISSING", {{"[SIZES]", squareTexts(findings.missingIcons).join(u", "_s)}})),
        checkLine(
            findings.missingLaunchImages.isEmpty(), commandText("CLI_CHECK_LAUNCH_IMAGES"),
            commandText("CLI_CHECK_NONE_OF", {{"[SIZES]", sizeTexts(findings.missingLaunchImages).join(u", "_s)}})),
        checkLine(verdicts.bundleIdentifierValid, commandText("CLI_CHECK_IDENTIFIER"),
                  commandText("CLI_CHECK_NOT_IN_PROFILE")),
        checkLine(verdicts.localizationsValid, commandText("CLI_CHECK_LOCALIZATIONS"), commandText("CLI_NONE")),
        presenceLine(verdicts.urlSchemesPresent, commandText("CLI_FACT_URL_SCHEMES")),
        presenceLine(verdicts.facebookAppIDPresent, commandText("CLI_FACT_FACEBOOK")),
    };
}

} // namespace lumora
