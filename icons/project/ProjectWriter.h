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

/// What becomes of a file in a project.
enum class FileChange { New, Replaced, Unchanged, Removed };

/// One of its files.
struct ProjectFile
{
    QString path; ///< below the project's folder
    FileChange change = FileChange::New;
    qint64 bytes = 0;  ///< length of the new content
    QByteArray before; ///< the old content of one that is replaced or removed
    QByteArray after;
};

/// Every file of a plan beside what is there. Fails with `LeadsOutside` where a link on the way to a file, or the file
/// itself, leads out of the folder, with `IsFolder` or `NotAFolder` where one is in the other's place, with `TooLarge`
/// if memory runs out.
Result<QList<ProjectFile>> compareWithProject(const QString &root, const FilePlan &plan, const Motifs &motifs);

/// Writes what is new or differs, each file as a whole. Where one cannot be written, those before it get their old
/// content back, new ones and new folders go, and the failure says why; so they do where `progress` stops the run
/// (`Stopped`).
Outcome writeIntoProject(const QString &root, const QList<ProjectFile> &files, const FileProgress &progress);

} // namespace lumora
