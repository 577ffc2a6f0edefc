// SPDX-License-Identifier: MIT
#pragma once

#include "validator/bundle/CheckResults.h"
#include "validator/bundle/FoundContent.h"
#include "validator/bundle/PackageInspection.h"

#include <QString>
#include <QStringList>

namespace lumora
{

/// Stands for a fact that the package does not give.
inline constexpr QChar noFact(0x2013);

/// "2 of 6 checks failed".
QString sumText(const CheckSum &sum);

/// Why the check failed, one sentence, in front of the missing sizes where there are any; empty for one that did not.
QString reasonText(const CheckResult &result, const PackageFacts &facts);

/// What a file holds that is no app package, and what one would be.
QString foundText(const FoundContent &found);

/// What keeps a report from being the whole truth about an app; empty where nothing does.
QString noteText(const PackageFacts &facts, const Extraction &extraction);

/// The name of the check as its box shows it.
QString checkName(Check check);

/// What came of it, by its name.
QString verdictText(const CheckResult &result);

/// Label and value, a dash where there is none.
QStringList factLines(const PackageFacts &facts);

} // namespace lumora
