// SPDX-License-Identifier: MIT
#pragma once

#include "DensityLayout.h"
#include "foundation/Result.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace lumora
{

/// What becomes of files that stand where a picture is to go.
enum class ExistingFiles { Keep, Replace };

enum class ScaledFormat { AsSource, Png, WebP };

/// What a person asks of a run.
struct DensityRequest
{
    const DensityLayout *layout = nullptr;
    /// The density to scale from; without one each picture's largest.
    std::optional<Density> from;
    /// The densities to make; empty for the layout's usual ones below the source's.
    std::vector<Density> to;
    /// Where the results go, in the same folders as their sources; empty for beside them.
    QString destination;
    ScaledFormat format = ScaledFormat::AsSource;
    ExistingFiles existing = ExistingFiles::Keep;
};

/// One picture to be written.
struct PlannedPicture
{
    QString target;
    Density density;
    QSize size; ///< in pixels
    bool rounded = false;
    /// The file exists: it is left alone, or replaced where the request allows it.
    bool exists = false;
    bool written = true; ///< false for one that is left alone
    ScaledFormat format = ScaledFormat::Png;
};

/// One source with all that is made of it.
struct PlannedSource
{
    QString source;
    QSize size; ///< in pixels, as its header has it; the batch turns what is to be turned
    Density density;
    std::vector<PlannedPicture> pictures;
};

struct DensityPlan
{
    std::vector<PlannedSource> sources; ///< in the order of their paths
    std::vector<Failure> failures;      ///< what is left out, and why
};

/// Looks through the folder and all in it (hidden entries and links to folders left out) for pictures of the layout,
/// and says what would be made of them; writes nothing. PNG and WebP files are sources. Never is a target a source, in
/// whatever way its path is spelled, nor do two sources have one target. Android's stretchable pictures (.9.png) are
/// refused: their border says in whole pixels where to stretch.
DensityPlan planDensities(const QString &folder, const DensityRequest &request);

} // namespace lumora
