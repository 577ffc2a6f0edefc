// SPDX-License-Identifier: MIT
#pragma once

#include "MachOSlice.h"
#include "validator/binary/SparseBytes.h"
#include "validator/binary/signature/CodeSignature.h"

#include <QByteArrayView>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace lumora
{

/// Reads a long Mach-O file that comes in pieces, from its start to its end. Only what the facts are read from is kept:
/// headers, load commands, external symbols and their names, Objective-C names and the signature; the code itself is
/// hashed on the way. The memory is bounded whatever the file says: names beyond `mostNameBytes` are a fault.
class BinaryInPieces
{
public:
    /// The bytes of names that are kept, in whole memory pages, and those of signatures.
    static constexpr quint64 mostNameBytes = quint64{32} << 20;
    static constexpr quint64 mostSignatureBytes = quint64{16} << 20;

    /// A longer file than `size` is read up to there.
    explicit BinaryInPieces(quint64 size, const BinaryLimits &limits = {});
    ~BinaryInPieces();
    Q_DISABLE_COPY_MOVE(BinaryInPieces)

    /// The next bytes.
    void take(QByteArrayView bytes);

    /// The facts, when all bytes have come. Empty when they are no Mach-O file.
    std::optional<BinaryFacts> facts() const;

    /// Passes the same bytes once more to its argument.
    using Repeat = std::function<void(const std::function<void(QByteArrayView)> &)>;
    /// The signature of each signed slice. The bytes are asked for again, once at most, for signatures of an unusual
    /// kind.
    QList<CodeSignature> signatures(const BinaryFacts &facts, const Repeat &repeat) const;

private:
    class SliceInPieces;
    struct KeptRoom;

    QByteArrayView bytes() const { return m_bytes.bytes().first(static_cast<qsizetype>(m_taken)); }
    const SliceInPieces *sliceAt(const FileRange &range) const;

    BinaryLimits m_limits;
    SparseBytes m_bytes;
    quint64 m_taken = 0;
    std::unique_ptr<KeptRoom> m_room;
    std::vector<std::unique_ptr<SliceInPieces>> m_slices;
};

} // namespace lumora
