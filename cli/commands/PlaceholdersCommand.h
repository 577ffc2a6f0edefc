// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

namespace lumora
{

/// `lumora placeholders (--set ios|mac | --size WxH) (--to DIR | --out DIR)`: writes placeholder pictures.
CommandBody declarePlaceholdersCommand(Declaration &declaration);

} // namespace lumora
