// SPDX-License-Identifier: MIT
#pragma once

#include "IconFinding.h"
#include "foundation/Result.h"

#include <QString>

namespace lumora
{

/// Judges every icon catalogue in a folder and below it: asset catalogues and layer stacks, Icon Composer bundles,
/// Android resources, web manifests, hicolor trees, Windows assets, .ico and .icns files. Folders of tools and of build
/// products (hidden ones, node_modules, Pods, build) are passed over, links not followed. Fails where the folder is
/// none or cannot be read; a folder without any icons gives a check that looked at nothing.
Result<IconCheck> checkIcons(const QString &folder);

} // namespace lumora
