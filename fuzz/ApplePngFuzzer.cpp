// SPDX-License-Identifier: MIT
// Any bytes as an Apple-optimised picture. Checksums are put right first, which chance would never do.
#include "validator/ApplePngDecoder.h"
#include "validator/PngHeader.h"

#include <QtEndian>

#include <cstdlib>

#include <zlib.h>

namespace
{

void mendChecksums(QByteArray &bytes)
{
    for (qsizetype at = 8; at <= bytes.size() - 12;) {
        const qsizetype length = qFromBigEndian<quint32>(bytes.constData() + at);
        if (length > bytes.size() - at - 12)
            return;
        const uLong checksum =
            ::crc32(0, reinterpret_cast<const Bytef *>(bytes.constData() + at + 4), static_cast<uInt>(length + 4));
        qToBigEndian(static_cast<quint32>(checksum), bytes.data() + at + 8 + length);
        at += length + 12;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr qint64 largestArea = 1 << 16;
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    mendChecksums(bytes);
    const auto header = lumora::pngHeader(bytes);
    const auto picture = lumora::decodeApplePng(bytes, {}, largestArea);
    if (!picture)
        return 0;
    const QImage &image = picture.value();
    if (!header || image.size() != header->size)
        std::abort();
    for (int y = 0; y < image.height(); ++y) {
        const uchar *pixel = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x, pixel += 4) {
            if (pixel[0] > pixel[3] || pixel[1] > pixel[3] || pixel[2] > pixel[3])
                std::abort();
        }
    }
    return 0;
}
