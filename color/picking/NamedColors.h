// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QString>

#include <vector>

namespace lumora
{

/// A color and its name.
struct NamedColor
{
    QString name;
    RgbaColor color;
};

/// The named colors of the web, grays first, then around the wheel, each hue from light to dark. Names and values are
/// those of SVG 1.0, as Qt carries them, and `rebeccapurple`, which CSS Color Module Level 4 added. If a color has
/// several names (aqua and cyan), the list has the first in the alphabet.
std::vector<NamedColor> webColors();

} // namespace lumora
