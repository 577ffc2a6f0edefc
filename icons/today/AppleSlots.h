// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

// Apple's asset catalogues. Sources: developer.apple.com/documentation/xcode/configuring-your-app-icon,
// github.com/fluttercommunity/flutter_launcher_icons, github.com/dotnet/macios (templates).

/// Edge length in points and pixels of the icon that every one-size catalogue holds.
inline constexpr int storeIconSize = 1024;

/// A slot of the multi-size form for iOS: tenths of a point, and the scale.
struct IosSlot
{
    int tenths;
    int scale;

    constexpr int pixels() const { return (tenths * scale + 5) / 10; }
};

inline constexpr std::array<IosSlot, 16> iosSlots = {{
    {200, 2},
    {200, 3}, // notification
    {290, 2},
    {290, 3}, // settings
    {380, 2},
    {380, 3},
    {400, 2},
    {400, 3}, // search
    {600, 2},
    {600, 3}, // iPhone
    {640, 2},
    {640, 3},
    {680, 2},
    {760, 2}, // iPad
    {835, 2}, // iPad Pro
    {10240, 1},
}};

/// A slot of the catalogue for the Mac, and its type in an icon file.
struct MacSlot
{
    int points;
    int scale;
    const char *file;
    const char *icnsType;

    constexpr int pixels() const { return points * scale; }
};

inline constexpr std::array<MacSlot, 10> macSlots = {{
    {16, 1, "icon_16x16.png", "icp4"},
    {16, 2, "icon_16x16@2x.png", "ic11"},
    {32, 1, "icon_32x32.png", "icp5"},
    {32, 2, "icon_32x32@2x.png", "ic12"},
    {128, 1, "icon_128x128.png", "ic07"},
    {128, 2, "icon_128x128@2x.png", "ic13"},
    {256, 1, "icon_256x256.png", "ic08"},
    {256, 2, "icon_256x256@2x.png", "ic14"},
    {512, 1, "icon_512x512.png", "ic09"},
    {512, 2, "icon_512x512@2x.png", "ic10"},
}};

/// The Mac's grid in a picture of 1024 pixels: a rounded body with a soft shadow below it, the rest transparent.
struct MacGrid
{
    int body = 824; ///< edge length, in the middle
    float cornerRadius = 185.4F;
    int shadowOffset = 12;  ///< downwards
    int shadowBlur = 28;    ///< its radius
    int shadowOpacity = 77; ///< of 255
};

inline constexpr MacGrid macGrid;

/// A picture in a set for Apple TV.
struct TvAsset
{
    const char *folder;
    const char *role;
    int width; ///< in points
    int height;
    bool layered;
    bool doubled; ///< the set also has it at double resolution
};

inline constexpr std::array<TvAsset, 4> tvAssets = {{
    {"App Icon - App Store.imagestack", "primary-app-icon", 1280, 768, true, false},
    {"App Icon.imagestack", "primary-app-icon", 400, 240, true, true},
    {"Top Shelf Image Wide.imageset", "top-shelf-image-wide", 2320, 720, false, true},
    {"Top Shelf Image.imageset", "top-shelf-image", 1920, 720, false, true},
}};

/// The icon's share of the height of a shelf picture, in percent.
inline constexpr int shelfIconPercent = 60;

/// Edge length in pixels of a layer for visionOS.
inline constexpr int visionLayerSize = 1024;

} // namespace lumora
