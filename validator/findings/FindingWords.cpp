// SPDX-License-Identifier: MIT
#include "FindingWords.h"

#include "foundation/PrintableText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

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

QString bytesText(quint64 bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

QString dayText(QDate day)
{
    static const QRegularExpression weekday(u"[,، ]*\\bdddd\\b[,، ]*"_s);
    const QLocale locale;
    return locale.toString(day, locale.dateFormat(QLocale::LongFormat).remove(weekday).trimmed());
}

QString expiryText(const QDateTime &expires, const QDateTime &now)
{
    if (!expires.isValid())
        return {};
    const QString day = dayText(expires.toLocalTime().date());
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
        lines += severityText(rule.severity) + u": "_s + worded(rule.title) + u" ("_s + QString::fromLatin1(rule.id) +
                 (code.isEmpty() ? QString() : u", "_s + code) + u')';
        lines += u"  "_s + evidenceText(finding.evidence);
        lines += u"  "_s + worded(rule.fix);
    }
    return lines;
}

} // namespace lumora
