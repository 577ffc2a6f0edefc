// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// Where one export run writes.
struct ExportFolder
{
    QString path;           ///< a path at which nothing existed when it was chosen
    bool nameTaken = false; ///< true when the plain name was in use and a number had to be appended

    /// The folder's own name, as told to the user.
    QString name() const;

    bool operator==(const ExportFolder &) const = default;
};

/// Chooses a fresh folder for one run: `destination`/`baseName`, or the first of baseName_1, baseName_2, ... at which
/// neither a file, a folder nor a link (even a broken one) exists. Only looks; makes nothing. Logs "Folder exists!"
/// when the plain name is taken.
ExportFolder freshExportFolder(const QString &destination, const QString &baseName);

/// Makes the folder itself, without missing parents. On failure answers the system's description of it, else an empty
/// string.
QString createFolder(const QString &path);

} // namespace lumora
