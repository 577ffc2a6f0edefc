// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

namespace lumora
{

/// `lumora placeholders (--set ios|mac | --size WxH ...) --to DIR`: writes placeholder pictures into a fresh folder.
CommandBody declarePlaceholdersCommand(CLI::App &subcommand);

} // namespace lumora
