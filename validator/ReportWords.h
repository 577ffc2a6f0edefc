// SPDX-License-Identifier: MIT
#pragma once

#include "validator/bundle/CheckResults.h"
#include "validator/bundle/FoundContent.h"
#include "validator/bundle/PackageInspection.h"

#include <QString>
#include <QStringList>

namespace lumora
{

/// The text for a fact that is missing in the package.
inline constexpr QChar noFact(0x2013);

/// "2 of 6 checks failed".
QString sumText(const CheckSum &sum);

/// Why the check failed, in one sentence before the missing sizes, if there are any; empty for a check that passed.
QString reasonText(const CheckResult &result, const PackageFacts &facts);

/// The content of a file that is not an app package, and a description of a package.
QString foundText(const FoundContent &found);

/// Why a report is not complete; empty if it is.
QString noteText(const PackageFacts &facts, const Extraction &extraction);

/// The name of the check as its box shows it.
QString checkName(Check check);

/// The name of its result.
QString verdictText(const CheckResult &result);

/// Label and value, with a dash for a missing value.
QStringList factLines(const PackageFacts &facts);

} // namespace lumora
