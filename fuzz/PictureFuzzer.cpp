// SPDX-License-Identifier: MIT
// Any bytes as a source picture of any format.
#include "PngChecksums.h"
#include "pictures/PictureReader.h"

#include <QCoreApplication>

#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    // Qt needs it to find its decoders.
    static const QCoreApplication application(*count, *arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr qint64 largestArea = 1 << 16;
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (bytes.startsWith("\x89PNG"))
        mendChecksums(bytes);
    const auto stored = lumora::storedPixelSize(bytes, {});
    // Large pictures would work, too, but too slowly to find anything.
    if (stored && qint64{stored.value().width()} * stored.value().height() > largestArea)
        return 0;
    const auto picture = lumora::readPicture(bytes, {});
    if (!picture)
        return 0;
    const QImage &image = picture.value();
    if (!stored || (image.size() != stored.value() && image.size() != stored.value().transposed()) ||
        image.format() != QImage::Format_RGBA8888_Premultiplied)
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
