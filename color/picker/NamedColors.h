// SPDX-License-Identifier: MIT
#pragma once

#include "color/RgbaColor.h"

#include <QString>

#include <vector>

namespace lumora
{

/// A colour with the name it goes by.
struct NamedColor
{
    QString name;
    RgbaColor color;
};

/// The named colours of the web, greys first, then around the wheel, each hue from light to dark. Names and values are
/// those of SVG 1.0, as Qt carries them, and `rebeccapurple`, which CSS Color Module Level 4 added. Of names for one
/// colour (aqua and cyan, gray and grey) the first in the alphabet stands.
std::vector<NamedColor> webColors();

} // namespace lumora
