// SPDX-License-Identifier: MIT
#include "BomStore.h"

#include <QSet>

namespace lumora
{

namespace
{

constexpr quint32 mostNames = 64;
constexpr qsizetype mostPairs = 200'000;
constexpr int deepestTree = 16;

} // namespace

std::optional<BomTables> BomTables::of(QByteArrayView head)
{
    const ByteReader file(head, ByteOrder::Big);
    if (!head.startsWith("BOMStore") || !file.holds(0, headSize))
        return std::nullopt;
    const BomTables tables{{*file.u32(16), *file.u32(20)}, {*file.u32(24), *file.u32(28)}};
    if (tables.blocks.offset < headSize || tables.names.offset < headSize)
        return std::nullopt;
    return tables;
}

std::optional<BomStore> BomStore::open(QByteArrayView bytes)
{
    const auto tables = BomTables::of(bytes);
    if (!tables)
        return std::nullopt;
    const ByteReader file(bytes, ByteOrder::Big);
    return open(file.clipped(tables->blocks.offset, tables->blocks.size),
                file.clipped(tables->names.offset, tables->names.size), [file](quint32, const FileRange &range) {
                    return file.span(range.offset, range.size).value_or(QByteArrayView());
                });
}

std::optional<BomStore> BomStore::open(QByteArrayView blockTable, QByteArrayView nameTable, BlockFinder find)
{
    const ByteReader names(nameTable, ByteOrder::Big);
    const auto nameCount = names.u32(0);
    if (blockTable.size() < 4 || !nameCount)
        return std::nullopt;
    BomStore store(blockTable, std::move(find));
    quint64 at = 4;
    for (quint32 i = 0; i < *nameCount && i < mostNames; ++i) {
        const auto number = names.u32(at);
        const auto length = names.u8(at + 4);
        const auto name = length ? names.span(at + 5, *length) : std::nullopt;
        if (!number || !name)
            return std::nullopt;
        store.m_names.insert(name->toByteArray(), *number);
        at += 5 + *length;
    }
    return store;
}

quint32 BomStore::blockCount(QByteArrayView blockTable)
{
    const quint32 stated = ByteReader(blockTable, ByteOrder::Big).u32(0).value_or(0);
    return static_cast<quint32>(qMin<qint64>(stated, (blockTable.size() - 4) / 8));
}

std::optional<FileRange> BomStore::blockRange(QByteArrayView blockTable, quint32 number)
{
    // The first block is unused.
    if (number == 0 || number >= blockCount(blockTable))
        return std::nullopt;
    const ByteReader table(blockTable, ByteOrder::Big);
    const quint64 entry = 4 + quint64{number} * 8;
    return FileRange{*table.u32(entry), *table.u32(entry + 4)};
}

QByteArrayView BomStore::block(quint32 number) const
{
    const auto range = blockRange(m_blockTable, number);
    return range ? m_find(number, *range) : QByteArrayView();
}

BomStore::Pairs BomStore::tree(const QByteArray &name) const
{
    Pairs found;
    const QByteArrayView head = named(name);
    if (!holds(name))
        return found;
    const ByteReader tree(head, ByteOrder::Big);
    if (!head.startsWith("tree") || !tree.holds(0, 12)) {
        found.whole = false;
        return found;
    }
    // Goes down to the first leaf, then from leaf to leaf.
    quint32 number = *tree.u32(8);
    int depth = 0;
    QSet<quint32> seen;
    while (number != 0) {
        const ByteReader node(block(number), ByteOrder::Big);
        const auto isLeaf = node.u16(0);
        const auto count = node.u16(2);
        const auto forward = node.u32(4);
        if (seen.contains(number) || !isLeaf || *isLeaf > 1 || !count || !forward || depth > deepestTree) {
            found.whole = false;
            return found;
        }
        seen += number;
        if (*isLeaf == 0) {
            const auto child = node.u32(12);
            found.whole = child.has_value();
            number = child.value_or(0);
            ++depth;
            continue;
        }
        for (quint64 i = 0; i < *count; ++i) {
            const auto value = node.u32(12 + i * 8);
            const auto key = node.u32(16 + i * 8);
            if (!value || !key || found.pairs.size() >= mostPairs) {
                found.whole = false;
                return found;
            }
            found.pairs += Pair{block(*key), block(*value)};
        }
        number = *forward;
    }
    return found;
}

} // namespace lumora
