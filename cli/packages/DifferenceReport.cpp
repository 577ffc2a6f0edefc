// SPDX-License-Identifier: MIT
#include "DifferenceReport.h"

#include "StoreReport.h"
#include "cli/console/CommandText.h"
#include "foundation/PrintableText.h"
#include "validator/reports/PackageJson.h"

#include <QJsonArray>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonArray changesJson(const QList<ChangedFact> &changes)
{
    QJsonArray array;
    for (const ChangedFact &change : changes)
        array += QJsonObject{
            {u"name"_s, change.name}, {u"old"_s, textOrNull(change.before)}, {u"new"_s, textOrNull(change.after)}};
    return array;
}

QJsonArray findingsJson(const QList<Finding> &findings)
{
    QJsonArray array;
    for (const Finding &finding : findings)
        array += findingJson(finding);
    return array;
}

QJsonObject totalJson(const FileTotal &total)
{
    return {{u"files"_s, total.files}, {u"bytes"_s, static_cast<qint64>(total.bytes)}};
}

QJsonObject sizesJson(const PackageDifference &difference)
{
    QJsonArray kinds;
    for (const KindTotals &kind : difference.kinds)
        kinds +=
            QJsonObject{{u"kind"_s, kind.kind}, {u"old"_s, totalJson(kind.before)}, {u"new"_s, totalJson(kind.after)}};
    QJsonArray growth;
    for (const GrownFile &file : difference.growth)
        growth += QJsonObject{{u"path"_s, file.path},
                              {u"old"_s, static_cast<qint64>(file.before)},
                              {u"new"_s, static_cast<qint64>(file.after)}};
    QJsonObject before = totalJson(difference.all.before);
    QJsonObject after = totalJson(difference.all.after);
    before.insert(u"packed"_s, static_cast<qint64>(difference.packedBefore));
    after.insert(u"packed"_s, static_cast<qint64>(difference.packedAfter));
    return {{u"old"_s, before}, {u"new"_s, after}, {u"kinds"_s, kinds}, {u"growth"_s, growth}};
}

QString changeLine(const ChangedFact &change)
{
    const QString name = u"  "_s + printableText(change.name) + u": "_s;
    const QString none = commandText("CLI_NONE");
    return name + (change.before.isEmpty() ? none : printableText(change.before)) + u" -> "_s +
           (change.after.isEmpty() ? none : printableText(change.after));
}

QStringList changeLines(const char *headingKey, const QList<ChangedFact> &changes)
{
    QStringList lines;
    if (!changes.isEmpty())
        lines += commandText(headingKey);
    for (const ChangedFact &change : changes)
        lines += changeLine(change);
    return lines;
}

QStringList findingsUnder(const char *headingKey, const QList<Finding> &findings)
{
    return findings.isEmpty() ? QStringList() : QStringList{commandText(headingKey)} + findingLines(findings);
}

QString bytesText(quint64 bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

QString changeText(quint64 before, quint64 after)
{
    const bool grew = after >= before;
    return (grew ? u"+"_s : u"-"_s) + bytesText(grew ? after - before : before - after);
}

QString kindName(const QString &kind)
{
    return kind == u"all" ? commandText("CLI_DIFF_ALL") : fileKindText(kind);
}

QString totalLine(const KindTotals &totals)
{
    constexpr int kindWidth = 12;
    const auto text = [](const FileTotal &total) {
        return commandText(total.files == 1 ? "CLI_DIFF_TOTAL_ONE" : "CLI_DIFF_TOTAL",
                           {{"[FILES]", QString::number(total.files)}, {"[SIZE]", bytesText(total.bytes)}});
    };
    return u"  "_s + kindName(totals.kind).leftJustified(kindWidth) + text(totals.before) + u" -> "_s +
           text(totals.after) + u" ("_s + changeText(totals.before.bytes, totals.after.bytes) + u')';
}

} // namespace

QJsonObject differenceJson(const PackageDifference &difference)
{
    return {{u"facts"_s, changesJson(difference.facts)},
            {u"entitlements"_s, changesJson(difference.entitlements)},
            {u"permissions"_s, changesJson(difference.permissions)},
            {u"gained"_s, findingsJson(difference.gained)},
            {u"lost"_s, findingsJson(difference.lost)},
            {u"sizes"_s, sizesJson(difference)}};
}

QStringList differenceLines(const QString &before, const QString &after, const PackageDifference &difference)
{
    QStringList lines{QString(printableText(before) + u" -> "_s + printableText(after))};
    lines += changeLines("CLI_DIFF_FACTS", difference.facts);
    lines += changeLines("CLI_DIFF_ENTITLEMENTS", difference.entitlements);
    lines += changeLines("CLI_DIFF_PERMISSIONS", difference.permissions);
    lines += findingsUnder("CLI_DIFF_GAINED", difference.gained);
    lines += findingsUnder("CLI_DIFF_LOST", difference.lost);
    lines += commandText("CLI_DIFF_SIZES");
    lines += totalLine(difference.all);
    for (const KindTotals &kind : difference.kinds)
        lines += totalLine(kind);
    if (!difference.growth.isEmpty())
        lines += commandText("CLI_DIFF_GROWTH");
    for (const GrownFile &file : difference.growth)
        lines += u"  "_s + changeText(file.before, file.after) + u"  "_s + printableText(file.path);
    return lines;
}

} // namespace lumora
