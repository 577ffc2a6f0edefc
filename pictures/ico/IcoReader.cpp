// SPDX-License-Identifier: MIT
#include "IcoReader.h"

#include "pictures/png/PngHeader.h"

#include <QtEndian>

namespace lumora
{

namespace
{

constexpr qsizetype directoryBytes = 6;
constexpr qsizetype entryBytes = 16;
constexpr qsizetype bitmapHeaderBytes = 40;

template <typename Number> Number numberAt(QByteArrayView bytes, qsizetype offset)
{
    return qFromLittleEndian<Number>(bytes.data() + offset);
}

int edgeAt(QByteArrayView bytes, qsizetype offset)
{
    const auto edge = static_cast<uchar>(bytes[offset]);
    return edge == 0 ? 256 : edge;
}

std::optional<IcoEntry> entryOf(QByteArrayView content)
{
    if (const std::optional<PngHeader> header = pngHeader(content))
        return IcoEntry{header->size, true, 0};
    if (content.size() < bitmapHeaderBytes || numberAt<quint32>(content, 0) < bitmapHeaderBytes)
        return std::nullopt;
    const auto width = numberAt<qint32>(content, 4);
    const auto doubled = numberAt<qint32>(content, 8);
    const int bits = numberAt<quint16>(content, 14);
    if (width < 1 || width > 256 || doubled < 2 || doubled > 512)
        return std::nullopt;
    const qsizetype colors = (qsizetype{width} * bits + 31) / 32 * 4;
    const qsizetype mask = (qsizetype{width} + 31) / 32 * 4;
    if (content.size() < bitmapHeaderBytes + (colors + mask) * (doubled / 2))
        return std::nullopt;
    return IcoEntry{QSize(width, doubled / 2), false, bits};
}

} // namespace

std::optional<std::vector<IcoEntry>> readIcoEntries(const QByteArray &file)
{
    if (file.size() < directoryBytes || numberAt<quint16>(file, 0) != 0 || numberAt<quint16>(file, 2) != 1)
        return std::nullopt;
    const qsizetype count = numberAt<quint16>(file, 4);
    if (count == 0 || file.size() < directoryBytes + count * entryBytes)
        return std::nullopt;
    std::vector<IcoEntry> entries;
    for (qsizetype index = 0; index < count; ++index) {
        const QByteArrayView row = QByteArrayView(file).sliced(directoryBytes + index * entryBytes, entryBytes);
        const qint64 length = numberAt<quint32>(row, 8);
        const qint64 offset = numberAt<quint32>(row, 12);
        if (offset > file.size() || length > file.size() - offset)
            return std::nullopt;
        const std::optional<IcoEntry> entry = entryOf(QByteArrayView(file).sliced(offset, length));
        if (!entry || entry->size != QSize(edgeAt(row, 0), edgeAt(row, 1)))
            return std::nullopt;
        entries.push_back(*entry);
    }
    return entries;
}

} // namespace lumora
