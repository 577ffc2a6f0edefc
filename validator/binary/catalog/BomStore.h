// SPDX-License-Identifier: MIT
#pragma once

#include "validator/binary/BinaryFacts.h"
#include "validator/binary/ByteReader.h"

#include <QByteArray>
#include <QHash>
#include <QList>

#include <functional>
#include <optional>

namespace lumora
{

/// Where a container has its table of blocks and its table of names.
struct BomTables
{
    static constexpr quint64 headSize = 32; ///< bytes at the file's start from which they are read

    FileRange blocks;
    FileRange names;

    /// Empty when the bytes are not the start of such a container.
    static std::optional<BomTables> of(QByteArrayView head);
};

/// The container of an asset catalogue: numbered blocks, some of which have names, and trees of keys and values.
class BomStore
{
public:
    struct Pair
    {
        QByteArrayView key;
        QByteArrayView value;
    };
    struct Pairs
    {
        QList<Pair> pairs;
        bool whole = true; ///< false when the tree leads out of the file or into itself, or is too large
    };
    /// The content of the block with the number, at the range; empty when there is none.
    using BlockFinder = std::function<QByteArrayView(quint32 number, const FileRange &range)>;

    /// Empty when the bytes are not such a container.
    static std::optional<BomStore> open(QByteArrayView bytes);
    /// The same for a file that is not in memory as a whole. The table of blocks must outlive the store.
    static std::optional<BomStore> open(QByteArrayView blockTable, QByteArrayView nameTable, BlockFinder find);

    /// The number of blocks in a table, and their places.
    static quint32 blockCount(QByteArrayView blockTable);
    static std::optional<FileRange> blockRange(QByteArrayView blockTable, quint32 number);

    bool holds(const QByteArray &name) const { return m_names.contains(name); }
    /// The block with the name; empty when there is none, or it is outside the file.
    QByteArrayView named(const QByteArray &name) const { return block(m_names.value(name)); }
    /// All pairs of a tree in the order of its leaves; empty when there is no such tree.
    Pairs tree(const QByteArray &name) const;

private:
    BomStore(QByteArrayView blockTable, BlockFinder find) : m_blockTable(blockTable), m_find(std::move(find)) {}

    QByteArrayView block(quint32 number) const;

    QByteArrayView m_blockTable;
    BlockFinder m_find;
    QHash<QByteArray, quint32> m_names;
};

} // namespace lumora
