// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"

#include <QLatin1StringView>
#include <QString>

namespace lumora
{

/// The text with every place filled by its value, rounded to nearest at the last digit:
///
/// {r} {g} {b} {a}       components and opacity as 0 to 1, up to four decimals
/// {r.} ... {a.}         the same with one decimal at least; {rf} ... {af} with an f behind
/// {R} {G} {B} {A}       as 0 to 255; {RR} {GG} {BB} in two hexadecimal digits
/// {a3}                  opacity with three decimals
/// {#rgba} {#argb}       # and eight digits; {#shortest} without the opacity where there is none; {0xargb} 0x and eight
/// {/a}                  " / " and the opacity, nothing for an opaque color
/// {hue} {sat} {light} {white} {black}   in degrees and per cent, up to two decimals
/// {okl} {okc} {okh}     OKLCH: per cent (three decimals), chroma (five), degrees (three)
/// {p3r} {p3g} {p3b}     in Display P3 whatever the space, not clipped
///
/// Components are those of the color clipped to the space. What is no place stays as it is.
QString withFormValues(QLatin1StringView text, const WideColor &color, RgbSpace space);

/// The number rounded to at most `decimals` decimals, without trailing zeros and never "-0".
QString shortDecimal(double value, int decimals);

} // namespace lumora
