// SPDX-License-Identifier: MIT
#include "PngAnatomy.h"

#include <QtEndian>

#include <zlib.h>

namespace lumora
{

QList<PngChunk> pngChunks(const QByteArray &file)
{
    QList<PngChunk> chunks;
    if (!file.startsWith(QByteArrayView("\x89PNG\r\n\x1A\n", 8)))
        return {};
    for (qsizetype at = 8; at < file.size();) {
        if (file.size() - at < 12)
            return {};
        const qsizetype length = qFromBigEndian<quint32>(file.constData() + at);
        if (file.size() - at - 12 < length)
            return {};
        const auto *checked = reinterpret_cast<const Bytef *>(file.constData() + at + 4);
        if (crc32(0, checked, static_cast<uInt>(length + 4)) !=
            qFromBigEndian<quint32>(file.constData() + at + 8 + length))
            return {};
        chunks.append({file.mid(at + 4, 4), file.mid(at + 8, length)});
        at += length + 12;
    }
    return chunks;
}

QByteArray inflatedPixels(const QByteArray &file)
{
    QByteArray stream;
    for (const PngChunk &chunk : pngChunks(file)) {
        if (chunk.type == "IDAT")
            stream += chunk.content;
    }
    z_stream inflater{};
    inflateInit(&inflater);
    inflater.next_in = reinterpret_cast<Bytef *>(stream.data());
    inflater.avail_in = static_cast<uInt>(stream.size());
    QByteArray pixels;
    QByteArray part(1 << 16, Qt::Uninitialized);
    int status = Z_OK;
    while (status == Z_OK) {
        inflater.next_out = reinterpret_cast<Bytef *>(part.data());
        inflater.avail_out = static_cast<uInt>(part.size());
        status = inflate(&inflater, Z_NO_FLUSH);
        pixels.append(part.constData(), part.size() - static_cast<qsizetype>(inflater.avail_out));
    }
    const bool whole = status == Z_STREAM_END && inflater.avail_in == 0;
    inflateEnd(&inflater);
    return whole ? pixels : QByteArray();
}

} // namespace lumora
