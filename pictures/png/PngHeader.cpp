// SPDX-License-Identifier: MIT
#include "PngHeader.h"

#include <QtEndian>

#include <limits>

namespace lumora
{

namespace
{

constexpr QByteArrayView signature("\x89PNG\r\n\x1a\n", 8);
constexpr qsizetype chunkFrame = 12; // length, name, checksum
constexpr quint32 headerLength = 13;
constexpr quint32 longestAppleChunk = 16;

/// The lowest bits of the Apple chunk say how the fourth channel is meant; from here on it is left out.
constexpr int alphaInfoMask = 0x1F;
constexpr int firstAlphaInfoWithoutAlpha = 5;

} // namespace

std::optional<PngHeader> pngHeader(QByteArrayView start)
{
    if (!start.startsWith(signature))
        return std::nullopt;
    PngHeader header;
    qsizetype at = signature.size();
    const auto length = [&] { return qFromBigEndian<quint32>(start.data() + at); };
    if (start.size() >= at + 8 && start.sliced(at + 4, 4) == QByteArrayView("CgBI")) {
        const quint32 appleLength = length();
        if (appleLength > longestAppleChunk || start.size() < at + chunkFrame + qsizetype{appleLength})
            return std::nullopt;
        header.appleOptimized = true;
        if (appleLength > 0) {
            const int alphaInfo = start[at + 8 + qsizetype{appleLength} - 1] & alphaInfoMask;
            header.opaque = alphaInfo >= firstAlphaInfoWithoutAlpha;
        }
        at += chunkFrame + qsizetype{appleLength};
    }
    if (start.size() < at + 8 + qsizetype{headerLength} || start.sliced(at + 4, 4) != QByteArrayView("IHDR") ||
        length() != headerLength)
        return std::nullopt;
    const char *fields = start.data() + at + 8;
    const auto width = qFromBigEndian<quint32>(fields);
    const auto height = qFromBigEndian<quint32>(fields + 4);
    constexpr quint32 largest = std::numeric_limits<qint32>::max();
    if (width == 0 || height == 0 || width > largest || height > largest)
        return std::nullopt;
    header.size = QSize(static_cast<int>(width), static_cast<int>(height));
    header.bitDepth = static_cast<unsigned char>(fields[8]);
    header.colorType = static_cast<unsigned char>(fields[9]);
    header.interlaced = fields[12] == 1;
    return header;
}

} // namespace lumora
