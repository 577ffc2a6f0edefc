// SPDX-License-Identifier: MIT
#include "CatalogInPieces.h"

#include "validator/binary/FaultList.h"

#include <algorithm>

namespace lumora
{

namespace
{

/// The longest node of a tree.
constexpr quint64 longestNode = 12 + 8 * quint64{0xFFFF};
/// The frame of a picture whose entry does not give its size; it comes behind the color profile and the like.
constexpr quint64 jpegStart = 256 << 10;

/// The part of the range in a piece that begins at the offset.
QByteArrayView partOf(const FileRange &range, quint64 offset, QByteArrayView piece)
{
    const quint64 begin = qMax(offset, range.offset);
    const quint64 end = qMin(offset + static_cast<quint64>(piece.size()), range.offset + range.size);
    if (begin >= end)
        return {};
    return piece.sliced(static_cast<qsizetype>(begin - offset), static_cast<qsizetype>(end - begin));
}

FileRange clippedTable(const FileRange &range)
{
    return {range.offset, qMin(range.size, CatalogInPieces::mostTableBytes)};
}

} // namespace

void CatalogInPieces::take(QByteArrayView bytes)
{
    if (m_taken < BomTables::headSize) {
        m_head.append(bytes.first(qMin(bytes.size(), static_cast<qsizetype>(BomTables::headSize - m_taken))));
        m_tables = BomTables::of(m_head);
    }
    if (m_tables) {
        m_blockTable += partOf(clippedTable(m_tables->blocks), m_taken, bytes);
        m_nameTable += partOf(clippedTable(m_tables->names), m_taken, bytes);
    }
    m_taken += static_cast<quint64>(bytes.size());
}

std::optional<AssetCatalog> CatalogInPieces::catalog(const Repeat &repeat)
{
    if (!m_tables || !m_room.reserve(mostKept))
        return std::nullopt;
    m_lacksBlocks = m_tables->blocks.size > mostTableBytes;
    findBlocks();
    repeat([this](QByteArrayView bytes) { takeAgain(bytes); });
    const auto store = BomStore::open(m_blockTable, m_nameTable, [this](quint32 number, const FileRange &) {
        const Kept &kept = m_kept[number];
        return m_room.bytes().sliced(kept.at, kept.size);
    });
    if (!store)
        return std::nullopt;
    auto catalog = readAssetCatalog(*store);
    if (catalog && m_lacksBlocks)
        addFault(catalog->faults, CatalogFault::TooLarge);
    return catalog;
}

void CatalogInPieces::findBlocks()
{
    const quint32 count = BomStore::blockCount(m_blockTable);
    m_kept.resize(count);
    for (quint32 number = 1; number < count; ++number) {
        const auto range = BomStore::blockRange(m_blockTable, number);
        if (range && range->size > 0 && range->offset <= m_taken && range->size <= m_taken - range->offset)
            m_blocks.push_back({number, *range});
    }
    std::sort(m_blocks.begin(), m_blocks.end(),
              [](const Block &one, const Block &other) { return one.range.offset < other.range.offset; });
}

void CatalogInPieces::takeAgain(QByteArrayView bytes)
{
    const quint64 end = m_again + static_cast<quint64>(bytes.size());
    for (; m_next < m_blocks.size() && m_blocks[m_next].range.offset < end; ++m_next)
        m_open.push_back(m_blocks[m_next]);
    std::vector<Block> open;
    for (const Block &block : m_open) {
        keep(block, partOf(block.range, m_again, bytes));
        if (m_kept[block.number].size < m_kept[block.number].wanted)
            open.push_back(block);
    }
    m_open = std::move(open);
    m_again = end;
}

void CatalogInPieces::keep(const Block &block, QByteArrayView piece)
{
    Kept &kept = m_kept[block.number];
    const auto take = [&] {
        const auto count = qMin<qsizetype>(piece.size(), kept.wanted - kept.size);
        if (!addTo(kept, piece.first(count)))
            return;
        piece = piece.sliced(count);
    };
    const auto first = static_cast<quint32>(qMin(block.range.size, renditionHeadSize));
    if (kept.size == 0)
        kept.wanted = first;
    if (kept.size < first) {
        take();
        if (kept.size == first)
            decide(block, kept);
    }
    take();
}

/// Adds the bytes to those of the block. If there is no room, no more of it is wanted.
bool CatalogInPieces::addTo(Kept &kept, QByteArrayView bytes)
{
    const auto count = static_cast<quint64>(bytes.size());
    const bool isLast = kept.at + kept.size == m_used;
    const quint64 needed = isLast ? count : kept.size + count;
    if (needed > mostKept - m_used) {
        m_lacksBlocks = true;
        kept.wanted = kept.size;
        return false;
    }
    if (!isLast) {
        // Another block has come between.
        const auto before = m_room.bytes().sliced(kept.at, kept.size);
        m_room.write(m_used, before);
        kept.at = static_cast<quint32>(m_used);
        m_used += kept.size;
    }
    m_room.write(m_used, bytes);
    m_used += count;
    kept.size += static_cast<quint32>(count);
    return true;
}

/// How much of the block is wanted, from its first bytes.
void CatalogInPieces::decide(const Block &block, Kept &kept)
{
    if (kept.size < renditionHeadSize)
        return;
    const QByteArrayView start = m_room.bytes().sliced(kept.at, kept.size);
    const quint64 wanted = isRendition(start) ? renditionSizeToPixels(start, jpegStart) : longestNode;
    kept.wanted = static_cast<quint32>(qMin(block.range.size, wanted));
}

} // namespace lumora
