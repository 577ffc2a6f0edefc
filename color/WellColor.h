// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"
#include "foundation/RgbaColor.h"

namespace lumora
{

/// The color as a well shows it: clipped to sRGB, in whole bytes, which classic codes keep.
RgbaColor wellColor(const WideColor &color);

/// The color of a well, or of a picker, in whole bytes, rounded to nearest.
WideColor wideColorFrom(const RgbaColor &color);

/// The color of a classic code: its bytes are truncated, so that both sides show the same code.
WideColor wideColorOfCode(const RgbaColor &color);

} // namespace lumora
