// SPDX-License-Identifier: MIT
#pragma once

#include "DownscaleBatch.h"
#include "foundation/Result.h"

#include <QStringList>

#include <vector>

namespace lumora
{

/// Whether a run may replace files that are there, its own sources among them.
enum class FileReplacement { Refuse, Allow };

/// Whether all halves go into one folder, or those of a searched folder into sub-folders like those that they were
/// found in.
enum class TreeLayout { Flat, Kept };

/// What the user asks for.
struct DownscaleRequest
{
    QStringList filesAndFolders;
    QString destination; ///< absolute
    FileReplacement replacement = FileReplacement::Refuse;
    TreeLayout layout = TreeLayout::Flat;
};

/// What a run over files and folders named by the user is going to do.
struct DownscalePlan
{
    QList<DownscaleJob> jobs;      ///< absolute paths, each file once, in the order given
    std::vector<Failure> failures; ///< what is left out, and why; and `NameTaken` for what gets another name
};

/// Gathers the pictures: a folder means every marked picture in it and below, a file means itself. Left out are
/// files without a marker or with another extension, folders without any, and, unless allowed, files whose half would
/// replace a file that is there. Of two files whose halves have the same name, the later one's gets a number
/// ("a_1.png") and is named among the failures, so that neither is lost and nobody takes one for the other.
DownscalePlan planDownscaling(const DownscaleRequest &request);

} // namespace lumora
