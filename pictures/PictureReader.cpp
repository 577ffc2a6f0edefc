// SPDX-License-Identifier: MIT
#include "PictureReader.h"

#include "ExifOrientation.h"
#include "IcnsReader.h"
#include "PictureFormat.h"
#include "foundation/WholeFile.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/png/OrdinaryPng.h"
#include "pictures/png/PngDecoder.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

#include <tiffio.h>

#include <mutex>

namespace lumora
{

namespace
{

/// What the decoders need to be told once in a program.
void prepareDecoders()
{
    static std::once_flag prepared;
    std::call_once(prepared, [] {
        // Qt's own limit is one for the whole program and too low for 16-bit pictures; ours is checked besides.
        QImageReader::setAllocationLimit(largestDecodedBytes / (1024 * 1024));
        // It would write its remarks on damaged files to stderr.
        TIFFSetErrorHandler(nullptr);
        TIFFSetWarningHandler(nullptr);
    });
}

/// A failed read answers a null picture.
QImage decodeByQt(const QByteArray &bytes, const QByteArray &format)
{
    prepareDecoders();
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    QImage picture;
    return reader.read(&picture) ? picture : QImage();
}

QImage turned(const QImage &picture, QImageIOHandler::Transformations how)
{
    QImage result = picture.mirrored(how.testFlag(QImageIOHandler::TransformationMirror),
                                     how.testFlag(QImageIOHandler::TransformationFlip));
    return how.testFlag(QImageIOHandler::TransformationRotate90) ? result.transformed(QTransform().rotate(90)) : result;
}

/// The picture upright, in the depth and colours of its file.
QImage decode(const QByteArray &bytes, const QByteArray &format)
{
    QByteArray exif;
    QImage picture;
    if (format == "png") {
        if (std::optional<QImage> ordinary = decodeOrdinaryPng(bytes))
            return *std::move(ordinary);
        picture = decodePng(bytes, &exif);
    } else {
        picture = decodeByQt(bytes, format);
        if (format == "webp")
            exif = webpExif(bytes);
    }
    const QImageIOHandler::Transformations how = exifOrientation(exif);
    return how == QImageIOHandler::TransformationNone ? picture : turned(picture, how);
}

QString sizeText(QSize size)
{
    return QStringLiteral("%1 x %2 pixels").arg(size.width()).arg(size.height());
}

/// Takes the picture so that it is gone before its last copy is made.
QImage toSrgb(QImage picture)
{
    const QColorSpace embedded = picture.colorSpace();
    const bool deep = picture.depth() > 32 || picture.format() == QImage::Format_Grayscale16;
    picture.convertTo(deep ? QImage::Format_RGBA64 : QImage::Format_RGBA8888);
    if (embedded.isValid() && embedded != QColorSpace(QColorSpace::SRgb)) {
        picture.setColorSpace(embedded);
        picture.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
    }
    picture.convertTo(QImage::Format_RGBA8888);
    picture.setColorSpace(QColorSpace());
    picture.setDevicePixelRatio(1);
    return picture;
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
    QSize size;
    if (format == "png") {
        size = pngPixelSize(bytes);
    } else {
        prepareDecoders();
        QBuffer buffer;
        buffer.setData(bytes);
        QImageReader reader(&buffer, format);
        reader.setAutoDetectImageFormat(false);
        size = reader.size();
    }
    if (size.isEmpty())
        return notAPicture;
    return size;
}

Result<QImage> readStraightPicture(const QByteArray &bytes, const QString &name)
{
    const Result<QSize> stored = storedPixelSize(bytes, name);
    if (!stored)
        return stored.failure();
    const QSize size = stored.value();
    if (qint64{size.width()} * size.height() > largestPictureArea)
        return Failure{FailureCode::TooLarge, name, sizeText(size)};
    const QByteArray format = pictureFormat(bytes);
    if (format == "icns")
        return readStraightPicture(largestIcnsPicture(bytes), name);
    QImage picture = isWhole(bytes) ? decode(bytes, format) : QImage();
    // Some decoders find another size on their way than the one they told from the header, which was checked.
    if (picture.isNull() || (picture.size() != size && picture.size() != size.transposed()))
        return Failure{FailureCode::NotAPicture, name, QStringLiteral("damaged")};
    return toSrgb(std::move(picture));
}

Result<QImage> readPicture(const QByteArray &bytes, const QString &name)
{
    Result<QImage> picture = readStraightPicture(bytes, name);
    return picture ? Result<QImage>(premultiplied(std::move(picture).value())) : picture;
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
