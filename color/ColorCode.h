// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "foundation/RgbaColor.h"

#include <QString>
#include <QStringView>

#include <array>

namespace lumora
{

/// The notations of the code list, in order. The number is also the tag of the notation's copy button.
enum class ColorNotation {
    Ios = 0,
    Mac = 1,
    Rgb = 2,
    Css = 3,
};

inline constexpr int colorNotationCount = 4;

/// The result of reading a color text: the color and its code in every notation.
struct ColorCodes
{
    RgbaColor color;
    std::array<QString, colorNotationCount> list;

    const QString &code(ColorNotation notation) const { return list[static_cast<std::size_t>(notation)]; }
};

/// A component multiplied by 255 in single precision and truncated, neither rounded nor clamped: 0.286 is 72.
int componentByte(float component);

/// "#rrggbb" in lower case. A component outside 0 to 1 is printed as its unclamped byte, with as many digits as that
/// has.
QString stringFromColor(const RgbaColor &color);

/// Reads a color text: every "#" is removed, three digits are doubled to six, six get full opacity, and red, green,
/// blue and alpha are the leading hexadecimal digits of the first four pairs. Fails with InvalidValue if a pair is
/// missing or does not begin with a hexadecimal digit.
Result<ColorCodes> colorWithHexString(const QString &text);

/// True when the text may be copied as code: 3 to 7 characters, each "#" counted.
bool isCopyableLength(QStringView text);

/// Length check and conversion in one, for a text that is to be copied or printed as code.
Result<ColorCodes> codesForCopying(const QString &text);

} // namespace lumora
