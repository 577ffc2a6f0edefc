// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

namespace lumora
{

/// `lumora icons (SOURCE | --example) --platform LIST (--to DIR | --out DIR)`: the icon sets of whole platforms from
/// one picture.
CommandBody declareIconsCommand(Declaration &declaration);

} // namespace lumora
