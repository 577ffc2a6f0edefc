// SPDX-License-Identifier: MIT
#include "PackageListing.h"

#include <climits>

namespace lumora
{

void PackageListing::reserve(qsizetype entries)
{
    m_entries.reserve(entries);
    m_byPath.reserve(entries);
}

PackageListing::Placing PackageListing::addFolder(const QList<QByteArray> &steps)
{
    if (steps == m_lastFolder)
        return Placing::Placed;
    QString path;
    for (const QByteArray &step : steps) {
        if (step.size() > NAME_MAX)
            return Placing::Skipped;
        if (!path.isEmpty())
            path += u'/';
        path += QString::fromUtf8(step);
        const auto there = m_byPath.constFind(path);
        if (there == m_byPath.cend()) {
            PackageEntry folder;
            folder.path = path;
            folder.kind = EntryKind::Folder;
            m_byPath.insert(path, m_entries.size());
            m_entries += folder;
            ++m_foldersMade;
        } else if (m_entries[*there].kind != EntryKind::Folder) {
            return Placing::Skipped;
        }
    }
    m_lastFolder = steps;
    return Placing::Placed;
}

PackageListing::Placing PackageListing::addFile(const QList<QByteArray> &steps, PackageEntry entry)
{
    if (addFolder(steps.first(steps.size() - 1)) == Placing::Skipped || steps.last().size() > NAME_MAX)
        return Placing::Skipped;
    entry.path = QString::fromUtf8(steps.join('/'));
    const auto there = m_byPath.constFind(entry.path);
    if (there == m_byPath.cend()) {
        m_byPath.insert(entry.path, m_entries.size());
        m_entries += entry;
        return Placing::Placed;
    }
    if (m_entries[*there].kind == EntryKind::Folder)
        return Placing::Skipped;
    m_hidden += std::exchange(m_entries[*there], entry);
    return Placing::Placed;
}

} // namespace lumora
