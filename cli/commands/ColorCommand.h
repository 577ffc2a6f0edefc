// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

namespace lumora
{

/// `lumora color TEXT`: a color text as code in every notation or in one.
CommandBody declareColorCommand(Declaration &declaration);

} // namespace lumora
