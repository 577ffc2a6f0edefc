// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace lumora
{

/// Whether the path is a folder. Callable on any thread; it may block, for instance on a share that does not answer.
using FolderProbe = std::function<bool(const QString &path)>;

bool isFolderOnDisk(const QString &path);

/// Where a chooser opens: the wanted folder, or the user's documents when none is wanted; if that does not exist, the
/// nearest existing folder above it. The home folder if there is no answer within `readPatience`. Never empty, which a
/// dialog would take as the process's current folder.
QString existingStartFolder(const QString &wanted, const FolderProbe &isFolder = isFolderOnDisk);

} // namespace lumora
