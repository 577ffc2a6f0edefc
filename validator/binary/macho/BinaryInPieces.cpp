// SPDX-License-Identifier: MIT
#include "BinaryInPieces.h"

#include "SliceInPieces.h"
#include "validator/binary/FaultList.h"

#include <algorithm>

namespace lumora
{

BinaryInPieces::BinaryInPieces(quint64 size, const BinaryLimits &limits)
    : m_limits(limits), m_room(std::make_unique<KeptRoom>())
{
    m_bytes.reserve(size);
}

BinaryInPieces::~BinaryInPieces() = default;

void BinaryInPieces::take(QByteArrayView bytes)
{
    bytes.truncate(static_cast<qsizetype>(qMin(static_cast<quint64>(bytes.size()), m_bytes.size() - m_taken)));
    if (m_taken < fatHeaderSize) {
        const auto count = static_cast<qsizetype>(qMin(static_cast<quint64>(bytes.size()), fatHeaderSize - m_taken));
        m_bytes.write(m_taken, bytes.first(count));
        m_taken += static_cast<quint64>(count);
        bytes = bytes.sliced(count);
        if (m_taken < fatHeaderSize)
            return;
        for (const FileRange &range : sliceRanges(m_bytes.bytes(), m_limits))
            m_slices.push_back(std::make_unique<SliceInPieces>(range, m_limits, m_bytes, *m_room));
        for (const auto &slice : m_slices)
            slice->take(0, this->bytes());
    }
    for (const auto &slice : m_slices)
        slice->take(m_taken, bytes);
    m_taken += static_cast<quint64>(bytes.size());
}

const BinaryInPieces::SliceInPieces *BinaryInPieces::sliceAt(const FileRange &range) const
{
    const auto found =
        std::ranges::find_if(m_slices, [&](const auto &slice) { return slice->range().offset == range.offset; });
    return found == m_slices.end() ? nullptr : found->get();
}

std::optional<BinaryFacts> BinaryInPieces::facts() const
{
    auto facts = readMachO(bytes(), m_limits);
    if (!facts)
        return std::nullopt;
    for (BinarySlice &slice : facts->slices) {
        const SliceInPieces *pieces = sliceAt(slice.range);
        if (pieces != nullptr && pieces->lacksNames())
            addFault(slice.faults, BinaryFault::TooManySymbols);
    }
    return facts;
}

QList<CodeSignature> BinaryInPieces::signatures(const BinaryFacts &facts, const Repeat &repeat) const
{
    struct OpenTable
    {
        FileRange slice;
        PageComparison comparison;
    };
    std::vector<OpenTable> open;
    const auto read = [&](const PageCheck &answerOpen, FileRange &current) {
        QList<CodeSignature> signatures;
        for (const BinarySlice &slice : facts.slices) {
            if (!slice.codeSignature)
                continue;
            current = slice.range;
            const SliceInPieces *pieces = sliceAt(slice.range);
            const UsualPages *pages = pieces == nullptr ? nullptr : pieces->pages();
            const PageCheck check = [&](const PageTable &table) {
                return pages != nullptr && pages->answers(table) ? pages->broken(table) : answerOpen(table);
            };
            signatures += readCodeSignature(
                bytes().sliced(static_cast<qsizetype>(slice.range.offset), static_cast<qsizetype>(slice.range.size)),
                *slice.codeSignature, check);
        }
        return signatures;
    };
    FileRange current;
    const auto collect = [&](const PageTable &table) {
        open.push_back({current, PageComparison(table)});
        return QList<quint32>();
    };
    QList<CodeSignature> signatures = read(collect, current);
    if (open.empty())
        return signatures;

    quint64 at = 0;
    repeat([&](QByteArrayView piece) {
        piece.truncate(static_cast<qsizetype>(qMin(static_cast<quint64>(piece.size()), m_taken - at)));
        for (OpenTable &table : open) {
            const quint64 begin = qMax(at, table.slice.offset);
            const quint64 end = qMin(at + static_cast<quint64>(piece.size()), table.slice.offset + table.slice.size);
            if (begin < end)
                table.comparison.add(
                    piece.sliced(static_cast<qsizetype>(begin - at), static_cast<qsizetype>(end - begin)));
        }
        at += static_cast<quint64>(piece.size());
    });
    std::size_t next = 0;
    return read([&](const PageTable &) { return open[next++].comparison.broken(); }, current);
}

} // namespace lumora
