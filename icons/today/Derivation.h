// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace lumora
{

/// What was made of the given pictures because it was not given itself, or was left out.
enum class Derivation {
    Fitted,
    NotDrawn,
    IconFlattened,
    TintedFromIcon,
    TintedOnBlack,
    DarkIsIcon,
    DarkLeftOut,
    ForegroundFromIcon,
    BackgroundFromBorder,
    BackgroundWhite,
    MonochromeFromIcon,
    MonochromeLeftOut,
    WebOnBackground,
    BackLayerFlattened,
    ShelfFromLayers,
    LayersFromIcon,
    ScalableLeftOut,
};

struct DerivationText
{
    Derivation derivation;
    const char *id;
    const char *text; ///< one sentence in English, without what `Derived::detail` adds
};

inline constexpr std::array<DerivationText, 17> derivationTexts = {{
    {Derivation::Fitted, "fitted", "a picture of another size was scaled to 1024 x 1024"},
    {Derivation::NotDrawn, "not-drawn", "parts of an SVG file are not drawn"},
    {Derivation::IconFlattened, "icon-flattened", "the icon was put on the color of --flatten where it must be opaque"},
    {Derivation::TintedFromIcon, "tinted-from-icon", "the tinted icon is the icon's luminance"},
    {Derivation::TintedOnBlack, "tinted-on-black", "the tinted icon is black where the picture is transparent"},
    {Derivation::DarkIsIcon, "dark-is-icon", "the dark icon is the icon with its transparency"},
    {Derivation::DarkLeftOut, "dark-left-out", "there is no dark icon, since the icon has no transparency"},
    {Derivation::ForegroundFromIcon, "foreground-from-icon", "the foreground is the icon inside the safe zone"},
    {Derivation::BackgroundFromBorder, "background-from-border", "the background is the color of the icon's border"},
    {Derivation::BackgroundWhite, "background-white", "the background is white"},
    {Derivation::MonochromeFromIcon, "monochrome-from-icon", "the monochrome icon is the icon's shape in white"},
    {Derivation::MonochromeLeftOut, "monochrome-left-out",
     "there are no monochrome, notification and badge pictures, since the icon has no transparency"},
    {Derivation::WebOnBackground, "web-on-background", "touch and maskable icons stand on the background color"},
    {Derivation::BackLayerFlattened, "back-layer-flattened", "the back layer was put on the background color"},
    {Derivation::ShelfFromLayers, "shelf-from-layers",
     "the top shelf pictures show the layers on the background color"},
    {Derivation::LayersFromIcon, "layers-from-icon", "the only layer is the icon, on the background color"},
    {Derivation::ScalableLeftOut, "scalable-left-out", "there is no SVG icon, since the icon is a picture of pixels"},
}};

/// One of them as it came about.
struct Derived
{
    Derivation derivation = Derivation::Fitted;
    QString detail; ///< the color, size or file concerned, may be empty

    bool operator==(const Derived &) const = default;
};

} // namespace lumora
