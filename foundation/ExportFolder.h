// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QString>

namespace lumora
{

/// Where one export run writes.
struct ExportFolder
{
    QString path;           ///< a path at which nothing existed when it was chosen
    bool nameTaken = false; ///< true when the plain name was in use and a number had to be appended

    /// The folder's own name, as the user reads it.
    QString name() const;

    bool operator==(const ExportFolder &) const = default;
};

/// Makes a fresh folder for one run, without missing parents: `destination`/`baseName`, or the first of baseName_1,
/// baseName_2, ... at which neither a file, a folder nor a link (even a broken one) exists. No two runs get the same
/// one, at whatever moment they ask. Logs "Folder exists!" when the plain name is taken, "Folder error: ..." when the
/// folder cannot be made; the failure's subject is the folder's path then.
Result<ExportFolder> makeExportFolder(const QString &destination, const QString &baseName);

/// Makes the folder itself, without missing parents. `CannotCreateFolder` with the system's reason where it cannot.
Outcome createFolder(const QString &path);

/// Makes the folder and every parent that is missing. A folder that is there already is as good.
Outcome createFolderWithParents(const QString &path);

} // namespace lumora
