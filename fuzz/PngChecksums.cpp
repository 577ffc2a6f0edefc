// SPDX-License-Identifier: MIT
#include "PngChecksums.h"

#include <QtEndian>

#include <zlib.h>

void mendChecksums(QByteArray &bytes)
{
    for (qsizetype at = 8; at <= bytes.size() - 12;) {
        const qsizetype length = qFromBigEndian<quint32>(bytes.constData() + at);
        if (length > bytes.size() - at - 12)
            return;
        const uLong checksum =
            ::crc32(0, reinterpret_cast<const Bytef *>(bytes.constData() + at + 4), static_cast<uInt>(length + 4));
        qToBigEndian(static_cast<quint32>(checksum), bytes.data() + at + 8 + length);
        at += length + 12;
    }
}
