// SPDX-License-Identifier: MIT
#pragma once

#include "BusApplication.h"
#include "cli/console/Complaint.h"

#include <variant>

namespace lumora
{

/// The request of `lumora [--tool NAME] [--today] [FILE...]`; `arguments` do not include the program's name. Paths are
/// relative to the working folder. A tool may also be named by its command. Reports unknown options, unknown tools and
/// missing files.
std::variant<OpenRequest, Complaint> parseWindowArguments(const QStringList &arguments);

} // namespace lumora
