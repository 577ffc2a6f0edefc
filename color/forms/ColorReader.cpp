// SPDX-License-Identifier: MIT
#include "ColorReader.h"

#include "ColorSetFile.h"
#include "CssColorReader.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

std::optional<ColorReading> colorFromDigits(const QString &text)
{
    static const QRegularExpression digits(u"^(?:[0-9a-fA-F]{3}|[0-9a-fA-F]{6})$"_s);
    if (!digits.match(text).hasMatch())
        return std::nullopt;
    const std::optional<WideColor> color = colorFromHash(QString(u'#' + text), AlphaPlace::Last);
    return color ? std::optional(ColorReading{*color, "css-hex"_L1}) : std::nullopt;
}

/// The set's color for any appearance.
std::optional<ColorReading> colorFromColorSet(const QString &text)
{
    if (!text.startsWith(u'{'))
        return std::nullopt;
    const auto entries = readColorSet(text.toUtf8());
    if (!entries)
        return std::nullopt;
    for (const ColorSetEntry &entry : *entries) {
        if (entry.appearance.isEmpty())
            return ColorReading{entry.color, "colorset"_L1};
    }
    return std::nullopt;
}

} // namespace

Result<ColorReading> readColor(const QString &text)
{
    if (text.size() > longestColorText)
        return Failure{FailureCode::TooLarge, text.first(40) + u"..."_s, {}};
    const QString trimmed = text.trimmed();
    for (const auto &reading :
         {colorFromDigits(trimmed), colorFromColorSet(trimmed), colorFromCode(trimmed), colorFromCss(trimmed)}) {
        if (reading)
            return *reading;
    }
    return Failure{FailureCode::InvalidValue, text, "DETAIL_UNKNOWN_COLOR_FORM"};
}

} // namespace lumora
