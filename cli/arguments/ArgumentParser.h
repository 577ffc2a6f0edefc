// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Complaint.h"

#include <QStringList>

#include <optional>

namespace lumora
{

class Declaration;

/// Reads the words behind a command into the targets of its declaration: `--name VALUE`, `--name=VALUE`, `-o VALUE`,
/// `-oVALUE`, letters of flags together (`-qv`), options and operands in any order, all operands after `--`. A value
/// that begins with a dash is only taken behind `=`, or where it is a number or a dash alone.
///
/// Answers what is wrong with the first thing that is, nothing where all is well. Its kind tells a wrong call from a
/// number out of its range.
std::optional<Complaint> readArguments(Declaration &declaration, const QStringList &words);

/// Where an option's name was mistyped: what to say of it, with the nearest of the names.
Complaint unknownOption(const QString &typed, const QStringList &names);

/// "did you mean icon or icons?", or empty where no word is given.
QString didYouMean(const QStringList &words);

} // namespace lumora
