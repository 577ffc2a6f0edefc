// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Complaint.h"

#include <QStringList>

#include <optional>

namespace lumora
{

class Declaration;

/// Reads the words after a command into the targets of its declaration: `--name VALUE`, `--name=VALUE`, `-o VALUE`,
/// `-oVALUE`, letters of flags together (`-qv`), options and operands in any order, only operands after `--`. A value
/// that begins with a dash is only accepted after `=`, or if it is a number or a single dash.
///
/// Returns the first fault, empty if there is none. Its kind distinguishes a wrong call from a number out of range.
std::optional<Complaint> readArguments(Declaration &declaration, const QStringList &words);

/// The complaint about a mistyped option, with the nearest of the names.
Complaint unknownOption(const QString &typed, const QStringList &names);

/// "did you mean icon or icons?", or empty without words.
QString didYouMean(const QStringList &words);

} // namespace lumora
