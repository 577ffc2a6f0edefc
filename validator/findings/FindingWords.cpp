// SPDX-License-Identifier: MIT
#include "FindingWords.h"

#include "foundation/PrintableText.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString countText(qsizetype count, const char *one, const char *several)
{
    return count == 1 ? qtTrId(one) : qtTrId(several).replace("[COUNT]"_L1, QLocale().toString(count));
}

} // namespace

QString findingSumText(const QList<Finding> &findings)
{
    QStringList sums;
    const auto add = [&](Severity severity, const char *one, const char *several) {
        const qsizetype count = std::ranges::count_if(
            findings, [severity](const Finding &finding) { return finding.rule->severity == severity; });
        if (count > 0)
            sums += countText(count, one, several);
    };
    add(Severity::Error, "FINDINGS_ONE_ERROR", "FINDINGS_ERRORS");
    add(Severity::Warning, "FINDINGS_ONE_WARNING", "FINDINGS_WARNINGS");
    add(Severity::Note, "FINDINGS_ONE_NOTE", "FINDINGS_NOTES");
    return sums.isEmpty() ? qtTrId("FINDINGS_NONE") : sums.join(u", "_s);
}

QString severityText(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return qtTrId("FINDINGS_ERROR");
    case Severity::Warning:
        return qtTrId("FINDINGS_WARNING");
    case Severity::Note:
        break;
    }
    return qtTrId("FINDINGS_NOTE");
}

QString bundleKindText(BundleKind kind)
{
    switch (kind) {
    case BundleKind::App:
        return qtTrId("REVIEW_KIND_APP");
    case BundleKind::Extension:
        return qtTrId("REVIEW_KIND_EXTENSION");
    case BundleKind::WatchApp:
        return qtTrId("REVIEW_KIND_WATCH_APP");
    case BundleKind::Framework:
        return qtTrId("REVIEW_KIND_FRAMEWORK");
    case BundleKind::Resources:
        break;
    }
    return qtTrId("REVIEW_KIND_RESOURCES");
}

QString fileKindText(const QString &kind)
{
    static constexpr std::pair<QLatin1StringView, const char *> names[] = {
        {"code"_L1, "REVIEW_FILES_CODE"},
        {"catalogs"_L1, "REVIEW_FILES_CATALOGS"},
        {"pictures"_L1, "REVIEW_FILES_PICTURES"},
        {"sounds"_L1, "REVIEW_FILES_SOUNDS"},
        {"interfaces"_L1, "REVIEW_FILES_INTERFACES"},
        {"languages"_L1, "REVIEW_FILES_LANGUAGES"},
        {"fonts"_L1, "REVIEW_FILES_FONTS"},
        {"signing"_L1, "REVIEW_FILES_SIGNING"},
    };
    for (const auto &[name, key] : names) {
        if (kind == name)
            return qtTrId(key);
    }
    return qtTrId("REVIEW_FILES_OTHERS");
}

QString bytesText(quint64 bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

QString expiryText(const QDateTime &expires, const QDateTime &now)
{
    if (!expires.isValid())
        return {};
    const QString day = QLocale().toString(expires.toLocalTime().date(), QLocale::ShortFormat);
    const qint64 days = now.daysTo(expires);
    if (expires < now)
        return qtTrId("REVIEW_EXPIRED").replace("[DATE]"_L1, day);
    return countText(days, "REVIEW_EXPIRES_IN_A_DAY", "REVIEW_EXPIRES_IN_DAYS").replace("[DATE]"_L1, day);
}

QString evidenceText(const Evidence &evidence)
{
    constexpr qsizetype longest = 600;
    const QString where = evidence.path.isEmpty() ? QString() : QString(evidence.path + u": "_s);
    const QString text = printableText(QString(where + evidence.text).left(longest + 1));
    return text.size() > longest ? text.first(longest) + u'…' : text;
}

QStringList findingTexts(const QList<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings) {
        const Rule &rule = *finding.rule;
        const QString code = QString::fromLatin1(rule.code);
        lines += severityText(rule.severity) + u": "_s + QString::fromUtf8(rule.title) + u" ("_s +
                 QString::fromLatin1(rule.id) + (code.isEmpty() ? QString() : u", "_s + code) + u')';
        lines += u"  "_s + evidenceText(finding.evidence);
        lines += u"  "_s + QString::fromUtf8(rule.fix);
    }
    return lines;
}

} // namespace lumora
