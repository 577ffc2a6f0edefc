// SPDX-License-Identifier: MIT
#pragma once

#include "Placeholder.h"
#include "foundation/ExportFolder.h"
#include "foundation/Result.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace lumora
{

/// One picture of a run: written, or the failure.
struct PlaceholderFile
{
    QString path;
    QSize size;       ///< in pixels
    qint64 bytes = 0; ///< length of the file, 0 where it was not written
    Outcome outcome = Done{};
};

/// The result of a run of the placeholder generator.
struct PlaceholderRun
{
    ExportFolder folder;
    std::optional<Failure> folderFailure; ///< the folder could not be made
    std::vector<PlaceholderFile> files;
};

/// Called after each picture with the number of finished pictures and of all. Returns whether to continue.
using PlaceholderWritten = std::function<bool(qsizetype done, qsizetype total)>;

/// Makes a new folder "placeholders" in the destination and writes the pictures into it, in order, each named for its
/// size. Continues when a folder or file cannot be written. All cores work on each picture, with a few megabytes of
/// memory besides the compressed file; the bytes do not depend on the number of cores.
PlaceholderRun savePlaceholders(const std::vector<Placeholder> &pictures, const QString &destination,
                                const PlaceholderWritten &written = {});

/// The same into an existing folder.
PlaceholderRun savePlaceholders(const std::vector<Placeholder> &pictures, const ExportFolder &folder,
                                const PlaceholderWritten &written = {});

} // namespace lumora
