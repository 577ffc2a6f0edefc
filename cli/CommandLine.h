// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>

#include <QStringList>

#include <functional>

namespace lumora
{

class Console;
enum class ExitStatus : int;

/// What a command does once its arguments are parsed.
using CommandBody = std::function<ExitStatus(Console &)>;

/// One command of `lumora`. Each stands in a file of its own and adds itself to the parser.
struct Command
{
    /// The word on the command line.
    const char *name;
    /// Draws text and so needs fonts, that is, a QGuiApplication (without a screen) instead of a QCoreApplication.
    bool drawsText;
    /// Declares arguments on the sub-command it is given; answers what to run when that sub-command was chosen.
    CommandBody (*declare)(CLI::App &subcommand);
};

/// True when the arguments are for the command line (a command, or an option such as --help), false when they ask for
/// the window.
bool isCommandLine(int argc, const char *const *argv);

/// The words that commands begin with, in the order in which --help lists them.
QStringList commandNames();

/// Runs the command line and answers the exit status. Makes its own application object.
int runCommandLine(int argc, char **argv);

} // namespace lumora
