// SPDX-License-Identifier: MIT
#include "Wording.h"

#include "foundation/FailureDetail.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

QString worded(const char *key, const QStringList &values)
{
    static constexpr const char *names[] = {"[A]", "[B]", "[C]"};
    FailureDetail::Values named;
    for (qsizetype index = 0; index < values.size() && index < std::ssize(names); ++index)
        named += TextValue(names[index], values[index]);
    return FailureDetail(key, named).words();
}

QString severityText(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return worded("FINDINGS_ERROR");
    case Severity::Warning:
        return worded("FINDINGS_WARNING");
    case Severity::Note:
        break;
    }
    return worded("FINDINGS_NOTE");
}

QString severityWord(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return worded("SEVERITY_ERROR");
    case Severity::Warning:
        return worded("SEVERITY_WARNING");
    case Severity::Note:
        break;
    }
    return worded("SEVERITY_NOTE");
}

QString valueWord(const QString &value)
{
    static constexpr std::pair<QLatin1StringView, const char *> words[] = {
        {"valid"_L1, "REVIEW_SIGNATURE_VALID"},   {"broken"_L1, "REVIEW_SIGNATURE_BROKEN"},
        {"unsigned"_L1, "REVIEW_SIGNATURE_NONE"}, {"development"_L1, "REVIEW_PROFILE_DEVELOPMENT"},
        {"ad-hoc"_L1, "REVIEW_PROFILE_AD_HOC"},   {"enterprise"_L1, "REVIEW_PROFILE_ENTERPRISE"},
        {"app-store"_L1, "REVIEW_PROFILE_STORE"},
    };
    for (const auto &[name, key] : words) {
        if (value == name)
            return worded(key);
    }
    return value;
}

QString findingSumText(const QList<Finding> &findings)
{
    QStringList sums;
    const auto add = [&](Severity severity, const char *one, const char *several) {
        const qsizetype count = std::ranges::count_if(
            findings, [severity](const Finding &finding) { return finding.rule->severity == severity; });
        if (count > 0)
            sums += count == 1 ? worded(one) : worded(several, {QLocale().toString(count)});
    };
    add(Severity::Error, "FINDINGS_ONE_ERROR", "FINDINGS_ERRORS");
    add(Severity::Warning, "FINDINGS_ONE_WARNING", "FINDINGS_WARNINGS");
    add(Severity::Note, "FINDINGS_ONE_NOTE", "FINDINGS_NOTES");
    return sums.isEmpty() ? worded("FINDINGS_NONE") : sums.join(u", "_s);
}

} // namespace lumora
