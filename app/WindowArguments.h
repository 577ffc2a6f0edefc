// SPDX-License-Identifier: MIT
#pragma once

#include "BusApplication.h"
#include "cli/console/Complaint.h"

#include <variant>

namespace lumora
{

/// What `lumora [--tool NAME] [FILE...]` asks for; `arguments` come without the program's name. Relative paths count
/// from the working folder. A tool answers to the name of its command, too. An option that is none, a tool that is none
/// and a file that does not exist are complained of.
std::variant<OpenRequest, Complaint> parseWindowArguments(const QStringList &arguments);

} // namespace lumora
