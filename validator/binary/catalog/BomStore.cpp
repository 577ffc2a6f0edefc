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

std::optional<BomStore> BomStore::open(QByteArrayView bytes)
{
    BomStore store(bytes);
    const ByteReader &file = store.m_file;
    if (!bytes.startsWith("BOMStore") || !file.holds(0, 32))
        return std::nullopt;
    store.m_indexOffset = *file.u32(16);
    const quint64 namesOffset = *file.u32(24);
    const auto blockCount = file.u32(store.m_indexOffset);
    const auto nameCount = file.u32(namesOffset);
    if (!blockCount || !nameCount)
        return std::nullopt;
    store.m_blockCount = *blockCount;
    quint64 at = namesOffset + 4;
    for (quint32 i = 0; i < *nameCount && i < mostNames; ++i) {
        const auto number = file.u32(at);
        const auto length = file.u8(at + 4);
        const auto name = length ? file.span(at + 5, *length) : std::nullopt;
        if (!number || !name)
            return std::nullopt;
        store.m_names.insert(name->toByteArray(), *number);
        at += 5 + *length;
    }
    return store;
}

QByteArrayView BomStore::block(quint32 number) const
{
    // The first block is unused.
    if (number == 0 || number >= m_blockCount)
        return {};
    const quint64 entry = m_indexOffset + 4 + quint64{number} * 8;
    const auto address = m_file.u32(entry);
    const auto length = m_file.u32(entry + 4);
    if (!address || !length)
        return {};
    return m_file.span(*address, *length).value_or(QByteArrayView());
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
        if (seen.contains(number) || !isLeaf || !count || !forward || depth > deepestTree) {
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
