// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "foundation/StoppableRead.h"

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

/// One picture to be halved, and the path of its half.
struct DownscaleJob
{
    QString source;
    QString target;

    bool operator==(const DownscaleJob &) const = default;
};

/// The path of a source's half: its name without markers, in the destination folder.
QString downscaledPath(const QString &source, const QString &destination);

/// The result that the batch would have for a file, as far as its header shows: the failure, or the path and size that
/// would be written. Writes nothing; damage behind the header shows only in the batch.
DownscaledFile foreseenHalf(const DownscaleJob &job);

/// Called once for each file of the batch in order, whether it succeeded or failed; `index` counts from 0. Returns
/// whether the batch continues.
using FileDownscaled = std::function<bool(qsizetype index, const DownscaledFile &file)>;

/// How a batch reads its sources.
struct BatchSource
{
    /// Reads the file; by default from the disk, and only regular files of at most `largestPictureFile` bytes.
    ReadSource read;
    /// Ends the batch before a source that does not answer.
    std::stop_token stop = {};
};

/// Halves every file of `paths` into the destination folder, replacing what is there under the same names. A file that
/// cannot be read or written is reported, and the batch continues.
///
/// Several files are in work at once, with bounded memory, but the result is the same as for one after another: files
/// are written and reported in order, on the calling thread, and a source that an earlier file of the batch replaces is
/// read after that.
void createImagesFromDataPaths(const QStringList &paths, const QString &destination, const FileDownscaled &downscaled,
                               const BatchSource &source = {});

/// The same with a target for each file. Missing parent folders are made.
void downscale(const QList<DownscaleJob> &jobs, const FileDownscaled &downscaled);

} // namespace lumora
