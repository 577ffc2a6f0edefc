// SPDX-License-Identifier: MIT
#pragma once

#include "DownscaleBatch.h"
#include "foundation/Result.h"

#include <QStringList>

#include <vector>

namespace lumora
{

/// Whether a run may replace existing files, including its own sources.
enum class FileReplacement { Refuse, Allow };

/// Whether all halves go into one folder, or those of a searched folder into the same sub-folders as their sources.
enum class TreeLayout { Flat, Kept };

/// The user's request.
struct DownscaleRequest
{
    QStringList filesAndFolders;
    QString destination; ///< absolute
    FileReplacement replacement = FileReplacement::Refuse;
    TreeLayout layout = TreeLayout::Flat;
};

/// The plan of a run over files and folders that the user named.
struct DownscalePlan
{
    QList<DownscaleJob> jobs;      ///< absolute paths, each file once, in the order given
    std::vector<Failure> failures; ///< why files are left out; and `NameTaken` for files that get another name
};

/// Collects the pictures: of a folder every marked picture in it and its sub-folders, of a file the file itself. Leaves
/// out files without a marker or with another extension, folders without pictures, and, unless allowed, files whose
/// half would replace an existing file. If the halves of two files have the same name, the later half gets a number
/// ("a_1.png") and is listed among the failures, so that neither is lost or mistaken for the other.
DownscalePlan planDownscaling(const DownscaleRequest &request);

} // namespace lumora
