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

/// The text of a line of code without a name before it, as in "val brand =" or "color:", and the sign after it.
QString withoutDeclaration(const QString &line)
{
    static const QRegularExpression declaration(
        u"^(?:[A-Za-z_][\\w.]*\\s+)*[A-Za-z_][\\w.]*\\s*(?::\\s*[\\w.?]+\\s*=|[:=])"_s);
    const bool ends = line.endsWith(u';') || line.endsWith(u',');
    QString text = (ends ? line.chopped(1) : line).trimmed();
    if (const QRegularExpressionMatch match = declaration.match(text); match.hasMatch())
        text = text.sliced(match.capturedEnd()).trimmed();
    return text;
}

QString withoutQuotationMarks(const QString &text)
{
    const bool quoted = text.size() > 2 && text.front() == text.back() && u"'\"`"_s.contains(text.front());
    return quoted ? text.sliced(1, text.size() - 2) : text;
}

std::optional<ColorReading> colorFrom(const QString &text)
{
    for (const auto &reading :
         {colorFromDigits(text), colorFromColorSet(text), colorFromCode(text), colorFromCss(text)}) {
        if (reading)
            return reading;
    }
    return std::nullopt;
}

} // namespace

Result<ColorReading> readColor(const QString &text)
{
    if (text.size() > longestColorText)
        return Failure{FailureCode::TooLarge, text.first(40) + u"..."_s, {}};
    const QString trimmed = text.trimmed();
    if (const auto reading = colorFrom(trimmed))
        return *reading;
    const QString declared = withoutDeclaration(trimmed);
    if (const auto reading = colorFrom(declared))
        return *reading;
    if (const auto reading = colorFrom(withoutQuotationMarks(declared)))
        return *reading;
    return Failure{FailureCode::InvalidValue, text, "DETAIL_UNKNOWN_COLOR_FORM"};
}

} // namespace lumora
