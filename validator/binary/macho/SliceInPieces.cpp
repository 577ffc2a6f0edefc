// SPDX-License-Identifier: MIT
#include "SliceInPieces.h"

#include <algorithm>

namespace lumora
{

namespace
{

/// The ranges in their order, those that touch as one.
QList<FileRange> merged(QList<FileRange> ranges)
{
    std::ranges::sort(ranges, {}, &FileRange::offset);
    QList<FileRange> merged;
    for (const FileRange &range : std::as_const(ranges)) {
        if (range.size == 0)
            continue;
        if (merged.isEmpty() || merged.constLast().offset + merged.constLast().size < range.offset) {
            merged += range;
        } else {
            FileRange &last = merged.last();
            last.size = qMax(last.size, range.offset + range.size - last.offset);
        }
    }
    return merged;
}

bool overlap(const FileRange &one, const FileRange &other)
{
    return one.offset < other.offset + other.size && other.offset < one.offset + one.size;
}

/// The part of the range inside the slice.
FileRange clipped(const FileRange &range, quint64 sliceSize)
{
    const quint64 offset = qMin(range.offset, sliceSize);
    return {offset, qMin(range.size, sliceSize - offset)};
}

} // namespace

QByteArrayView BinaryInPieces::SliceInPieces::slice() const
{
    return m_bytes.bytes().sliced(static_cast<qsizetype>(m_range.offset), static_cast<qsizetype>(m_range.size));
}

void BinaryInPieces::SliceInPieces::take(quint64 offset, QByteArrayView piece)
{
    const quint64 end = m_range.offset + m_range.size;
    if (offset >= end || offset + static_cast<quint64>(piece.size()) <= m_range.offset)
        return;
    if (offset < m_range.offset) {
        piece = piece.sliced(static_cast<qsizetype>(m_range.offset - offset));
        offset = m_range.offset;
    }
    piece.truncate(static_cast<qsizetype>(qMin(static_cast<quint64>(piece.size()), end - offset)));
    offset -= m_range.offset;
    if (!m_isPlanned)
        keepLayout(offset, piece);
    if (!m_isPlanned)
        return;
    keepNames(offset, piece);
    keep(m_signature, offset, piece, m_room.signatures);
    if (m_pages)
        m_pages->add(piece);
}

void BinaryInPieces::SliceInPieces::keepLayout(quint64 offset, QByteArrayView piece)
{
    const quint64 taken = offset + static_cast<quint64>(piece.size());
    const auto keepPart = [&] {
        const quint64 count = qMin(taken, m_layoutSize) - qMin(offset, m_layoutSize);
        m_bytes.write(m_range.offset + offset, piece.first(static_cast<qsizetype>(count)));
    };
    keepPart();
    if (offset < sliceHeaderSize && taken >= sliceHeaderSize) {
        const quint64 wanted = qMax(sliceHeaderSize, clipped({0, sliceLayoutSize(slice())}, m_range.size).size);
        m_layoutSize = qMin(wanted, sliceHeaderSize + m_room.names);
        m_room.names -= m_layoutSize - sliceHeaderSize;
        m_lacksNames = m_layoutSize < wanted;
        keepPart();
    }
    if (taken >= m_layoutSize)
        plan(offset);
}

void BinaryInPieces::SliceInPieces::plan(quint64 offset)
{
    m_isPlanned = true;
    const auto layout = readSliceLayout(slice(), m_limits);
    if (!layout)
        return;
    QList<FileRange> ranges(layout->places.bindings.cbegin(), layout->places.bindings.cend());
    if (layout->places.chainedFixups)
        ranges += *layout->places.chainedFixups;
    for (const BinarySegment &segment : layout->facts.segments) {
        for (const BinarySection &section : segment.sections) {
            if (!layout->facts.isEncrypted() && hasObjectiveCNames(section))
                ranges += {section.offset, qMin(section.size, static_cast<quint64>(m_limits.nameBytes))};
        }
    }
    for (FileRange &range : ranges)
        range = clipped(range, m_range.size);
    m_names = merged(std::move(ranges));
    if (layout->places.symbolTable)
        m_symbols.emplace(*layout->places.symbolTable, symbolEntrySize(layout->facts.is64Bit), m_range.size, m_limits);
    m_order = layout->order;
    const auto sharesSymbols = [this](const FileRange &range) { return overlap(range, m_symbols->symbols()); };
    m_symbolsAreAlone = m_symbols && !sharesSymbols({0, m_layoutSize}) && !sharesSymbols(m_symbols->names()) &&
                        std::ranges::none_of(m_names, sharesSymbols);
    const auto &signature = layout->facts.codeSignature;
    if (!signature || !ByteReader(slice(), m_order).holds(signature->offset, signature->size))
        return;
    m_signature = *signature;
    m_symbolsAreAlone = m_symbolsAreAlone && !sharesSymbols(m_signature);
    m_pages.emplace(signature->offset);
    // The pieces before this one are kept as a whole, since they hold the load commands.
    m_pages->add(slice().first(static_cast<qsizetype>(offset)));
}

void BinaryInPieces::SliceInPieces::keep(const FileRange &range, quint64 offset, QByteArrayView piece, quint64 &room)
{
    const quint64 begin = qMax(offset, range.offset);
    const quint64 end = qMin(offset + static_cast<quint64>(piece.size()), range.offset + range.size);
    if (begin >= end)
        return;
    const quint64 kept = qMin(end - begin, room);
    m_lacksNames = m_lacksNames || kept < end - begin;
    room -= kept;
    m_bytes.write(m_range.offset + begin,
                  piece.sliced(static_cast<qsizetype>(begin - offset), static_cast<qsizetype>(kept)));
}

void BinaryInPieces::SliceInPieces::keepNames(quint64 offset, QByteArrayView piece)
{
    const quint64 end = offset + static_cast<quint64>(piece.size());
    while (m_nextNames < m_names.size() && m_names[m_nextNames].offset + m_names[m_nextNames].size <= offset)
        ++m_nextNames;
    for (qsizetype i = m_nextNames; i < m_names.size() && m_names[i].offset < end; ++i)
        keep(m_names[i], offset, piece, m_room.names);
    if (m_symbols)
        keepSymbols(offset, piece);
}

void BinaryInPieces::SliceInPieces::keepSymbols(quint64 offset, QByteArrayView piece)
{
    const quint64 end = offset + static_cast<quint64>(piece.size());
    const FileRange &table = m_symbols->symbols();
    if (offset < table.offset + table.size && end > table.offset) {
        keep(table, offset, piece, m_room.names);
        for (const FileRange &unused : m_symbols->look(ByteReader(slice(), m_order), end)) {
            if (m_symbolsAreAlone)
                m_room.names += m_bytes.release(m_range.offset + unused.offset, unused.size);
        }
    }
    const quint64 page = SparseBytes::pageSize();
    const FileRange &names = m_symbols->names();
    quint64 at = qMax(offset, names.offset);
    const quint64 namesEnd = qMin(end, names.offset + names.size);
    while (at < namesEnd) {
        const quint64 pageEnd = (at / page + 1) * page;
        const quint64 next = qMin(pageEnd, namesEnd);
        if (m_symbols->isWanted(at)) {
            keep({at, next - at}, offset, piece, m_room.names);
            if (next == pageEnd) {
                const quint64 begin = qMax(pageEnd - page, names.offset);
                m_symbols->endPage(
                    begin, slice().sliced(static_cast<qsizetype>(begin), static_cast<qsizetype>(pageEnd - begin)));
            }
        }
        at = next;
    }
}

} // namespace lumora
