// SPDX-License-Identifier: MIT
#pragma once

#include "validator/reports/PackageDifference.h"

#include <QJsonObject>
#include <QStringList>

namespace lumora
{

/// The difference as a script reads it, without the packages' names.
QJsonObject differenceJson(const PackageDifference &difference);

/// The difference as a person reads it; parts that hold none are left out. Nothing in it can steer a terminal.
QStringList differenceLines(const QString &before, const QString &after, const PackageDifference &difference);

} // namespace lumora
