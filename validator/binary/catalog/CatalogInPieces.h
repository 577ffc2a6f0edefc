// SPDX-License-Identifier: MIT
#pragma once

#include "AssetCatalog.h"
#include "BomStore.h"

#include "validator/binary/SparseBytes.h"

#include <functional>
#include <optional>
#include <vector>

namespace lumora
{

/// Reads a long asset catalogue that comes in pieces, twice: its table of blocks is usually at its end, so only the
/// second time it is known what to keep. Of a picture that is the part before its pixels. The memory is bounded
/// whatever the file says: beyond `mostKept` and `mostTableBytes` the catalogue has a fault.
class CatalogInPieces
{
public:
    static constexpr quint64 mostKept = quint64{24} << 20;
    static constexpr quint64 mostTableBytes = quint64{4} << 20; ///< half a million blocks

    /// The next bytes, the first time.
    void take(QByteArrayView bytes);

    /// Passes the same bytes once more to its argument.
    using Repeat = std::function<void(const std::function<void(QByteArrayView)> &)>;
    /// The facts, when all bytes have come. Empty when they are no asset catalogue.
    std::optional<AssetCatalog> catalog(const Repeat &repeat);

private:
    struct Block
    {
        quint32 number = 0;
        FileRange range;
    };
    /// The place of a block's kept bytes.
    struct Kept
    {
        quint32 at = 0;
        quint32 size = 0;
        quint32 wanted = 0;
    };

    void findBlocks();
    void takeAgain(QByteArrayView bytes);
    void keep(const Block &block, QByteArrayView piece);
    bool addTo(Kept &kept, QByteArrayView bytes);
    void decide(const Block &block, Kept &kept);

    QByteArray m_head;
    std::optional<BomTables> m_tables;
    QByteArray m_blockTable;
    QByteArray m_nameTable;
    quint64 m_taken = 0;

    std::vector<Block> m_blocks; ///< by their places in the file
    std::size_t m_next = 0;      ///< the first block that begins behind the bytes so far
    std::vector<Block> m_open;   ///< blocks of which more is wanted
    std::vector<Kept> m_kept;    ///< by the blocks' numbers
    SparseBytes m_room;
    quint64 m_used = 0;
    quint64 m_again = 0;
    bool m_lacksBlocks = false;
};

} // namespace lumora
