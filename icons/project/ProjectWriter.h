// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "icons/today/FilePlan.h"
#include "icons/today/TodayExport.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace lumora
{

/// What writing changes about a file of a project.
enum class FileChange { New, Replaced, Unchanged, Removed };

/// A file of a project.
struct ProjectFile
{
    QString path; ///< below the project's folder
    FileChange change = FileChange::New;
    qint64 bytes = 0;  ///< length of the new content
    QByteArray before; ///< the old content of a file that is replaced or removed
    QByteArray after;
};

/// Compares every file of a plan with the existing one. Fails with `LeadsOutside` if a file is a link out of the
/// folder, or lies behind such a link; with `IsFolder` or `NotAFolder` if a folder is in the place of a file or a file
/// in the place of a folder; with `TooLarge` if memory runs out; with `Stopped` if `progress` stops the run, which
/// happens between files.
Result<QList<ProjectFile>> compareWithProject(const QString &root, const FilePlan &plan, const Motifs &motifs,
                                              const FileProgress &progress);

/// Writes the files that are new or differ, each as a whole. If a file cannot be written, or if `progress` stops the
/// run
/// (`Stopped`), the files before it get their old content back, and new files and folders are removed.
Outcome writeIntoProject(const QString &root, const QList<ProjectFile> &files, const FileProgress &progress);

} // namespace lumora
