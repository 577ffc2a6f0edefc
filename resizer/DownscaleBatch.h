// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

namespace lumora
{

/// One file's way through the down-scaler.
struct DownscaledFile
{
    QString source;
    QString target; ///< the path written to
    QSize size;     ///< of the written picture, in pixels
    qint64 bytes = 0;
    Outcome outcome = Done{};
};

/// One picture to be halved, and where its half goes.
struct DownscaleJob
{
    QString source;
    QString target;

    bool operator==(const DownscaleJob &) const = default;
};

/// Where a source's half goes: its name without markers, in the destination folder.
QString downscaledPath(const QString &source, const QString &destination);

/// What would become of a file, judged by its header: a failure as the batch would meet it, or the path and the size
/// that would be written. Writes nothing; damage behind the header shows only in the batch.
DownscaledFile foreseenHalf(const DownscaleJob &job);

/// Called once for each file of the batch in their order, `index` counted from 0, whether it succeeded or failed.
/// Returns whether the batch goes on.
using FileDownscaled = std::function<bool(qsizetype index, const DownscaledFile &file)>;

/// Halves every file of `paths` into the destination folder, replacing what is there under the same names. A file
/// that cannot be read or written is reported as such and the batch goes on.
///
/// Several files are in work at once, with memory bounded whatever their number and size, but the result is that of one
/// after another: files are written and reported in order, on the calling thread, and a source that an earlier file of
/// the batch replaces is read after that.
void createImagesFromDataPaths(const QStringList &paths, const QString &destination, const FileDownscaled &downscaled);

/// The same with a target of its own for each file. Folders that are missing on the way to it are made.
void downscale(const QList<DownscaleJob> &jobs, const FileDownscaled &downscaled);

} // namespace lumora
