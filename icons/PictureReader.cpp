// SPDX-License-Identifier: MIT
#include "PictureReader.h"

#include "IcnsReader.h"
#include "PictureFormat.h"
#include "PixelFormat.h"
#include "foundation/WholeFile.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

#include <mutex>

namespace lumora
{

namespace
{

/// Qt's own limit is one for the whole program and too low for 16-bit pictures; ours is checked besides.
void raiseAllocationLimit()
{
    static std::once_flag raised;
    std::call_once(raised, [] { QImageReader::setAllocationLimit(largestDecodedBytes / (1024 * 1024)); });
}

QString sizeText(QSize size)
{
    return QStringLiteral("%1 x %2 pixels").arg(size.width()).arg(size.height());
}

/// Metadata would shift the scale or turn the picture behind the reader's back; both are this file's business.
QImage toSrgb(QImage picture)
{
    const QColorSpace embedded = picture.colorSpace();
    const bool deep = picture.depth() > 32 || picture.format() == QImage::Format_Grayscale16;
    picture.convertTo(deep ? QImage::Format_RGBA64 : QImage::Format_RGBA8888);
    if (embedded.isValid() && embedded != QColorSpace(QColorSpace::SRgb)) {
        picture.setColorSpace(embedded);
        picture.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
    }
    QImage result = premultiplied(picture);
    result.setColorSpace(QColorSpace());
    result.setDevicePixelRatio(1);
    return result;
}

} // namespace

Result<QSize> storedPixelSize(const QByteArray &bytes, const QString &name)
{
    const QByteArray format = pictureFormat(bytes);
    const Failure notAPicture{FailureCode::NotAPicture, name, {}};
    if (format.isEmpty())
        return notAPicture;
    if (format == "icns")
        return storedPixelSize(largestIcnsPicture(bytes), name);
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty())
        return notAPicture;
    return size;
}

Result<QImage> readPicture(const QByteArray &bytes, const QString &name)
{
    const Result<QSize> stored = storedPixelSize(bytes, name);
    if (!stored)
        return stored.failure();
    const QSize size = stored.value();
    if (qint64{size.width()} * size.height() > largestPictureArea)
        return Failure{FailureCode::TooLarge, name, sizeText(size)};
    const QByteArray format = pictureFormat(bytes);
    if (format == "icns")
        return readPicture(largestIcnsPicture(bytes), name);
    const Failure damaged{FailureCode::NotAPicture, name, QStringLiteral("damaged")};
    if (!isWhole(bytes))
        return damaged;

    raiseAllocationLimit();
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    QImage picture;
    if (!reader.read(&picture) || picture.isNull())
        return damaged;
    buffer.close();
    return toSrgb(std::move(picture));
}

Result<QSize> storedPixelSize(const QString &path)
{
    const Result<QByteArray> bytes = readWholeFile(path, largestPictureFile);
    if (!bytes)
        return bytes.failure();
    return storedPixelSize(bytes.value(), path);
}

Result<QImage> readPicture(const QString &path)
{
    const Result<QByteArray> bytes = readWholeFile(path, largestPictureFile);
    if (!bytes)
        return bytes.failure();
    return readPicture(bytes.value(), path);
}

} // namespace lumora
