// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

/// Edge lengths of the app folders in hicolor, the theme that every desktop falls back to. Source: hicolor-icon-theme,
/// index.theme.
inline constexpr std::array<int, 13> hicolorSizes = {16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256, 512};

} // namespace lumora
