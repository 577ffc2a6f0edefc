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

QList<Finding> findingsIn(const PackageContents &contents, const RuleSettings &settings, const QStringList &ignored)
{
    QList<Finding> findings;
    if (contents.app() == nullptr)
        return findings;
    for (const Rule &rule : allRules()) {
        if (ignored.contains(QLatin1StringView(rule.id)) ||
            (*rule.code != '\0' && ignored.contains(QLatin1StringView(rule.code))))
            continue;
        const Judgement judgement = rule.judge(contents, settings);
        if (judgement.state != Judgement::Broken)
            continue;
        for (const Evidence &evidence : judgement.evidence)
            findings += Finding{&rule, evidence};
    }
    std::ranges::stable_sort(
        findings, [](const Finding &one, const Finding &other) { return one.rule->severity > other.rule->severity; });
    return findings;
}

} // namespace lumora
