// SPDX-License-Identifier: MIT
// Any bytes as an Apple-optimized picture.
#include "PngChecksums.h"
#include "pictures/png/ApplePngDecoder.h"
#include "pictures/png/PngHeader.h"

#include <cstdlib>

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
