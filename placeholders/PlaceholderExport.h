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

/// One picture of a run as it was written, or not.
struct PlaceholderFile
{
    QString path;
    QSize size; ///< in pixels
    qint64 bytes = 0;
    Outcome outcome = Done{};
};

/// What a run of the placeholder generator did.
struct PlaceholderRun
{
    ExportFolder folder;
    std::optional<Failure> folderFailure; ///< the folder could not be made
    std::vector<PlaceholderFile> files;
};

/// Called after each picture with how many of all are done. Answers whether to go on.
using PlaceholderWritten = std::function<bool(qsizetype done, qsizetype total)>;

/// Makes a fresh folder "placeholders" in the destination and writes the pictures into it, in order, each under the
/// name that its size gives it. Goes on where a folder or file cannot be written. All cores work on each picture, with
/// a few megabytes of memory besides the compressed file; the bytes do not depend on their number.
PlaceholderRun savePlaceholders(const std::vector<Placeholder> &pictures, const QString &destination,
                                const PlaceholderWritten &written = {});

/// The same into a folder that is there.
PlaceholderRun savePlaceholders(const std::vector<Placeholder> &pictures, const ExportFolder &folder,
                                const PlaceholderWritten &written = {});

} // namespace lumora
