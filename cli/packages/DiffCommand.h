// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/CommandBody.h"

namespace lumora
{

class Declaration;

/// `lumora diff OLD NEW`: what became of a package from one build to the next.
CommandBody declareDiffCommand(Declaration &declaration);

} // namespace lumora
