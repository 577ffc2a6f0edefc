// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

#include <compare>

namespace lumora
{

/// What a picture of a set shows.
enum class Motif {
    Icon, ///< the source as it is
    Dark,
    Tinted,     ///< opaque shades of gray
    MacBody,    ///< on the Mac's grid
    Foreground, ///< of an adaptive icon
    Background, ///< the same
    Monochrome, ///< white, only the transparency counts
    Round,      ///< foreground over background, cut to a circle
    Layer,      ///< one of the layers
    Layers,     ///< all layers, one over the other
};

/// Whether a picture file has an alpha channel.
enum class PictureForm { Transparent, Opaque };

/// Everything besides the sources that determines a picture file. Equal recipes are made once.
struct PictureRecipe
{
    Motif motif = Motif::Icon;
    int layer = 0; ///< number of the layer, from the back
    int width = 0; ///< of the picture, in pixels
    int height = 0;
    int edge = 0;    ///< of the motif in its middle, in pixels; cut off at the picture's edges
    QRgb ground = 0; ///< the opaque color below the motif, 0 for none
    PictureForm form = PictureForm::Transparent;

    auto operator<=>(const PictureRecipe &) const = default;
};

/// A square picture that the motif fills.
constexpr PictureRecipe filled(Motif motif, int edge, PictureForm form = PictureForm::Transparent)
{
    return {motif, 0, edge, edge, edge, 0, form};
}

} // namespace lumora
