// SPDX-License-Identifier: MIT
#include "IcoWriter.h"

#include "pictures/png/PngRows.h"

#include <QtEndian>

#include <cstdint>
#include <vector>

namespace lumora
{

namespace
{

constexpr int directoryBytes = 6;
constexpr int entryBytes = 16;
constexpr int bitmapHeaderBytes = 40;
constexpr int bitsPerPixel = 32;

template <typename Number> void append(QByteArray &bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

/// A row of the mask takes whole groups of four bytes.
int maskRowBytes(int width)
{
    return (width + 31) / 32 * 4;
}

QByteArray bitmap(const QImage &picture)
{
    const ImageRows rows(picture);
    const int edge = picture.width();
    const int height = picture.height();
    std::vector<std::uint8_t> row(static_cast<std::size_t>(edge) * 4);
    QByteArray bytes;
    append<quint32>(bytes, bitmapHeaderBytes);
    append<qint32>(bytes, edge);
    // Colors and mask count as one picture of twice the height.
    append<qint32>(bytes, 2 * height);
    append<quint16>(bytes, 1);
    append<quint16>(bytes, bitsPerPixel);
    append<quint32>(bytes, 0);
    append<quint32>(bytes, static_cast<quint32>(height * (4 * edge + maskRowBytes(edge))));
    for (int field = 0; field < 4; ++field)
        append<quint32>(bytes, 0);
    // Rows are stored from the lowest to the highest, as BGRA.
    for (int y = height - 1; y >= 0; --y) {
        rows.readRow(y, row);
        const std::uint8_t *pixel = row.data();
        for (int x = 0; x < edge; ++x, pixel += 4) {
            for (const int channel : {2, 1, 0, 3})
                bytes.append(static_cast<char>(pixel[channel]));
        }
    }
    for (int y = height - 1; y >= 0; --y) {
        rows.readRow(y, row);
        QByteArray mask(maskRowBytes(edge), '\0');
        for (int x = 0; x < edge; ++x) {
            if (row[static_cast<std::size_t>(4 * x + 3)] == 0)
                mask[x / 8] = static_cast<char>(static_cast<uchar>(mask[x / 8]) | (0x80U >> (x % 8)));
        }
        bytes.append(mask);
    }
    return bytes;
}

} // namespace

QByteArray icoFile(std::span<const IcoPicture> pictures)
{
    std::vector<QByteArray> contents;
    for (const IcoPicture &picture : pictures)
        contents.push_back(picture.png.isEmpty() ? bitmap(picture.pixels) : picture.png);
    QByteArray file;
    append<quint16>(file, 0);
    append<quint16>(file, 1);
    append<quint16>(file, static_cast<quint16>(pictures.size()));
    auto offset = static_cast<quint32>(directoryBytes + entryBytes * pictures.size());
    for (std::size_t index = 0; index < pictures.size(); ++index) {
        // One byte an edge, in which 256 is 0.
        file.append(static_cast<char>(pictures[index].pixels.width() & 0xFF));
        file.append(static_cast<char>(pictures[index].pixels.height() & 0xFF));
        file.append(2, '\0');
        append<quint16>(file, 1);
        append<quint16>(file, bitsPerPixel);
        append<quint32>(file, static_cast<quint32>(contents[index].size()));
        append<quint32>(file, offset);
        offset += static_cast<quint32>(contents[index].size());
    }
    for (const QByteArray &content : contents)
        file.append(content);
    return file;
}

} // namespace lumora
