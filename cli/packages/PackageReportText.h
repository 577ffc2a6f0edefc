// SPDX-License-Identifier: MIT
#pragma once

#include "validator/bundle/PackageInspection.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace lumora
{

struct Complaint;

/// The object for a file that could not be read.
QJsonObject failureJson(const QString &file, const Complaint &complaint);

/// The report for people: the file, its facts, then one line for each check. It contains no control characters for a
/// terminal.
QStringList reportLines(const QString &file, const PackageReport &report);

} // namespace lumora
