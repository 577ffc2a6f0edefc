// SPDX-License-Identifier: MIT
#pragma once

#include "CodeGrammar.h"
#include "foundation/Result.h"

#include <QString>

namespace lumora
{

/// The longest text that is read, in characters.
inline constexpr qsizetype longestColorText = 16384;

/// Reads a color in any form of `colorForms`, in their languages' other spellings, as a CSS name, or as three or six
/// hexadecimal digits without #. A text that is not completely understood fails with InvalidValue; nothing is guessed,
/// truncated or clamped. A name may come before the color, as in "val brand =" and "color:", and a semicolon or comma
/// after it; quotation marks may be around it. Eight digits after # are read as in CSS, opacity last; in double
/// quotation marks as in QML, opacity first.
Result<ColorReading> readColor(const QString &text);

} // namespace lumora
