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

/// What happens to existing files at a target's path.
enum class ExistingFiles { Keep, Replace };

enum class ScaledFormat { AsSource, Png, WebP };

/// The user's request for a run.
struct DensityRequest
{
    const DensityLayout *layout = nullptr;
    /// The density to scale from; if empty, the largest of each picture.
    std::optional<Density> from;
    /// The densities to make; empty for the layout's usual ones below the source's.
    std::vector<Density> to;
    /// The destination folder, in which results get the sub-folders of their sources; empty to put them beside their
    /// sources.
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
    /// The file exists: it is kept, or replaced if the request allows it.
    bool exists = false;
    bool written = true; ///< false if the existing file is kept
    ScaledFormat format = ScaledFormat::Png;
};

/// One source with all its targets.
struct PlannedSource
{
    QString source;
    QSize size; ///< in pixels, from its header; the batch applies the orientation
    Density density;
    std::vector<PlannedPicture> pictures;
};

struct DensityPlan
{
    std::vector<PlannedSource> sources; ///< sorted by path
    std::vector<Failure> failures;      ///< files that are left out, with the reason
};

/// Searches the folder and all folders in it (not hidden entries and links to folders) for pictures of the layout, and
/// plans what to make of them; writes nothing. PNG and WebP files are sources. A target is never a source, whatever the
/// spelling of its path, and two sources never have the same target. Refuses Android's stretchable pictures (.9.png),
/// since their border marks in whole pixels where to stretch.
DensityPlan planDensities(const QString &folder, const DensityRequest &request);

} // namespace lumora
