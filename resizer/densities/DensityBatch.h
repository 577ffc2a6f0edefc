// SPDX-License-Identifier: MIT
#pragma once

#include "DensityPlan.h"

#include <functional>

namespace lumora
{

/// How a batch packs its WebP pictures; see `WebPOptions`.
struct DensityBatchOptions
{
    std::optional<int> webpQuality;
    ExistingFiles existing = ExistingFiles::Keep;
};

/// What became of one planned picture.
struct ScaledFile
{
    QString source;
    QString target;
    QSize size; ///< of the written picture, in pixels
    bool rounded = false;
    qint64 bytes = 0;
    Outcome outcome = Done{};
};

/// Told about the pictures of source number `index` (from 0), once for each source and in their order. Answers whether
/// the batch is to go on.
using SourceScaled = std::function<bool(qsizetype index, const std::vector<ScaledFile> &files)>;

/// Writes what the plan says is written, with folders made where they are missing. Each source is read once; several
/// are in work at a time, with memory bounded whatever their number and size. A file that came to stand in a target's
/// place since the plan was made is not replaced unless the options allow it.
void scaleDensities(const DensityPlan &plan, const DensityBatchOptions &options, const SourceScaled &scaled);

} // namespace lumora
