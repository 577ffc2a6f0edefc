// SPDX-License-Identifier: MIT
#pragma once

#include "IconFinding.h"
#include "foundation/Result.h"
#include "icons/today/TodaySet.h"

#include <QString>

namespace lumora
{

/// Judges every icon catalogue in a folder and below it: asset catalogues and layer stacks, Icon Composer bundles,
/// Android resources, web manifests, hicolor trees, Windows assets, .ico and .icns files; and the icons that the
/// projects in the folder name in their settings. Folders of tools and of build products (hidden ones, node_modules,
/// Pods, build) are skipped, links are not followed. Fails if the folder does not exist or cannot be read. For a folder
/// without icons the list of checked paths is empty.
Result<IconCheck> checkIcons(const QString &folder);

/// Reads back the sets that were written into a folder. A set whose own folder is missing is left out: the export has
/// named that failure.
IconCheck checkSets(const QString &folder, const QList<TodaySet> &sets);

} // namespace lumora
