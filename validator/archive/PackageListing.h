// SPDX-License-Identifier: MIT
#pragma once

#include "PackageSource.h"

#include <QByteArray>
#include <QHash>

#include <cstdint>
#include <optional>
#include <vector>

namespace lumora
{

/// The tree that unpacking an archive's entries one after the other would make, without unpacking them.
class PackageListing
{
public:
    /// Whether an entry can be placed in the tree.
    enum class Placing {
        Placed,
        Skipped, ///< the name has a file as a folder, is a folder's, or is too long for a file system
    };

    /// Makes room for that many entries at once: a list that grows by copying leaves its old room behind.
    void reserve(qsizetype entries);
    /// Places a folder at the steps, its parents first.
    Placing addFolder(const QList<QByteArray> &steps);
    /// Places a file or link at the steps, its parents first. An entry that it replaces goes to `takeHidden`.
    Placing addFile(const QList<QByteArray> &steps, PackageEntry entry);

    /// The number of folders made so far.
    std::uint64_t foldersMade() const { return m_foldersMade; }
    QList<PackageEntry> takeEntries() { return std::move(m_entries); }
    QList<PackageEntry> takeHidden() { return std::move(m_hidden); }

private:
    QList<PackageEntry> m_entries;
    QList<PackageEntry> m_hidden;
    QHash<QString, qsizetype> m_byPath; ///< indexes into `m_entries`
    QList<QByteArray> m_lastFolder;     ///< archives list a folder's files one after the other
    std::uint64_t m_foldersMade = 0;
};

} // namespace lumora
