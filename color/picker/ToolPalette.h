// SPDX-License-Identifier: MIT
#pragma once

#include "color/picking/NamedColors.h"

namespace lumora
{

/// The program's own colors, named for their use: each tool's color and its darker shade, then text, panels and rules.
std::vector<NamedColor> toolPalette();

} // namespace lumora
