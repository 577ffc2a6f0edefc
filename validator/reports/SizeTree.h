// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/PackageContents.h"

#include <QList>
#include <QString>

namespace lumora
{

/// A file or folder of a package, with what is in it, the largest first.
struct SizeNode
{
    QString name;
    quint64 bytes = 0; ///< of a folder, all that is in it
    qsizetype files = 0;
    QList<SizeNode> parts; ///< at most `partsKept`
    qsizetype more = 0;    ///< parts that are left out

    static constexpr qsizetype partsKept = 40;
    /// Folders below this depth are not opened.
    static constexpr int depthKept = 12;
};

/// The tree of these files, which are ordered by path.
SizeNode sizeTree(const QList<PackageFile> &files);

} // namespace lumora
