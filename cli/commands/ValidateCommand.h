// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

namespace lumora
{

/// `lumora validate`: the facts of app packages and what is wrong with them.
CommandBody declareValidateCommand(Declaration &declaration);

} // namespace lumora
