// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/ToolFacts.h"
#include "tool/services/Services.h"

#include <QString>

#include <memory>
#include <span>

namespace lumora
{

class ToolViewController;

/// Everything the shell knows of one tool. Sidebar, header, help popup, switching, shortcuts and opened files all loop
/// over the one table of these; the tool's index is its place in it.
struct Tool : ToolFacts
{
    /// Makes the controller, whose view comes from the interface file named like its class.
    std::unique_ptr<ToolViewController> (*makeController)(const Services &services);
    /// Hands over a file of the tool's extension; nullptr for a tool without one. The controller is this row's.
    void (*openFile)(ToolViewController &controller, const QString &path) = nullptr;
};

/// All tools, in the order of `toolFacts` and of the sidebar.
std::span<const Tool> toolTable();

} // namespace lumora
