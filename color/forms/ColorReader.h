// SPDX-License-Identifier: MIT
#pragma once

#include "CodeGrammar.h"
#include "foundation/Result.h"

#include <QString>

namespace lumora
{

/// The longest text that is looked at, in characters.
inline constexpr qsizetype longestColorText = 16384;

/// Understands a color in any form that `colorForms` lists and their languages' other spellings, CSS names, and three
/// or six hexadecimal digits without #. Whatever is not wholly understood is refused with InvalidValue; nothing is
/// guessed, cut or clamped. Eight digits after # are CSS's, opacity last; in quotation marks they are QML's, opacity
/// first.
Result<ColorReading> readColor(const QString &text);

} // namespace lumora
