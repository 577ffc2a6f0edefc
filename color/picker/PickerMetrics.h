// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

namespace lumora::metrics
{

/// In points: the popover's view and the strip of tabs at its top; the picker fills the rest.
inline constexpr QSize pickerSize(250, 400);
inline constexpr int pickerTabBarHeight = 34;
inline constexpr int pickerMargin = 12;
inline constexpr int pickerSpacing = 8;

inline constexpr int pickerSliderHeight = 20;
inline constexpr int pickerSliderTrack = 10;
inline constexpr int pickerKnob = 16;
inline constexpr int pickerNumberWidth = 46;
inline constexpr int pickerFieldHeight = 24;

/// The ring that marks the place on the wheel.
inline constexpr int wheelMarker = 14;
inline constexpr int wheelMargin = wheelMarker / 2 + 2;

/// Ten fit in a row, also beside a scroll bar.
inline constexpr int swatch = 19;
inline constexpr int swatchCell = swatch + 2;
inline constexpr int swatchCorner = 4;
/// One square of the pattern behind translucent colors.
inline constexpr int transparencySquare = 5;

} // namespace lumora::metrics
