// SPDX-License-Identifier: MIT
#include "TestPictures.h"

#include "pictures/pixels/PixelFormat.h"
#include "pictures/png/PngEncoder.h"
#include "pictures/scaling/Resampler.h"

#include <QBuffer>
#include <QImageWriter>
#include <QtEndian>

#include <zlib.h>

namespace lumora
{

QImage resampled(const QImage &picture, QSize size)
{
    return resample(picture, size, {}).value();
}

QByteArray encodedPng(const QImage &picture)
{
    return encodePng(picture, {}).value();
}

QByteArray encodedOpaquePng(const QImage &picture)
{
    return encodeOpaquePng(picture, 1, {}).value();
}

QImage testPicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_ARGB32);
    quint32 noise = 12345;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            noise = noise * 1664525U + 1013904223U;
            const bool dot = (x / 40 + y / 40) % 3 == 0;
            const int grain = static_cast<int>(noise >> 29);
            picture.setPixel(x, y,
                             qRgba(std::min(255, x * 255 / width + grain), y * 255 / height, dot ? 220 : 40,
                                   x < width / 8 ? 255 * 8 * x / width : 255));
        }
    }
    return picture;
}

QImage quarters(int width, int height)
{
    QImage picture(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool right = x >= width / 2;
            const bool low = y >= height / 2;
            picture.setPixel(x, y, low ? (right ? 0x80FFFFFF : 0xFF0000FF) : (right ? 0xFF00FF00 : 0xFFFF0000));
        }
    }
    return picture;
}

QImage straightened(const QImage &picture)
{
    QImage result = premultiplied(picture);
    for (int y = 0; y < result.height(); ++y)
        straightenPixels(result.scanLine(y), result.width());
    result.reinterpretAsFormat(QImage::Format_RGBA8888);
    return result;
}

bool near(QRgb one, QRgb other, int tolerance)
{
    return std::abs(qRed(one) - qRed(other)) <= tolerance && std::abs(qGreen(one) - qGreen(other)) <= tolerance &&
           std::abs(qBlue(one) - qBlue(other)) <= tolerance && std::abs(qAlpha(one) - qAlpha(other)) <= tolerance;
}

QByteArray pictureFile(const QImage &picture, const char *format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    return writer.write(picture) ? buffer.data() : QByteArray();
}

namespace
{

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &type, const QByteArray &content)
{
    const QByteArray checked = type + content;
    const auto *start = reinterpret_cast<const Bytef *>(checked.constData());
    return bigEndian(static_cast<quint32>(content.size())) + checked +
           bigEndian(static_cast<quint32>(crc32(0, start, static_cast<uInt>(checked.size()))));
}

/// A zlib stream of that many zeroes.
QByteArray deflatedZeroes(quint64 count)
{
    z_stream deflater{};
    deflateInit(&deflater, 1);
    QByteArray zeroes(1 << 20, '\0');
    QByteArray part(1 << 16, Qt::Uninitialized);
    QByteArray stream;
    int status = Z_OK;
    while (status == Z_OK) {
        if (deflater.avail_in == 0) {
            const quint64 piece = std::min<quint64>(count, static_cast<quint64>(zeroes.size()));
            deflater.next_in = reinterpret_cast<Bytef *>(zeroes.data());
            deflater.avail_in = static_cast<uInt>(piece);
            count -= piece;
        }
        deflater.next_out = reinterpret_cast<Bytef *>(part.data());
        deflater.avail_out = static_cast<uInt>(part.size());
        status = deflate(&deflater, count == 0 ? Z_FINISH : Z_NO_FLUSH);
        stream.append(part.constData(), part.size() - static_cast<qsizetype>(deflater.avail_out));
    }
    deflateEnd(&deflater);
    return stream;
}

} // namespace

QByteArray pngOfZeroes(quint32 width, quint32 height)
{
    return QByteArray("\x89PNG\r\n\x1A\n", 8) +
           chunk("IHDR", bigEndian(width) + bigEndian(height) + QByteArray("\x10\x06\0\0\0", 5)) +
           chunk("IDAT", deflatedZeroes(quint64{height} * (quint64{width} * 8 + 1))) + chunk("IEND", {});
}

QByteArray withPngChunk(const QByteArray &file, const QByteArray &type, const QByteArray &content)
{
    constexpr qsizetype headerEnd = 8 + 12 + 13;
    return file.first(headerEnd) + chunk(type, content) + file.sliced(headerEnd);
}

QByteArray pngWithLongProfile(qsizetype bytes)
{
    return withPngChunk(pictureFile(testPicture(64, 64)), "iCCP",
                        QByteArray("x\0\0", 3) + deflatedZeroes(static_cast<quint64>(bytes)));
}

QByteArray pngClaiming(quint32 width, quint32 height)
{
    QByteArray file = pictureFile(testPicture(64, 64));
    qToBigEndian(width, file.data() + 16);
    qToBigEndian(height, file.data() + 20);
    const auto *header = reinterpret_cast<const Bytef *>(file.constData() + 12);
    qToBigEndian(static_cast<quint32>(crc32(0, header, 17)), file.data() + 29);
    return file;
}

QByteArray withJpegSegment(const QByteArray &file, uchar marker, const QByteArray &content)
{
    constexpr qsizetype startMark = 2;
    QByteArray segment("\xFF");
    segment.append(static_cast<char>(marker));
    segment.append(bigEndian(static_cast<quint32>(content.size() + 2)).sliced(2)).append(content);
    return file.first(startMark) + segment + file.sliced(startMark);
}

QByteArray withWebpChunk(const QByteArray &file, QSize size, const QByteArray &type, const QByteArray &content)
{
    const auto littleEndian = [](qsizetype number, int bytes) {
        const auto value = qToLittleEndian(static_cast<quint32>(number));
        return QByteArray(reinterpret_cast<const char *>(&value), bytes);
    };
    constexpr qsizetype riffHeader = 12;
    constexpr char exifFlag = 0x08;
    constexpr char profileFlag = 0x20;
    constexpr char alphaFlag = 0x10;
    const bool exif = type == "EXIF";
    const QByteArray features = QByteArray(1, static_cast<char>(alphaFlag | (exif ? exifFlag : profileFlag))) +
                                QByteArray(3, '\0') + littleEndian(size.width() - 1, 3) +
                                littleEndian(size.height() - 1, 3);
    const QByteArray extra = type + littleEndian(content.size(), 4) + content + QByteArray(content.size() % 2, '\0');
    const QByteArray pixels = file.sliced(riffHeader);
    const QByteArray chunks = "VP8X" + littleEndian(features.size(), 4) + features +
                              (exif ? QByteArray(pixels + extra) : QByteArray(extra + pixels));
    return "RIFF" + littleEndian(chunks.size() + 4, 4) + "WEBP" + chunks;
}

} // namespace lumora
