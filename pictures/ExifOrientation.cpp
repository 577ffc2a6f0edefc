// SPDX-License-Identifier: MIT
#include "ExifOrientation.h"

#include <QtEndian>

namespace lumora
{

namespace
{

/// Reads numbers of either byte order, and zero beyond the end.
class ExifNumbers
{
public:
    explicit ExifNumbers(const QByteArray &exif) : m_exif(exif), m_bigEndian(exif.startsWith("MM")) {}

    bool hasHeader() const { return (m_bigEndian || m_exif.startsWith("II")) && at<quint16>(2) == 42; }

    template <typename Number> Number at(qint64 offset) const
    {
        if (offset < 0 || offset + qint64{sizeof(Number)} > m_exif.size())
            return 0;
        const char *bytes = m_exif.constData() + offset;
        return m_bigEndian ? qFromBigEndian<Number>(bytes) : qFromLittleEndian<Number>(bytes);
    }

private:
    const QByteArray &m_exif;
    bool m_bigEndian;
};

} // namespace

QImageIOHandler::Transformations exifOrientation(const QByteArray &exif)
{
    constexpr quint16 orientationTag = 0x0112;
    constexpr qint64 entryBytes = 12;
    const ExifNumbers numbers(exif);
    if (!numbers.hasHeader())
        return QImageIOHandler::TransformationNone;
    const qint64 directory = numbers.at<quint32>(4);
    const int entries = numbers.at<quint16>(directory);
    for (int entry = 0; entry < entries; ++entry) {
        const qint64 offset = directory + 2 + entry * entryBytes;
        if (numbers.at<quint16>(offset) != orientationTag)
            continue;
        switch (numbers.at<quint16>(offset + 8)) {
        case 2:
            return QImageIOHandler::TransformationMirror;
        case 3:
            return QImageIOHandler::TransformationRotate180;
        case 4:
            return QImageIOHandler::TransformationFlip;
        case 5:
            return QImageIOHandler::TransformationFlipAndRotate90;
        case 6:
            return QImageIOHandler::TransformationRotate90;
        case 7:
            return QImageIOHandler::TransformationMirrorAndRotate90;
        case 8:
            return QImageIOHandler::TransformationRotate270;
        default:
            return QImageIOHandler::TransformationNone;
        }
    }
    return QImageIOHandler::TransformationNone;
}

QByteArray webpExif(const QByteArray &file)
{
    // RIFF, length, WEBP, then chunks of type, little-endian length and content filled up to an even length.
    for (qint64 at = 12; at + 8 <= file.size();) {
        const qint64 length = qFromLittleEndian<quint32>(file.constData() + at + 4);
        if (length > file.size() - at - 8)
            return {};
        if (QByteArrayView(file).sliced(at, 4) == "EXIF") {
            const QByteArray exif = file.mid(at + 8, length);
            // Some writers keep the signature that JPEG files put before the block.
            return exif.startsWith(QByteArrayView("Exif\0\0", 6)) ? exif.mid(6) : exif;
        }
        at += 8 + length + length % 2;
    }
    return {};
}

} // namespace lumora
