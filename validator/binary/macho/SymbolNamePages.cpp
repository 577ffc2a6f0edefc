// SPDX-License-Identifier: MIT
#include "SymbolNamePages.h"

#include "validator/binary/SparseBytes.h"

namespace lumora
{

SymbolNamePages::SymbolNamePages(const SymbolTable &table, quint64 entrySize, quint64 sliceSize,
                                 const BinaryLimits &limits)
    : m_entrySize(entrySize), m_pageSize(SparseBytes::pageSize()),
      m_longestRun(static_cast<quint64>(limits.nameLength) / m_pageSize + 1)
{
    const auto clipped = [sliceSize](quint64 offset, quint64 size) {
        const quint64 begin = qMin(offset, sliceSize);
        return FileRange{begin, qMin(size, sliceSize - begin)};
    };
    const quint64 count = qMin<quint64>(table.symbolCount, static_cast<quint64>(limits.symbols));
    m_symbols = clipped(table.symbolOffset, count * entrySize);
    m_names = clipped(table.nameOffset, table.nameSize);
    // All linkers write the names behind the symbols.
    m_wantsAll = m_names.offset < m_symbols.offset + m_symbols.size;
    m_next = m_unused = m_symbols.offset;
    if (!m_wantsAll && m_names.size > 0)
        m_marked.resize(pageOf(m_names.offset + m_names.size - 1) + 1);
}

QList<FileRange> SymbolNamePages::look(const ByteReader &slice, quint64 end)
{
    QList<FileRange> unused;
    const auto endUnused = [&] {
        if (m_next > m_unused)
            unused += FileRange{m_unused, m_next - m_unused};
    };
    const quint64 last = qMin(end, m_symbols.offset + m_symbols.size);
    for (; m_next + m_entrySize <= last; m_next += m_entrySize) {
        if (!isExternalSymbol(*slice.u8(m_next + 4)))
            continue;
        endUnused();
        m_unused = m_next + m_entrySize;
        const quint64 name = *slice.u32(m_next);
        if (!m_wantsAll && name < m_names.size)
            m_marked[pageOf(m_names.offset + name)] = true;
    }
    endUnused();
    // The rest of a page may follow with the next piece; only whole pages can be given back.
    m_unused = qMax(m_unused, m_next / m_pageSize * m_pageSize);
    return unused;
}

bool SymbolNamePages::isWanted(quint64 place) const
{
    return m_wantsAll || m_marked[pageOf(place)] || pageOf(place) == m_continued;
}

void SymbolNamePages::endPage(quint64 place, QByteArrayView page)
{
    const quint64 number = pageOf(place);
    const bool isMarked = m_wantsAll || m_marked[number];
    m_run = isMarked ? 0 : m_run + 1;
    const bool continues = isMarked ? !page.endsWith('\0') : !page.contains('\0');
    m_continued = continues && m_run < m_longestRun ? number + 1 : ~quint64{0};
}

} // namespace lumora
