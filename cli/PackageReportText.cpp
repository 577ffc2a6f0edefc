// SPDX-License-Identifier: MIT
#include "PackageReportText.h"

#include "Complaint.h"
#include "foundation/PrintableText.h"
#include "validator/bundle/MetadataChecks.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int labelWidth = 18;

QStringList sizeTexts(const QList<int> &edges)
{
    QStringList texts;
    for (const int edge : edges)
        texts += sizeText(QSize(edge, edge));
    return texts;
}

QStringList sizeTexts(const QList<QSize> &sizes)
{
    QStringList texts;
    for (const QSize size : sizes)
        texts += sizeText(size);
    return texts;
}

QString buildText(const PackageFacts &facts)
{
    return buildKind(facts) == BuildKind::Debug ? u"debug"_s : u"release"_s;
}

QString factLine(const QString &label, const QString &value)
{
    return u"  "_s + label.leftJustified(labelWidth) + (value.isEmpty() ? u"-"_s : printableText(value));
}

QString checkLine(bool valid, const QString &what, const QString &fault)
{
    if (valid)
        return u"  valid    "_s + what;
    return u"  INVALID  "_s + what + u": "_s + fault;
}

QString presenceLine(bool present, const QString &what)
{
    return (present ? u"  present  "_s : u"  absent   "_s) + what;
}

} // namespace

bool allJudgedValid(const PackageReport &report)
{
    const MetadataVerdicts verdicts = metadataVerdicts(report.facts);
    return report.artwork.findings.isEmpty() && verdicts.bundleIdentifierValid && verdicts.localizationsValid;
}

QJsonObject reportJson(const QString &file, const PackageReport &report)
{
    const PackageFacts &facts = report.facts;
    const ArtworkFindings &findings = report.artwork.findings;
    const MetadataVerdicts verdicts = metadataVerdicts(facts);
    const QJsonObject checks{
        {u"icons"_s, QJsonObject{{u"valid"_s, findings.missingIcons.isEmpty()},
                                 {u"missing"_s, QJsonArray::fromStringList(sizeTexts(findings.missingIcons))}}},
        {u"launchImages"_s,
         QJsonObject{{u"valid"_s, findings.missingLaunchImages.isEmpty()},
                     {u"missing"_s, QJsonArray::fromStringList(sizeTexts(findings.missingLaunchImages))}}},
        {u"bundleIdentifier"_s, QJsonObject{{u"valid"_s, verdicts.bundleIdentifierValid}}},
        {u"localizations"_s, QJsonObject{{u"valid"_s, verdicts.localizationsValid}}},
        {u"urlSchemes"_s, QJsonObject{{u"present"_s, verdicts.urlSchemesPresent}}},
        {u"facebookAppID"_s, QJsonObject{{u"present"_s, verdicts.facebookAppIDPresent}}},
    };
    const auto facebookAppID = facts.appFacebookID();
    return {
        {u"file"_s, file},
        {u"name"_s, facts.appName()},
        {u"version"_s, facts.appVersion()},
        {u"platform"_s, facts.appPlatform()},
        {u"minimumOS"_s, facts.appMinimumOSVersion()},
        {u"bundleIdentifier"_s, facts.appBundleIdentifier()},
        {u"build"_s, buildText(facts)},
        {u"localizations"_s, QJsonArray::fromStringList(facts.appLocalizations)},
        {u"urlSchemes"_s, QJsonArray::fromStringList(facts.appURLSchemes().value_or(QStringList()))},
        {u"facebookAppID"_s, facebookAppID ? QJsonValue(*facebookAppID) : QJsonValue(QJsonValue::Null)},
        {u"checks"_s, checks},
    };
}

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
        factLine(u"Name"_s, facts.appName()),
        factLine(u"Version"_s, facts.appVersion()),
        factLine(u"Platform"_s, facts.appPlatform()),
        factLine(u"Minimum OS"_s, facts.appMinimumOSVersion()),
        factLine(u"Bundle identifier"_s, facts.appBundleIdentifier()),
        factLine(u"Build"_s, buildText(facts)),
        factLine(u"Localizations"_s, facts.appLocalizations.join(u", "_s)),
        factLine(u"URL schemes"_s, schemes.join(u", "_s)),
        factLine(u"Facebook app ID"_s, facts.appFacebookID().value_or(QString())),
        checkLine(findings.missingIcons.isEmpty(), u"icons"_s,
                  u"missing "_s + sizeTexts(findings.missingIcons).join(u", "_s)),
        checkLine(findings.missingLaunchImages.isEmpty(), u"launch images"_s,
                  u"none of "_s + sizeTexts(findings.missingLaunchImages).join(u", "_s)),
        checkLine(verdicts.bundleIdentifierValid, u"bundle identifier"_s, u"not in the provisioning profile"_s),
        checkLine(verdicts.localizationsValid, u"localizations"_s, u"none"_s),
        presenceLine(verdicts.urlSchemesPresent, u"URL schemes"_s),
        presenceLine(verdicts.facebookAppIDPresent, u"Facebook app ID"_s),
    };
}

} // namespace lumora
