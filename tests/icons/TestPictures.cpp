// SPDX-License-Identifier: MIT
#include "TestPictures.h"

#include <QBuffer>
#include <QImageWriter>
#include <QtEndian>

#include <zlib.h>

namespace lumora
{

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

QByteArray pictureFile(const QImage &picture, const char *format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    return writer.write(picture) ? buffer.data() : QByteArray();
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

} // namespace lumora
