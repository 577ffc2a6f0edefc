// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

/// How reliable a figure is.
enum class Certainty {
    OneSource, ///< it has a single source
    NoSource,  ///< it has no source: existing files contain it, or it is chosen here
};

/// A figure or rule of the sets that may be wrong.
struct UncertainFigure
{
    const char *id;
    const char *what;
    Certainty certainty;
};

/// All uncertain figures. When a figure is confirmed or corrected, change the table that uses it and remove its row
/// here.
inline constexpr std::array<UncertainFigure, 14> uncertainFigures = {{
    {"icns-icp4-icp5", "the types of the 16 and 32 pixel pictures in a Mac icon file", Certainty::NoSource},
    {"ios-sizes-appearances", "dark and tinted pictures repeated for each slot of the multi-size form",
     Certainty::NoSource},
    {"ios-wide-gamut", "stores refuse Display P3 and palette pictures of 1024 pixels", Certainty::OneSource},
    {"composer-automatic", "the fill \"automatic\" of an Icon Composer bundle, which is therefore not written",
     Certainty::NoSource},
    {"composer-order", "the first group and layer of an Icon Composer bundle lies in front", Certainty::NoSource},
    {"mac-corner", "the radius of the Mac body's corners, 185.4 of 824", Certainty::NoSource},
    {"mac-shadow", "offset, blur and opacity of the Mac body's shadow", Certainty::NoSource},
    {"tile-share", "how much of a Windows tile or splash screen the icon takes", Certainty::NoSource},
    {"shelf-share", "how much of a top shelf picture the icon takes", Certainty::NoSource},
    {"layer-names", "the names of television and visionOS layers besides Front, Middle and Back", Certainty::NoSource},
    {"vision-layers", "visionOS takes as many layers as the television", Certainty::NoSource},
    {"mask-shapes", "the corner radii of the launchers' rounded square, squircle and teardrop", Certainty::NoSource},
    {"maui-places", "where a .NET MAUI project keeps its icon", Certainty::NoSource},
    {"cordova-places", "where a Cordova project keeps its icons", Certainty::NoSource},
}};

} // namespace lumora
