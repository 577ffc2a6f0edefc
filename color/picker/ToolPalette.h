// SPDX-License-Identifier: MIT
#pragma once

#include "color/picking/NamedColors.h"

namespace lumora
{

/// The colors that the program itself is made of, named after what they color: each tool's color and its darker
/// shade, then text, panels and rules.
std::vector<NamedColor> toolPalette();

} // namespace lumora
