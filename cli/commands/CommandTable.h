// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <span>

namespace lumora
{

class Console;
class Declaration;
enum class ExitStatus : int;

/// What a command does once its arguments are read.
using CommandBody = std::function<ExitStatus(Console &)>;

/// One command of `lumora`. Each stands in a file of its own.
struct Command
{
    /// The word on the command line.
    const char *name;
    /// The tool of the window that does the same work (`lumora --tool TOOL`). Commands and tools answer to each other's
    /// names.
    const char *tool;
    /// What it is for, in half a line.
    const char *textKey;
    /// Draws text and so needs fonts, that is, a QGuiApplication (without a screen) instead of a QCoreApplication.
    bool drawsText;
    /// Declares arguments; answers what to run once they are read.
    CommandBody (*declare)(Declaration &declaration);
};

/// Every command, in the order in which the help lists them.
std::span<const Command> commandTable();

/// The command of that name, or of the tool of that name; nullptr where there is none.
const Command *commandNamed(QStringView name);

/// The words that commands begin with.
QStringList commandNames();

/// The name of the tool that is meant by it or by the name of its command; empty where there is none.
QString toolNamed(const QString &name);

/// The names of the window's tools, in its order.
QStringList toolNames();

} // namespace lumora
