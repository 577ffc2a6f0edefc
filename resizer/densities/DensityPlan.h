// SPDX-License-Identifier: MIT
#pragma once

#include "DensityLayout.h"
#include "foundation/Result.h"
#include "foundation/StoppableRead.h"
#include "foundation/WholeFile.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <stop_token>
#include <vector>

namespace lumora
{

/// What happens to existing files at a target's path.
enum class ExistingFiles { Keep, Replace };

enum class ScaledFormat { AsSource, Png, WebP };

/// The sources of a run: pictures, or SVG drawings, which all densities are drawn from.
enum class SourceKind { Pictures, Drawings };

/// The user's request for a run.
struct DensityRequest
{
    const DensityLayout *layout = nullptr;
    SourceKind kind = SourceKind::Pictures;
    /// The density to scale pictures from; if empty, the largest of each picture.
    std::optional<Density> from;
    /// The densities to make; empty for the layout's usual ones below the source's. Of a drawing all are made.
    std::vector<Density> to;
    /// The destination folder, in which results get the sub-folders of their sources; empty to put them beside their
    /// sources.
    QString destination;
    ScaledFormat format = ScaledFormat::AsSource;
    ExistingFiles existing = ExistingFiles::Keep;
};

/// One picture to be written.
struct PlannedTarget
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
    /// In pixels, from its header; the batch applies the orientation. In points for a drawing.
    QSize size;
    Density density; ///< that of `size`
    SourceKind kind = SourceKind::Pictures;
    std::vector<PlannedTarget> pictures;
};

struct DensityPlan
{
    std::vector<PlannedSource> sources; ///< sorted by path
    std::vector<Failure> failures;      ///< files that are left out, with the reason
};

/// The most files that one plan may find.
inline constexpr std::size_t mostDensityFiles = 20'000;

/// The number of files that the plan writes.
qsizetype plannedFiles(const DensityPlan &plan);

/// Searches the folders and all folders in them (not hidden entries and links to folders) for pictures of the layout,
/// takes the files, and plans what to make of them; writes nothing. PNG and WebP files are sources, JPEG files where
/// another format is wanted, SVG files where drawings are wanted or where they are named themselves. A target is never
/// a source, whatever the spelling of its path, and two sources never have the same target. Refuses Android's
/// stretchable pictures (.9.png), since their border marks in whole pixels where to stretch. If it is stopped, the plan
/// is incomplete.
DensityPlan planDensities(const QStringList &paths, const DensityRequest &request, const std::stop_token &stop = {},
                          const ReadFile &read = readWholeFile);

/// The files among the paths that the plan neither reads nor writes nor refuses, such as a picture of the smallest
/// density. A person who chose them one by one wants to know; a command line with a pattern does not.
std::vector<Failure> filesWithoutUse(const QStringList &paths, const DensityPlan &plan);

} // namespace lumora
