// SPDX-License-Identifier: MIT
#pragma once

#include "BinaryInPieces.h"
#include "SymbolNamePages.h"

namespace lumora
{

/// The memory that is left for the names and the signatures of one file.
struct BinaryInPieces::KeptRoom
{
    quint64 names = BinaryInPieces::mostNameBytes;
    quint64 signatures = BinaryInPieces::mostSignatureBytes;
};

/// One architecture of a binary in pieces.
class BinaryInPieces::SliceInPieces
{
public:
    SliceInPieces(const FileRange &range, const BinaryLimits &limits, SparseBytes &bytes, KeptRoom &room)
        : m_range(range), m_limits(limits), m_bytes(bytes), m_room(room)
    {
    }

    const FileRange &range() const { return m_range; }
    /// Takes its part of the piece at the place in the file.
    void take(quint64 offset, QByteArrayView piece);
    /// True when names were left out for want of room.
    bool lacksNames() const { return m_lacksNames; }
    /// Null until the signature's place is known, and for an unsigned slice.
    const UsualPages *pages() const { return m_pages ? &*m_pages : nullptr; }

private:
    /// The bytes of the slice that are here so far; gaps are zeros.
    QByteArrayView slice() const;
    void keepLayout(quint64 offset, QByteArrayView piece);
    void plan(quint64 offset);
    void keepNames(quint64 offset, QByteArrayView piece);
    void keepSymbols(quint64 offset, QByteArrayView piece);
    /// Keeps the range's part of a piece that begins at the offset in the slice.
    void keep(const FileRange &range, quint64 offset, QByteArrayView piece, quint64 &room);

    FileRange m_range;
    const BinaryLimits &m_limits;
    SparseBytes &m_bytes;
    KeptRoom &m_room;
    quint64 m_layoutSize = sliceHeaderSize;
    bool m_isPlanned = false;
    bool m_lacksNames = false;
    bool m_symbolsAreAlone = false; ///< nothing else that is kept shares the bytes of the symbol table
    ByteOrder m_order = ByteOrder::Little;
    QList<FileRange> m_names;  ///< disjoint ranges in the slice, in their order
    qsizetype m_nextNames = 0; ///< the first of them that does not end before the next piece
    FileRange m_signature;     ///< in the slice
    std::optional<SymbolNamePages> m_symbols;
    std::optional<UsualPages> m_pages;
};

} // namespace lumora
