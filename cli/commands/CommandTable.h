// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/CommandBody.h"
#include "foundation/ToolFacts.h"

#include <QString>
#include <QStringList>

#include <span>

namespace lumora
{

class Declaration;

/// One command of `lumora`. Each is in a file of its own.
struct Command
{
    /// The word on the command line.
    const char *name;
    /// Its purpose, in half a line.
    const char *textKey;
    /// Declares the arguments; returns the function to run once they are read.
    CommandBody (*declare)(Declaration &declaration);
    /// The tool of the window for the same work (`lumora --tool TOOL`). Commands and tools accept each other's names.
    ToolIndex tool;
    /// Whether it draws text and so needs fonts: a QGuiApplication (without a screen) instead of a QCoreApplication.
    bool drawsText;
};

/// All commands, in the order of the help.
std::span<const Command> commandTable();

/// The command of that name, or of the tool of that name; nullptr if there is none.
const Command *commandNamed(QStringView name);

/// The words that commands begin with.
QStringList commandNames();

/// The name of the tool, given its name or that of its command; empty if there is none.
QString toolNamed(const QString &name);

/// The names of the window's tools, in its order.
QStringList toolNames();

} // namespace lumora
