// SPDX-License-Identifier: MIT
#include "RetinaPicture.h"

#include "RetinaName.h"
#include "pictures/PictureReader.h"
#include "pictures/pixels/SizeText.h"
#include "pictures/png/PngEncoder.h"
#include "pictures/scaling/Resampler.h"

namespace lumora
{

QImage unRetinaImage(const QImage &picture)
{
    const Result<QImage> half = resample(picture, halfSize(picture.size()), {});
    return half ? half.value() : QImage();
}

Result<HalvedPicture> halvedPicture(const QByteArray &bytes, const QString &name)
{
    const Result<QImage> picture = readStraightPicture(bytes, name);
    if (!picture)
        return picture.failure();
    const Result<QSize> size = halvedSize(picture.value().size(), name);
    if (!size)
        return size.failure();
    const Result<QImage> half = resample(picture.value(), size.value(), name);
    if (!half)
        return half.failure();
    const Result<QByteArray> png = encodePngQuickly(half.value(), name);
    if (!png)
        return png.failure();
    return HalvedPicture{png.value(), size.value()};
}

qint64 halvingMemory(QSize pixels)
{
    // Pictures with transparency need the most: their pixels, color planes of 16 bits a sample, the same planes at half
    // the size, and the half itself.
    constexpr qint64 bytesPerPixel = 4 + 8 + 2 + 1;
    return bytesPerPixel * pixels.width() * pixels.height();
}

Result<QSize> halvedSize(QSize pixels, const QString &name)
{
    const QSize half = halfSize(pixels);
    if (qint64{pixels.width()} * pixels.height() > largestPictureArea)
        return Failure{FailureCode::TooLarge, name, pixelsDetail(pixels)};
    return half;
}

} // namespace lumora
