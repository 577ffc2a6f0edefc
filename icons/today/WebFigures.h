// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

// Icons of web sites and installable web apps. Sources: w3.org/TR/appmanifest, github.com/vite-pwa/assets-generator,
// npm @realfavicongenerator/generate-favicon.

inline constexpr std::array<int, 3> faviconSizes = {16, 32, 48};
inline constexpr int appleTouchSize = 180;
inline constexpr std::array<int, 2> manifestSizes = {192, 512};
inline constexpr std::array<int, 2> maskableSizes = {192, 512};
/// The diameter of the circle that every mask shows, in percent of the picture's edge.
inline constexpr int maskableSafePercent = 80;

} // namespace lumora
