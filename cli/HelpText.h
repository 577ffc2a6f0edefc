// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

class Declaration;
struct Command;

/// The widest line of a help, in characters.
inline constexpr int helpWidth = 80;

/// `lumora help`: what there is.
QString programHelp();

/// `lumora help COMMAND`: how it is called, its operands and options under headings, examples.
QString commandHelp(const Command &command, const Declaration &declaration);

} // namespace lumora
