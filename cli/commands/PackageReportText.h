// SPDX-License-Identifier: MIT
#pragma once

#include "validator/bundle/PackageInspection.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace lumora
{

struct Complaint;

/// True when every check that judges (icons, launch images, bundle identifier, localizations) found its subject valid.
bool allJudgedValid(const PackageReport &report);

/// The report as a script reads it, without what every object has; `file` is the package as the user named it.
QJsonObject reportJson(const QString &file, const PackageReport &report);

/// The object that stands for a file that could not be read.
QJsonObject failureJson(const QString &file, const Complaint &complaint);

/// The report as a person reads it: the file, its facts, then a line per check. Nothing in it can steer a terminal.
QStringList reportLines(const QString &file, const PackageReport &report);

} // namespace lumora
