// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

/// Edge lengths of the folders for apps in the icon theme that every desktop falls back on. Source: hicolor-icon-theme,
/// index.theme.
inline constexpr std::array<int, 13> hicolorSizes = {16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256, 512};

} // namespace lumora
