// SPDX-License-Identifier: MIT
#pragma once

#include "validator/bundle/PackageInspection.h"
#include "validator/rules/Rule.h"

#include <QJsonObject>
#include <QString>

namespace lumora
{

/// The facts and classic checks for scripts, without the members that every object has; `file` is the package as the
/// user named it.
QJsonObject reportJson(const QString &file, const PackageReport &report);

/// What the store's rules came to, as a script reads it: findings, binaries, signature, profile and the icons of the
/// catalog; null where there is none.
QJsonObject storeJson(const PackageContents &contents, const QList<Finding> &findings);

/// One finding as a script reads it.
QJsonObject findingJson(const Finding &finding);

} // namespace lumora
