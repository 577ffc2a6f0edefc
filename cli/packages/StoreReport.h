// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/Rule.h"

#include <QJsonObject>
#include <QStringList>

namespace lumora
{

/// What the store's rules came to, as a script reads it: findings, binaries, signature, profile and the icons of the
/// catalog; null where there is none.
QJsonObject storeJson(const PackageContents &contents, const QList<Finding> &findings);

/// One finding as a script reads it.
QJsonObject findingJson(const Finding &finding);

/// The findings as a person reads them: what, where and how to mend it. Nothing in them can steer a terminal.
QStringList findingLines(const QList<Finding> &findings);

/// The line in place of findings when there are none.
QString noFindingsLine();

} // namespace lumora
