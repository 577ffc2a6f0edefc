// SPDX-License-Identifier: MIT
#include "PictureOperations.h"

#include "foundation/WholeFile.h"
#include "pictures/png/PngEncoder.h"
#include "pictures/scaling/Resampler.h"

namespace lumora
{

Result<QImage> squarePicture(const QImage &image, int size, CornerMode corners, const QString &name)
{
    Result<QImage> result = resample(image, QSize(size, size), name);
    if (result && corners != CornerMode::None)
        roundCorners(result.value(), cornerRadius(size, corners));
    return result;
}

QImage resizeImage(const QImage &image, int toSize)
{
    return resizeImage(image, toSize, static_cast<int>(CornerMode::None));
}

QImage resizeImage(const QImage &image, int toSize, int withRoundedCorners)
{
    const Result<QImage> picture = squarePicture(image, toSize, cornerModeOf(withRoundedCorners), {});
    return picture ? picture.value() : QImage();
}

Outcome saveImage(const QImage &image, BitmapType withType, const QString &toPath)
{
    const auto encoded = [&]() -> Result<QByteArray> {
        switch (withType) {
        case BitmapType::Png:
            return encodePng(image, toPath);
        }
        return Failure{FailureCode::InvalidValue, toPath, "DETAIL_NO_FILE_TYPE"};
    }();
    if (!encoded)
        return Failure{FailureCode::CannotWrite, toPath, encoded.failure().detail};
    return writeWholeFile(toPath, encoded.value());
}

} // namespace lumora
