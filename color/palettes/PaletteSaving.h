// SPDX-License-Identifier: MIT
#pragma once

#include "Palette.h"

namespace lumora
{

/// Writes the palette into the folder and returns the path of its file, or of the folder of its color sets. Replaces
/// nothing: if the name is taken, it gets a number. What was written before a failure stays.
Result<QString> savePalette(const Palette &palette, const QString &name, PaletteFormat format, const QString &folder);

} // namespace lumora
