// SPDX-License-Identifier: MIT
#include "PngHeader.h"

#include "PngChunks.h"

#include <limits>

namespace lumora
{

namespace
{

constexpr qsizetype chunkFrame = 12; // length, name, checksum
constexpr quint32 headerLength = 13;
constexpr quint32 longestAppleChunk = 16;

/// The lowest bits of the Apple chunk give the meaning of the fourth channel; from this value on it is to be ignored.
constexpr int alphaInfoMask = 0x1F;
constexpr int firstAlphaInfoWithoutAlpha = 5;

} // namespace

std::optional<PngHeader> pngHeader(QByteArrayView start)
{
    if (!start.startsWith(pngSignature))
        return std::nullopt;
    PngHeader header;
    qsizetype at = pngSignature.size();
    const auto length = [&] { return bigEndian32(start.sliced(at)); };
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
    const QByteArrayView fields = start.sliced(at + 8, headerLength);
    const quint32 width = bigEndian32(fields);
    const quint32 height = bigEndian32(fields.sliced(4));
    constexpr quint32 largest = std::numeric_limits<qint32>::max();
    if (width == 0 || height == 0 || width > largest || height > largest)
        return std::nullopt;
    const char compression = fields[10];
    const char filtering = fields[11];
    const char interlacing = fields[12];
    if (compression != 0 || filtering != 0 || (interlacing != 0 && interlacing != 1))
        return std::nullopt;
    header.size = QSize(static_cast<int>(width), static_cast<int>(height));
    header.bitDepth = static_cast<unsigned char>(fields[8]);
    header.colorType = static_cast<unsigned char>(fields[9]);
    header.interlaced = interlacing == 1;
    return header;
}

} // namespace lumora
