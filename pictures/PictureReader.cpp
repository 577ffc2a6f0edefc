// SPDX-License-Identifier: MIT
#include "PictureReader.h"

#include "ExifOrientation.h"
#include "IcnsReader.h"
#include "PictureFormat.h"
#include "foundation/MemoryLimit.h"
#include "foundation/SharedLibrary.h"
#include "foundation/WholeFile.h"
#include "pictures/pixels/PictureMemory.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/pixels/SizeText.h"
#include "pictures/png/OrdinaryPng.h"
#include "pictures/png/PngDecoder.h"
#include "pictures/png/PngHeader.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

#include <tiffio.h>

#include <mutex>

namespace lumora
{

using namespace Qt::StringLiterals;

namespace
{

/// libtiff, through which Qt reads, would write about damaged files to stderr.
void silenceTiff()
{
    static std::once_flag silenced;
    std::call_once(silenced, [] {
        const SharedLibrary library(LUMORA_TIFF_SONAME);
        if (!library.isOpen())
            return;
        const decltype(&::TIFFSetErrorHandler) setErrorHandler = library["TIFFSetErrorHandler"];
        const decltype(&::TIFFSetWarningHandler) setWarningHandler = library["TIFFSetWarningHandler"];
        setErrorHandler(nullptr);
        setWarningHandler(nullptr);
    });
}

/// Settings that the decoders need once per program.
void prepareDecoders(const QByteArray &format)
{
    static std::once_flag prepared;
    std::call_once(prepared, [] {
        // Qt's own limit holds for the whole program and is too low for 16-bit pictures; readers here check their own.
        QImageReader::setAllocationLimit(largestDecodedBytes / (1024 * 1024));
    });
    if (format == "tiff")
        silenceTiff();
}

Failure damaged(const QString &name)
{
    return {FailureCode::NotAPicture, name, "DETAIL_DAMAGED"};
}

/// A failed read returns a null picture.
QImage decodeByQt(const QByteArray &bytes, const QByteArray &format)
{
    prepareDecoders(format);
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

QImage upright(const QImage &picture, const QByteArray &exif)
{
    const QImageIOHandler::Transformations how = exifOrientation(exif);
    return how == QImageIOHandler::TransformationNone ? picture : withPixels(turned(picture, how));
}

/// The picture upright, in the depth and colors of its file.
Result<QImage> decode(const QByteArray &bytes, const QByteArray &format, const QString &name)
{
    if (format == "png") {
        if (std::optional<QImage> ordinary = decodeOrdinaryPng(bytes))
            return *std::move(ordinary);
        Result<DecodedPng> png = decodePng(bytes, name);
        if (!png)
            return png.failure();
        return upright(png.value().picture, png.value().exif);
    }
    const QImage picture = decodeByQt(bytes, format);
    if (picture.isNull())
        return damaged(name);
    return format == "webp" ? upright(picture, webpExif(bytes)) : picture;
}

/// Takes the picture by value, so that its memory is freed before the last copy is made.
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
    return withPixels(std::move(picture));
}

} // namespace

Result<QSize> storedPixelSize(const QByteArray &bytes, const QString &name)
{
    const QByteArray format = pictureFormat(bytes);
    const Failure notAPicture{FailureCode::NotAPicture, name, {}};
    if (format.isEmpty())
        return notAPicture;
    if (format == "icns") {
        const Result<QByteArray> largest = largestIcnsPicture(bytes, name);
        return largest ? storedPixelSize(largest.value(), name) : largest.failure();
    }
    QSize size;
    if (format == "png") {
        if (const std::optional<PngHeader> header = pngHeader(bytes); header && !header->appleOptimized)
            size = header->size;
    } else {
        prepareDecoders(format);
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
        return Failure{FailureCode::TooLarge, name, pixelsDetail(size)};
    const QByteArray format = pictureFormat(bytes);
    if (format == "icns") {
        const Result<QByteArray> largest = largestIcnsPicture(bytes, name);
        return largest ? readStraightPicture(largest.value(), name) : largest.failure();
    }
    if (!isWhole(bytes))
        return damaged(name);
    return withinMemory(name, [&]() -> Result<QImage> {
        Result<QImage> decoded = decode(bytes, format, name);
        if (!decoded)
            return decoded;
        QImage picture = std::move(decoded).value();
        // Only the header's size was checked, and some decoders return another.
        if (picture.size() != size && picture.size() != size.transposed())
            return damaged(name);
        return toSrgb(std::move(picture));
    });
}

Result<QImage> readPicture(const QByteArray &bytes, const QString &name)
{
    return withinMemory(name, [&]() -> Result<QImage> {
        Result<QImage> picture = readStraightPicture(bytes, name);
        return picture ? Result<QImage>(premultiplied(std::move(picture).value())) : picture;
    });
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
