// SPDX-License-Identifier: MIT
#include "ClassicVerdicts.h"

#include "validator/bundle/MetadataChecks.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr const char *source = "the rules of iOS 7";

constexpr Rule icons{"classic-icons",
                     "",
                     Severity::Error,
                     "An icon of iOS 7 is missing",
                     "An app for iOS 7 and before has its icons as files in every size.",
                     "Add the missing sizes as files.",
                     source,
                     "",
                     nullptr};
constexpr Rule launchImages{"classic-launch-images",
                            "",
                            Severity::Error,
                            "A launch image of iOS 7 is missing",
                            "An app for iOS 7 and before has a launch image for every screen.",
                            "Add a picture of one of the sizes.",
                            source,
                            "",
                            nullptr};
constexpr Rule identifier{"classic-identifier",
                          "",
                          Severity::Error,
                          "The identifier is not that of the profile",
                          "The bundle identifier is the one that the profile is for.",
                          "Change the identifier, or sign with the profile that is for it.",
                          source,
                          "",
                          nullptr};
constexpr Rule localizations{"classic-localizations",
                             "",
                             Severity::Error,
                             "There is no localization",
                             "The app has a folder for one language at least.",
                             "Add a language to the project.",
                             source,
                             "",
                             nullptr};

QString squareTexts(const QList<int> &edges)
{
    QStringList texts;
    for (const int edge : edges)
        texts += sizeText(QSize(edge, edge));
    return texts.join(u", "_s);
}

QString sizeTexts(const QList<QSize> &sizes)
{
    QStringList texts;
    for (const QSize size : sizes)
        texts += sizeText(size);
    return texts.join(u", "_s);
}

RuleVerdict verdict(const Rule &rule, bool valid, const QString &evidence)
{
    if (valid)
        return {&rule, {}};
    return {&rule, {Judgement::Broken, {Evidence{{}, evidence}}, {}}};
}

} // namespace

QList<RuleVerdict> classicVerdicts(const PackageReport &report)
{
    const ArtworkFindings &findings = report.artwork.findings;
    const MetadataVerdicts verdicts = metadataVerdicts(report.facts);
    return {verdict(icons, findings.missingIcons.isEmpty(), squareTexts(findings.missingIcons)),
            verdict(launchImages, findings.missingLaunchImages.isEmpty(), sizeTexts(findings.missingLaunchImages)),
            verdict(identifier, verdicts.bundleIdentifierValid, report.facts.appBundleIdentifier()),
            verdict(localizations, verdicts.localizationsValid, u"none"_s)};
}

const Rule *classicRuleNamed(const QString &id)
{
    for (const Rule *rule : {&icons, &launchImages, &identifier, &localizations}) {
        if (id == QLatin1StringView(rule->id))
            return rule;
    }
    return nullptr;
}

} // namespace lumora
