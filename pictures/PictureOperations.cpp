// SPDX-License-Identifier: MIT
#include "PictureOperations.h"

#include "foundation/WholeFile.h"
#include "pictures/png/PngEncoder.h"
#include "pictures/scaling/Resampler.h"

namespace lumora
{

QImage resizeImage(const QImage &image, int toSize)
{
    return resample(image, QSize(toSize, toSize));
}

QImage resizeImage(const QImage &image, int toSize, CornerMode withRoundedCorners)
{
    QImage result = resizeImage(image, toSize);
    if (withRoundedCorners != CornerMode::None)
        roundCorners(result, cornerRadius(toSize, withRoundedCorners));
    return result;
}

QImage resizeImage(const QImage &image, int toSize, int withRoundedCorners)
{
    return resizeImage(image, toSize, cornerModeOf(withRoundedCorners));
}

Outcome saveImage(const QImage &image, BitmapType withType, const QString &toPath)
{
    QByteArray bytes;
    switch (withType) {
    case BitmapType::Png:
        bytes = encodePng(image);
        break;
    }
    if (bytes.isEmpty())
        return Failure{FailureCode::CannotWrite, toPath, QStringLiteral("the picture is empty")};
    return writeWholeFile(toPath, bytes);
}

} // namespace lumora
