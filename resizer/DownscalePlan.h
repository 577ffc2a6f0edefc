// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QStringList>

#include <vector>

namespace lumora
{

/// Whether a run may replace the very files it reads.
enum class SourceReplacement { Refuse, Allow };

/// What a run over files and folders named by the user is going to do.
struct DownscalePlan
{
    QStringList sources;           ///< absolute paths, each file once, in the order given
    std::vector<Failure> failures; ///< what is left out, and why
};

/// Gathers the pictures: a folder stands for every marked picture in it and below, a file for itself. Left out are
/// files without a marker or with another extension, folders without any, and, unless allowed, files whose half would
/// replace one of the files named or found.
DownscalePlan planDownscaling(const QStringList &filesAndFolders, const QString &destination,
                              SourceReplacement replacement);

} // namespace lumora
