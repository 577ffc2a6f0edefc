// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "icons/today/SetPlans.h"

#include <QString>

namespace lumora
{

/// Whether the store's picture is kept beside the resources.
enum class StorePicture { Kept, None };

/// Plans the icons of the Android module whose sources are in `sources` ("android/app/src", a path below `root`), for
/// its main source set or that of a flavor. The names are those that its manifest calls the icon by. Pictures of the
/// same resource in another format are put on the list of files to remove.
Outcome planAndroidModule(const QString &root, const QString &sources, const QString &flavor, StorePicture store,
                          const Motifs &motifs, FilePlan &plan);

/// Whether a module with these sources (a whole path) has sources of that flavor or says in its build file that there
/// is one.
bool hasFlavor(const QString &sources, const QString &flavor);

} // namespace lumora
