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

/// The shell's facts of one tool. Sidebar, header, help popup, switching, shortcuts and opened files all loop over the
/// one table below; a tool's index is its place in that table.
struct Tool : ToolFacts
{
    /// Makes the controller, whose view comes from the interface file named like its class.
    std::unique_ptr<ToolViewController> (*makeController)(const Services &services) = nullptr;
    /// Passes a file with the tool's extension to this row's controller; nullptr for a tool without one.
    void (*openFile)(ToolViewController &controller, const QString &path) = nullptr;
    /// The help text of its side of today; nullptr for a tool without sides.
    const char *todayHelpTextKey = nullptr;
};

/// All tools, in the order of `toolFacts` and of the sidebar.
std::span<const Tool> toolTable();

} // namespace lumora
