// SPDX-License-Identifier: MIT
#pragma once

#include "CodeGrammar.h"

namespace lumora
{

/// Reads a color as style sheets write it: #, name, rgb(), hsl(), hwb(), oklab(), oklch(), color() in sRGB and Display
/// P3, with commas or with spaces; alone, as a declaration ("color: ...;", "--brand: ...;", also as the only one of a
/// rule) or in a Tailwind utility ("bg-[...]"). A value that CSS would clamp is refused, since it is probably a
/// mistake.
std::optional<ColorReading> colorFromCss(QStringView text);

} // namespace lumora
