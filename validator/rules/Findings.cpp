// SPDX-License-Identifier: MIT
#include "Rule.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

const Rule *ruleNamed(const QString &name)
{
    for (const Rule &rule : allRules()) {
        if (name == QLatin1StringView(rule.id) || (*rule.code != '\0' && name == QLatin1StringView(rule.code)))
            return &rule;
    }
    return nullptr;
}

QStringList ruleNames()
{
    QStringList ids;
    QStringList codes;
    for (const Rule &rule : allRules()) {
        ids += QString::fromLatin1(rule.id);
        if (*rule.code != '\0')
            codes += QString::fromLatin1(rule.code);
    }
    return ids + codes;
}

QString severityName(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return u"note"_s;
    case Severity::Warning:
        return u"warning"_s;
    case Severity::Error:
        return u"error"_s;
    }
    return {};
}

QList<RuleVerdict> verdictsOn(const PackageContents &contents, const RuleSettings &settings, const QStringList &ignored)
{
    QList<RuleVerdict> verdicts;
    if (contents.app() == nullptr)
        return verdicts;
    for (const Rule &rule : allRules()) {
        if (ignored.contains(QLatin1StringView(rule.id)) ||
            (*rule.code != '\0' && ignored.contains(QLatin1StringView(rule.code))))
            continue;
        verdicts += RuleVerdict{&rule, rule.judge(contents, settings)};
    }
    return verdicts;
}

bool countsAsFailure(const RuleVerdict &verdict, std::optional<Severity> failOn)
{
    return failOn && verdict.judgement.state == Judgement::Broken && verdict.rule->severity >= *failOn;
}

QList<Finding> findingsAmong(const QList<RuleVerdict> &verdicts)
{
    QList<Finding> findings;
    for (const RuleVerdict &verdict : verdicts) {
        if (verdict.judgement.state != Judgement::Broken)
            continue;
        for (const Evidence &evidence : verdict.judgement.evidence)
            findings += Finding{verdict.rule, evidence};
    }
    std::ranges::stable_sort(
        findings, [](const Finding &one, const Finding &other) { return one.rule->severity > other.rule->severity; });
    return findings;
}

QList<Finding> findingsIn(const PackageContents &contents, const RuleSettings &settings, const QStringList &ignored)
{
    return findingsAmong(verdictsOn(contents, settings, ignored));
}

} // namespace lumora
