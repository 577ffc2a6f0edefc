// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

// Windows icons and the assets of its packages. Source: github.com/MicrosoftDocs/windows-dev-docs,
// app-icon-construction.md.

/// Edge lengths in an icon file: all that the shell uses at any scale.
inline constexpr std::array<int, 14> windowsIconSizes = {16, 20, 24, 30, 32, 36, 40, 48, 60, 64, 72, 80, 96, 256};

/// Pictures of at least this edge length are PNG files in an icon file.
inline constexpr int firstPngIconSize = 256;

inline constexpr std::array<int, 5> windowsScales = {100, 125, 150, 200, 400};

/// Edge lengths of the app's icon in the taskbar and in menus, without a tile behind it.
inline constexpr auto windowsTargetSizes = windowsIconSizes;
inline constexpr std::array<const char *, 3> targetSizeForms = {"", "_altform-unplated", "_altform-lightunplated"};

/// An asset of a package, which exists at every scale.
struct WindowsAsset
{
    const char *name;
    int width; ///< pixels at 100 percent
    int height;
    int iconPercent; ///< the icon's share of the shorter edge
    bool badge;      ///< white on transparent

    static constexpr int scaled(int pixels, int percent) { return (pixels * percent + 50) / 100; }
};

inline constexpr std::array<WindowsAsset, 8> windowsAssets = {{
    {"AppList", 44, 44, 100, false},
    {"SmallTile", 71, 71, 70, false},
    {"MedTile", 150, 150, 50, false},
    {"WideTile", 310, 150, 50, false},
    {"LargeTile", 310, 310, 50, false},
    {"StoreLogo", 50, 50, 100, false},
    {"SplashScreen", 620, 300, 50, false},
    {"BadgeLogo", 24, 24, 100, true},
}};

} // namespace lumora
