// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

namespace lumora
{

/// `lumora downscale FILE|FOLDER... (--to DIR | --out DIR)`: halves double-resolution pictures, prints each written
/// path.
CommandBody declareDownscaleCommand(Declaration &declaration);

} // namespace lumora
