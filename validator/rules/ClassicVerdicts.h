// SPDX-License-Identifier: MIT
#pragma once

#include "validator/bundle/PackageInspection.h"
#include "validator/rules/Rule.h"

namespace lumora
{

/// The four checks of iOS 7 that can fail, in the form of the store's rules, for reports that know one form only.
QList<RuleVerdict> classicVerdicts(const PackageReport &report);

/// Null when none of them has the id.
const Rule *classicRuleNamed(const QString &id);

} // namespace lumora
