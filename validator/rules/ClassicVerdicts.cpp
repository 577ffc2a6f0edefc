// SPDX-License-Identifier: MIT
#include "ClassicVerdicts.h"

#include "validator/bundle/MetadataChecks.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr const char *source = "RULE_SOURCE_CLASSIC";

constexpr Rule icons{"classic-icons",
                     "",
                     Severity::Error,
                     "RULE_CLASSIC_ICONS_TITLE",
                     "RULE_CLASSIC_ICONS_RULE",
                     "RULE_CLASSIC_ICONS_FIX",
                     source,
                     "",
                     nullptr};
constexpr Rule launchImages{"classic-launch-images",
                            "",
                            Severity::Error,
                            "RULE_CLASSIC_LAUNCH_IMAGES_TITLE",
                            "RULE_CLASSIC_LAUNCH_IMAGES_RULE",
                            "RULE_CLASSIC_LAUNCH_IMAGES_FIX",
                            source,
                            "",
                            nullptr};
constexpr Rule identifier{"classic-identifier",
                          "",
                          Severity::Error,
                          "RULE_CLASSIC_IDENTIFIER_TITLE",
                          "RULE_CLASSIC_IDENTIFIER_RULE",
                          "RULE_CLASSIC_IDENTIFIER_FIX",
                          source,
                          "",
                          nullptr};
constexpr Rule localizations{"classic-localizations",
                             "",
                             Severity::Error,
                             "RULE_CLASSIC_LOCALIZATIONS_TITLE",
                             "RULE_CLASSIC_LOCALIZATIONS_RULE",
                             "RULE_CLASSIC_LOCALIZATIONS_FIX",
                             source,
                             "",
                             nullptr};

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
    return {verdict(icons, findings.missingIcons.isEmpty(), squareTexts(findings.missingIcons).join(u", "_s)),
            verdict(launchImages, findings.missingLaunchImages.isEmpty(),
                    sizeTexts(findings.missingLaunchImages).join(u", "_s)),
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
