// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

namespace lumora
{

/// `lumora devices`: the models that run an iOS version and have the required features.
CommandBody declareDevicesCommand(Declaration &declaration);

} // namespace lumora
