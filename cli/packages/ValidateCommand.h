// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/CommandBody.h"

namespace lumora
{

class Declaration;

/// `lumora validate`: the facts of app packages and their faults.
CommandBody declareValidateCommand(Declaration &declaration);

} // namespace lumora
