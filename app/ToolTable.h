// SPDX-License-Identifier: MIT
#pragma once

#include "tool/services/Services.h"

#include <QColor>
#include <QString>

#include <memory>
#include <span>

namespace lumora
{

class ToolViewController;

/// Everything the shell knows of one tool. Sidebar, header, help popup, switching, colours, shortcuts and opened files
/// all loop over the one table of these; the tool's index is its place in it.
struct Tool
{
    const char *name;         ///< on the command line and in the desktop's menu: `lumora --tool=NAME`
    const char *sidebarImage; ///< selected or not
    const char *headerKey;
    const char *helpTitleKey;
    const char *helpTextKey;
    const char *helpIcon;
    QColor color;
    QColor borderColor;
    /// Makes the controller, whose view comes from the interface file named like its class.
    std::unique_ptr<ToolViewController> (*makeController)(const Services &services);
    /// The ending (without its dot, case counts) of files that are handed to this tool when the application is asked to
    /// open them; nullptr for none.
    const char *openedExtension = nullptr;
    /// Hands such a file over. The controller is this row's.
    void (*openFile)(ToolViewController &controller, const QString &path) = nullptr;
};

/// All tools, in the order of the sidebar.
std::span<const Tool> toolTable();

} // namespace lumora
