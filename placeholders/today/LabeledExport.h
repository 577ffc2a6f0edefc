// SPDX-License-Identifier: MIT
#pragma once

#include "LabeledPicture.h"
#include "foundation/Result.h"
#include "placeholders/PlaceholderExport.h"

#include <optional>
#include <vector>

namespace lumora
{

enum class LabeledFormat { Png, WebP, Svg };

struct LabeledOptions
{
    LabeledFormat format = LabeledFormat::Png;
    /// The quality of WebP, 0 to 100; without loss if empty.
    std::optional<int> webpQuality;
};

/// The name of the file, "placeholder_800x800@2x.webp".
QString labeledFileName(const ListedSize &size, LabeledFormat format);

/// Makes a new folder "placeholders" in the destination and writes the pictures into it, as `savePlaceholders` does.
PlaceholderRun saveLabeledPictures(const std::vector<ListedSize> &sizes, const PictureLook &look,
                                   const LabeledOptions &options, const QString &destination,
                                   const PlaceholderWritten &written = {});

/// The same into an existing folder.
PlaceholderRun saveLabeledPictures(const std::vector<ListedSize> &sizes, const PictureLook &look,
                                   const LabeledOptions &options, const ExportFolder &folder,
                                   const PlaceholderWritten &written = {});

} // namespace lumora
