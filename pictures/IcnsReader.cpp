// SPDX-License-Identifier: MIT
#include "IcnsReader.h"

#include "PictureFormat.h"
#include "PictureReader.h"

#include <QtEndian>

namespace lumora
{

namespace
{

constexpr qsizetype headerBytes = 8; ///< four letters of type, then the length of both together, big-endian

qsizetype lengthAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset + 4);
}

} // namespace

Result<QByteArray> largestIcnsPicture(const QByteArray &bytes, const QString &name)
{
    const Failure notAPicture{FailureCode::NotAPicture, name, {}};
    if (bytes.size() < headerBytes || lengthAt(bytes, 0) > bytes.size())
        return notAPicture;
    const qsizetype end = lengthAt(bytes, 0);
    QByteArray largest;
    qint64 largestArea = 0;
    for (qsizetype at = headerBytes; at + headerBytes <= end;) {
        const qsizetype length = lengthAt(bytes, at);
        if (length < headerBytes || length > end - at)
            return notAPicture;
        // A view, so that only the largest member is copied.
        const QByteArray member = QByteArray::fromRawData(bytes.constData() + at + headerBytes, length - headerBytes);
        if (pictureFormat(member) == "png") {
            const Result<QSize> size = storedPixelSize(member, name);
            const qint64 area = size ? qint64{size.value().width()} * size.value().height() : 0;
            if (area > largestArea) {
                largestArea = area;
                largest = QByteArray(member.constData(), member.size());
            }
        }
        at += length;
    }
    if (largest.isEmpty())
        return notAPicture;
    return largest;
}

} // namespace lumora
