// SPDX-License-Identifier: MIT
#pragma once

#include "validator/binary/ByteReader.h"

#include <QByteArray>
#include <QHash>
#include <QList>

#include <optional>

namespace lumora
{

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

    /// Empty when the bytes are not such a container.
    static std::optional<BomStore> open(QByteArrayView bytes);

    bool holds(const QByteArray &name) const { return m_names.contains(name); }
    /// The block with the name; empty when there is none, or it is outside the file.
    QByteArrayView named(const QByteArray &name) const { return block(m_names.value(name)); }
    /// All pairs of a tree in the order of its leaves; empty when there is no such tree.
    Pairs tree(const QByteArray &name) const;

private:
    explicit BomStore(QByteArrayView bytes) : m_file(bytes, ByteOrder::Big) {}

    QByteArrayView block(quint32 number) const;

    ByteReader m_file;
    quint64 m_indexOffset = 0;
    quint32 m_blockCount = 0;
    QHash<QByteArray, quint32> m_names;
};

} // namespace lumora
