// SPDX-License-Identifier: MIT
#include "PastedColor.h"

#include "ColorCode.h"
#include "color/forms/ColorReader.h"

#include <algorithm>

namespace lumora
{

namespace
{

bool isDigitsAlone(const QString &text)
{
    const QStringView digits = text.startsWith(u'#') ? QStringView(text).sliced(1) : QStringView(text);
    const auto isDigit = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    };
    return (digits.size() == 3 || digits.size() == 6) && std::all_of(digits.begin(), digits.end(), isDigit);
}

} // namespace

std::optional<PastedColor> pastedColor(const QString &text)
{
    if (text.size() > longestColorText)
        return std::nullopt;
    const QString written = text.trimmed();
    const auto reading = readColor(written);
    if (!reading)
        return std::nullopt;
    const auto [red, green, blue, alpha] = bytesOf(reading.value().color);
    const auto fraction = [](int byte) { return static_cast<float>(byte) / 255.0F; };
    const RgbaColor color{fraction(red), fraction(green), fraction(blue), fraction(alpha)};
    return PastedColor{color, isDigitsAlone(written) ? written : stringFromColor(color)};
}

} // namespace lumora
