// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/CommandBody.h"

namespace lumora
{

class Declaration;

/// `lumora rules [ID]...`: the store's rules that packages are judged by, as a list, in full or as a page.
CommandBody declareRulesCommand(Declaration &declaration);

} // namespace lumora
