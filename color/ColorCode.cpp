// SPDX-License-Identifier: MIT
#include "ColorCode.h"

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr float byteScale = 255.0F;
constexpr qsizetype shortLength = 3;
constexpr qsizetype opaqueLength = 6;
constexpr qsizetype fullLength = 8;

std::optional<int> hexDigit(QChar character)
{
    const char16_t code = character.unicode();
    if (code >= u'0' && code <= u'9')
        return code - u'0';
    if (code >= u'a' && code <= u'f')
        return code - u'a' + 10;
    if (code >= u'A' && code <= u'F')
        return code - u'A' + 10;
    return std::nullopt;
}

/// The leading digits of two characters: "1z" is 1. Empty if the first is not a digit.
std::optional<int> hexPair(QStringView pair)
{
    const std::optional<int> first = hexDigit(pair[0]);
    if (!first)
        return std::nullopt;
    const std::optional<int> second = hexDigit(pair[1]);
    return second ? *first * 16 + *second : *first;
}

/// Eight characters or more if the text is readable.
QString withAllPairs(const QString &digits)
{
    QString full = digits;
    if (full.size() == shortLength)
        full = QString(full[0]) + full[0] + full[1] + full[1] + full[2] + full[2];
    if (full.size() == opaqueLength)
        full += u"ff"_s;
    return full;
}

QString objectiveCode(const char *format, const RgbaColor &color)
{
    return QString::asprintf(format, static_cast<double>(color.red), static_cast<double>(color.green),
                             static_cast<double>(color.blue), static_cast<double>(color.alpha));
}

ColorCodes codesOf(const RgbaColor &color, const QString &digits)
{
    ColorCodes codes;
    codes.color = color;
    codes.list = {
        objectiveCode("[UIColor colorWithRed:%.03ff green:%.03ff blue:%.03ff alpha:%.03ff]", color),
        objectiveCode("[NSColor colorWithCalibratedRed:%.03ff green:%.03ff blue:%.03ff alpha:%.03ff]", color),
        QString::asprintf("rgb(%i, %i, %i)", componentByte(color.red), componentByte(color.green),
                          componentByte(color.blue)),
        u"color: #"_s + digits + u';',
    };
    return codes;
}

} // namespace

int componentByte(float component)
{
    const float scaled = component * byteScale;
    if (std::isnan(scaled))
        return 0;
    // Beyond the range of int the conversion would be undefined.
    constexpr float limit = 2147483520.0F;
    return static_cast<int>(std::clamp(scaled, -limit, limit));
}

QString stringFromColor(const RgbaColor &color)
{
    return QString::asprintf("#%02x%02x%02x", static_cast<unsigned>(componentByte(color.red)),
                             static_cast<unsigned>(componentByte(color.green)),
                             static_cast<unsigned>(componentByte(color.blue)));
}

Result<ColorCodes> colorWithHexString(const QString &text)
{
    QString digits = text;
    digits.remove(u'#');
    const QString pairs = withAllPairs(digits);
    if (pairs.size() < fullLength)
        return Failure{FailureCode::InvalidValue, text, {}};

    std::array<float, 4> fractions{};
    for (std::size_t index = 0; index < fractions.size(); ++index) {
        const auto byte = hexPair(QStringView(pairs).mid(static_cast<qsizetype>(index) * 2, 2));
        if (!byte)
            return Failure{FailureCode::InvalidValue, text, {}};
        fractions[index] = static_cast<float>(*byte) / byteScale;
    }
    return codesOf({fractions[0], fractions[1], fractions[2], fractions[3]}, digits);
}

bool isCopyableLength(QStringView text)
{
    return text.size() >= 3 && text.size() <= 7;
}

Result<ColorCodes> codesForCopying(const QString &text)
{
    if (!isCopyableLength(text))
        return Failure{FailureCode::InvalidValue, text, {}};
    return colorWithHexString(text);
}

} // namespace lumora
