// SPDX-License-Identifier: MIT
#pragma once

#include "JudgedPackage.h"

#include <QByteArray>

#include <optional>

namespace lumora
{

/// A suite for each package and a test case for each rule, as build servers read them. A rule that is broken fails
/// where it is as severe as `failOn`; a milder one passes and says what it found. What does not apply or cannot be
/// known is skipped, a package that could not be read is one error.
QByteArray junitReport(const QList<JudgedPackage> &packages, std::optional<Severity> failOn);

} // namespace lumora
