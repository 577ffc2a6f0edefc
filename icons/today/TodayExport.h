// SPDX-License-Identifier: MIT
#pragma once

#include "FilePlan.h"
#include "SetPlans.h"
#include "TodaySources.h"
#include "foundation/Result.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace lumora
{

class Motifs;
class PictureWorkshop;

/// One written file of a set.
struct TodayFile
{
    QString path;  ///< whole
    int width = 0; ///< of a picture, or of the largest in an icon file; 0 for any other file
    int height = 0;
    qint64 bytes = 0; ///< length of the file, 0 if it was not written
    std::optional<Failure> failure;
};

/// The result of an export.
struct TodayExport
{
    QString folder;
    QList<TodayFile> files;
    QList<Derived> derived;
    bool isStopped = false; ///< by the progress callback; the files written before are whole

    /// Every failure, in the order of events.
    QList<Failure> failures() const;
};

/// Called before each file is written, with its number from 1, the count and its path. Returns whether to go on.
using FileProgress = std::function<bool(qsizetype, qsizetype, const QString &)>;

/// The files of these sets, each below its own folder; nothing is drawn or written. Fails as `planSet` does; `detail`
/// names the set that forbids transparency.
Result<FilePlan> planSets(const QList<TodaySet> &sets, const Motifs &motifs, const SetOptions &options);

/// Writes the plan's files below an existing folder and makes the folders between. Each file is replaced as a whole. A
/// file that cannot be written is recorded, and the others follow. Blocks until done; works on all cores.
TodayExport writePlan(const FilePlan &plan, const Motifs &motifs, const QString &folder, const FileProgress &progress);

/// The bytes of a planned file. Fails with `TooLarge` if memory runs out; its path is the subject.
Result<QByteArray> plannedBytes(const PlannedFile &file, PictureWorkshop &workshop);

/// Every recipe of the plan; some are listed several times.
std::vector<PictureRecipe> recipesOf(const FilePlan &plan);

} // namespace lumora
