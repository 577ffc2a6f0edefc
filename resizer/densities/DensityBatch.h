// SPDX-License-Identifier: MIT
#pragma once

#include "DensityPlan.h"

#include <functional>

namespace lumora
{

/// How a batch compresses its WebP pictures; see `WebPOptions`.
struct DensityBatchOptions
{
    std::optional<int> webpQuality;
    ExistingFiles existing = ExistingFiles::Keep;
    /// Ends the wait for a source that does not answer; such sources fail with `Stopped`. Not the batch itself.
    std::stop_token stop = {};
    ReadFile read = readWholeFile;
};

/// The result of one planned picture.
struct ScaledFile
{
    QString source;
    QString target;
    QSize size; ///< of the written picture, in pixels
    bool rounded = false;
    qint64 bytes = 0;
    Outcome outcome = Done{};
};

/// Called with the pictures of source number `index` (from 0), once for each source, in order. Returns whether the
/// batch continues. If it does not, no further source begins, but those in work are finished and reported, too.
using SourceScaled = std::function<bool(qsizetype index, const std::vector<ScaledFile> &files)>;

/// Writes the planned pictures and makes missing folders. Each source is read once; several are in work at the same
/// time, with bounded memory. A file that has appeared at a target's path since the plan was made is not replaced
/// unless the options allow it.
void scaleDensities(const DensityPlan &plan, const DensityBatchOptions &options, const SourceScaled &scaled);

} // namespace lumora
