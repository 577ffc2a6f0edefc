// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

// Android's resources. Sources: developer.android.com (adaptive icons), support.google.com/googleplay (graphic assets),
// github.com/fluttercommunity/flutter_launcher_icons, github.com/ionic-team/capacitor-assets.

/// A bucket of screen densities. The pictures are given in hundredths of the medium one.
struct DensityBucket
{
    const char *name;
    int percent;

    constexpr int pixels(int dp) const { return dp * percent / 100; }
};

/// The buckets that icons are written for.
inline constexpr std::array<DensityBucket, 5> densityBuckets = {{
    {"mdpi", 100},
    {"hdpi", 150},
    {"xhdpi", 200},
    {"xxhdpi", 300},
    {"xxxhdpi", 400},
}};

/// The lowest bucket; existing projects may have pictures for it.
inline constexpr DensityBucket lowDensity = {"ldpi", 75};

inline constexpr int legacyIconDp = 48;
inline constexpr int adaptiveLayerDp = 108;
/// The part of a layer that a mask may show.
inline constexpr int adaptiveViewportDp = 72;
/// The diameter of the circle in a layer that every mask shows.
inline constexpr int adaptiveSafeDp = 66;
inline constexpr int notificationDp = 24;
/// Edge length of the store's picture in pixels; the picture is opaque.
inline constexpr int playStoreSize = 512;
/// The largest file that the store accepts, in bytes.
inline constexpr int playStoreBytes = 1024 * 1024;

} // namespace lumora
