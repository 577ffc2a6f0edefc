// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

namespace lumora
{

/// `lumora validate`: the facts of app packages and their faults.
CommandBody declareValidateCommand(Declaration &declaration);

} // namespace lumora
