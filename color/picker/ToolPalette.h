// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColors.h"

namespace lumora
{

/// The colours that the program itself is made of, named after what they colour: each tool's colour and its darker
/// shade, then text, panels and rules.
std::vector<NamedColor> toolPalette();

} // namespace lumora
