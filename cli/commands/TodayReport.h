// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"
#include "icons/check/IconFinding.h"
#include "icons/project/ProjectPlan.h"
#include "icons/project/ProjectWriter.h"
#include "icons/today/TodayExport.h"

#include <QJsonArray>

namespace lumora
{

/// The picture and text files that were written.
QJsonArray filesJson(const TodayExport &result);

/// What was derived: printed as lines, and as JSON.
void printDerived(Console &console, const QList<Derived> &derived);
QJsonArray derivedJson(const QList<Derived> &derived);

/// Findings, the worst first, with reason and fix; paths are given from the folder. And as JSON.
QStringList findingLines(const IconCheck &check, const QString &folder);
QJsonArray findingsJson(const IconCheck &check);

/// The files of a project and what becomes of each.
void printProjectFiles(Console &console, const QList<ProjectFile> &files);
QJsonArray projectFilesJson(const QList<ProjectFile> &files);
QJsonArray projectsJson(const QList<RecognizedProject> &projects);

} // namespace lumora
