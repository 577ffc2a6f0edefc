// SPDX-License-Identifier: MIT
#pragma once

#include "BusApplication.h"
#include "foundation/Result.h"

namespace lumora
{

/// What `lumora [--tool=NAME] [FILE...]` asks for; `arguments` come without the program's name. Relative paths count
/// from the working folder. Fails with `InvalidValue` on an option or a tool that is none.
Result<OpenRequest> parseWindowArguments(const QStringList &arguments);

} // namespace lumora
