// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "icons/today/SetPlans.h"

#include <QString>

namespace lumora
{

/// Whether the project keeps the store's picture beside the resources.
enum class StorePicture { Kept, None };

/// Plans the icons of the Android module whose sources are in `sources` ("android/app/src", a path below `root`), for
/// its main source set or that of a flavor. The icons' names come from the manifest. Pictures of the same resource in
/// another format are added to the files to remove.
Outcome planAndroidModule(const QString &root, const QString &sources, const QString &flavor, StorePicture store,
                          const Motifs &motifs, FilePlan &plan);

/// Whether the module with these sources (an absolute path) has sources of the flavor, or names it in its build file.
bool hasFlavor(const QString &sources, const QString &flavor);

} // namespace lumora
