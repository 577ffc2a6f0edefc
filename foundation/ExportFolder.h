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

/// Makes a new folder for one run: `destination`/`baseName`, or the first of baseName_1, baseName_2, ... at which no
/// file, folder or link (not even a broken one) exists. Missing parents are not made. Two runs never get the same
/// folder, even if they ask at the same moment. Logs "Folder exists!" when the plain name is taken, and "Folder error:
/// ..." when the folder cannot be made; the failure's subject is then the folder's path.
Result<ExportFolder> makeExportFolder(const QString &destination, const QString &baseName);

/// Makes the folder itself, but no missing parents. Fails with `CannotCreateFolder` and the system's reason.
Outcome createFolder(const QString &path);

/// Makes the folder and every missing parent. Succeeds if the folder already exists.
Outcome createFolderWithParents(const QString &path);

} // namespace lumora
