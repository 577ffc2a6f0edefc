// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/Rule.h"

#include <QStringList>

namespace lumora
{

/// The findings as a person reads them: what, where and how to mend it. Nothing in them can steer a terminal.
QStringList findingLines(const QList<Finding> &findings);

/// The line in place of findings when there are none.
QString noFindingsLine();

} // namespace lumora
