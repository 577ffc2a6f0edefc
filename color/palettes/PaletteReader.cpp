// SPDX-License-Identifier: MIT
#include "Palette.h"

#include "color/forms/ColorReader.h"
#include "color/forms/ColorSetFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

Failure refused(const QString &name, const FailureDetail &detail)
{
    return {FailureCode::NotReadable, name, detail};
}

/// Adds the color; fails if it is not understood or the palette is full.
Outcome add(Palette &palette, const QString &color, const QString &value, const QString &file)
{
    if (palette.size() == mostPaletteColors)
        return Failure{
            FailureCode::TooLarge, file, {"DETAIL_MORE_COLORS", {{"[COUNT]", QString::number(mostPaletteColors)}}}};
    const Result<ColorReading> reading = readColor(value);
    if (!reading)
        return refused(file, {"DETAIL_UNKNOWN_COLOR", {{"[NAME]", color}, {"[COLOR]", value.left(60)}}});
    palette.push_back({color, reading.value().color});
    return Done{};
}

Result<Palette> readGpl(const QString &text, const QString &name)
{
    static const QString byte = u"([01]?\\d?\\d|2[0-4]\\d|25[0-5])"_s;
    static const QRegularExpression row(u"^\\s*%1\\s+%1\\s+%1(?:\\s+(.*))?$"_s.arg(byte));
    static const QRegularExpression header(u"^(?:Name|Columns):"_s);
    Palette palette;
    const QStringList lines = text.split(u'\n');
    for (qsizetype index = 1; index < lines.size(); ++index) {
        const QString line = lines[index].trimmed();
        if (line.isEmpty() || line.startsWith(u'#') || header.match(line).hasMatch())
            continue;
        const auto match = row.match(line);
        const QString place = u"line %1"_s.arg(index + 1);
        if (!match.hasMatch())
            return refused(name, {"DETAIL_LINE", {{"[LINE]", QString::number(index + 1)}}});
        const QString value = u"rgb(%1 %2 %3)"_s.arg(match.captured(1), match.captured(2), match.captured(3));
        const QString color = match.captured(4).trimmed();
        if (const Outcome added = add(palette, color.isEmpty() ? place : color, value, name); !added)
            return added.failure();
    }
    return palette;
}

Result<Palette> readJson(const QJsonObject &object, const QString &name)
{
    Palette palette;
    for (const QJsonValue value : object.value("colors"_L1).toArray()) {
        const QJsonObject entry = value.toObject();
        // The wide form is more exact than the clipped one beside it.
        const QString css = entry.value("css"_L1).toString();
        const QString color = css.isEmpty() ? entry.value("hex8"_L1).toString() : css;
        if (const Outcome added = add(palette, entry.value("name"_L1).toString(), color, name); !added)
            return added.failure();
    }
    return palette;
}

Result<Palette> readColorSetPalette(const QByteArray &content, const QString &name)
{
    const auto entries = readColorSet(content);
    if (!entries)
        return refused(name, "DETAIL_UNKNOWN_COLOR_SET");
    Palette palette;
    for (const ColorSetEntry &entry : *entries) {
        if (palette.size() == mostPaletteColors)
            return Failure{FailureCode::TooLarge, name, {}};
        const QString suffix = entry.appearance.isEmpty() ? QString() : QString(u' ' + entry.appearance);
        palette.push_back({name + suffix, entry.color});
    }
    return palette;
}

Result<Palette> readCss(QString text, const QString &name)
{
    static const QRegularExpression comment(u"/\\*.*?\\*/"_s, QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression variable(u"(?:^|[{;\\s])--([\\w-]+)\\s*:\\s*([^;{}]*)"_s,
                                             QRegularExpression::UseUnicodePropertiesOption);
    text.remove(comment);
    Palette palette;
    for (auto matches = variable.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (const Outcome added = add(palette, match.captured(1), match.captured(2).trimmed(), name); !added)
            return added.failure();
    }
    return palette;
}

Result<Palette> readAny(const QByteArray &content, const QString &name)
{
    const QString text = QString::fromUtf8(content);
    if (text.startsWith("GIMP Palette"_L1))
        return readGpl(text, name);
    if (text.trimmed().startsWith(u'{')) {
        const QJsonObject object = QJsonDocument::fromJson(content).object();
        const QJsonArray colors = object.value("colors"_L1).toArray();
        const bool isColorSet = !colors.isEmpty() && colors[0].toObject().contains("idiom"_L1);
        if (isColorSet)
            return readColorSetPalette(content, name);
        return readJson(object, name);
    }
    return readCss(text, name);
}

} // namespace

Result<Palette> readPalette(const QByteArray &content, const QString &name)
{
    if (content.size() > largestPaletteFile)
        return Failure{FailureCode::TooLarge, name, {}};
    Result<Palette> palette = readAny(content, name);
    if (palette && palette.value().empty())
        return Failure{FailureCode::MissingContent, name, "DETAIL_NO_COLOR"};
    return palette;
}

} // namespace lumora
