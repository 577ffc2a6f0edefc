// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

namespace lumora
{

/// `lumora icon (SOURCE | --example) --size N[,N...] (--to DIR | --out DIR | -o FILE)`: icons of custom sizes, with or
/// without rounded corners.
CommandBody declareIconCommand(Declaration &declaration);

} // namespace lumora
