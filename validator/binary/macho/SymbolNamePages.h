// SPDX-License-Identifier: MIT
#pragma once

#include "MachONames.h"

#include <QByteArrayView>

#include <vector>

namespace lumora
{

/// Finds the parts of a symbol table that matter while its slice comes in pieces: the entries of external symbols, and
/// the memory pages with their names. Most symbols of a large program are local, and their names are most of the table.
class SymbolNamePages
{
public:
    SymbolNamePages(const SymbolTable &table, quint64 entrySize, quint64 sliceSize, const BinaryLimits &limits);

    /// The table, as a range in the slice.
    const FileRange &symbols() const { return m_symbols; }
    /// The names, as a range in the slice.
    const FileRange &names() const { return m_names; }

    /// Looks at the entries before the end, a place in the slice, that are new since the last call. Returns the part
    /// of the table before the next entry that has no external symbol; it need not be kept. Its size may be 0.
    QList<FileRange> look(const ByteReader &slice, quint64 end);

    /// Whether the page with this place in the slice holds a name of an external symbol, or part of one.
    bool isWanted(quint64 place) const;
    /// Call this at the end of each page of which the bytes were kept, so that a name may continue on the next.
    void endPage(quint64 place, QByteArrayView page);

private:
    quint64 pageOf(quint64 place) const { return place / m_pageSize - m_names.offset / m_pageSize; }

    FileRange m_symbols;
    FileRange m_names;
    quint64 m_entrySize;
    quint64 m_pageSize;
    quint64 m_longestRun; ///< pages
    bool m_wantsAll;
    std::vector<bool> m_marked;
    quint64 m_next;                    ///< of the next entry, in the slice
    quint64 m_unused;                  ///< start of the entries before it without an external symbol
    quint64 m_continued = ~quint64{0}; ///< the page on which a name continues
    quint64 m_run = 0;                 ///< how many pages it has filled
};

} // namespace lumora
