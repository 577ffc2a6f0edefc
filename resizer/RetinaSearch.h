// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QStringList>

#include <vector>

namespace lumora
{

/// The result of searching a folder.
struct RetinaSearch
{
    QStringList files;             ///< every accepted file, absolute, sorted by path
    std::vector<Failure> failures; ///< folders that could not be read
};

/// Searches the folder and all folders in it for files that `isDoubleResolution` accepts. Skips hidden entries and
/// links to folders.
RetinaSearch findDoubleResolution(const QString &folder);

} // namespace lumora
