// SPDX-License-Identifier: MIT
#pragma once

#include "TodayArguments.h"
#include "cli/console/Console.h"
#include "foundation/ExportFolder.h"
#include "icons/project/ProjectPlan.h"

#include <QString>
#include <QStringList>

namespace lumora
{

struct IconExport;
struct OutputPlace;

/// What `icons` was asked for with sets of today among the platforms.
struct TodayRun
{
    const TodayArguments &arguments;
    QString source; ///< a path, "-", or empty for the built-in picture
    QStringList platforms;
    const OutputPlace &place;
};

/// Writes the sets, the classic ones among the platforms first, and reads them back.
ExitStatus writeTodaySets(Console &console, const TodayRun &run);

/// What `icons --into` was asked for.
struct IntoRun
{
    const TodayArguments &arguments;
    QString source;
    QString folder;
    ProjectOptions options;
    bool dryRun = false;
};

/// Writes the icons of the projects in a folder, or only says what it would write.
ExitStatus writeIntoProjects(Console &console, const IntoRun &run);

/// Judges the icons in a folder.
ExitStatus checkIconFolder(Console &console, const QString &folder);

} // namespace lumora
