// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

class Declaration;
struct Command;

/// The widest line of a help, in characters.
inline constexpr int helpWidth = 80;

/// The text of `lumora help`: all commands.
QString programHelp();

/// The text of `lumora help COMMAND`: its usage, its operands and options under headings, examples.
QString commandHelp(const Command &command, const Declaration &declaration);

} // namespace lumora
