// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QStringList>

#include <vector>

namespace lumora
{

/// What a search of a folder brought.
struct RetinaSearch
{
    QStringList files;             ///< every accepted file, absolute, in the order of their paths
    std::vector<Failure> failures; ///< folders that could not be looked into
};

/// Searches the folder and all folders in it for files that `isDoubleResolution` accepts. Hidden entries and links to
/// folders are left out.
RetinaSearch findDoubleResolution(const QString &folder);

} // namespace lumora
