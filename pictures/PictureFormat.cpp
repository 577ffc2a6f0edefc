// SPDX-License-Identifier: MIT
#include "PictureFormat.h"

#include "pictures/png/PngChunks.h"

#include <QtEndian>

#include <cstdlib>

namespace lumora
{

namespace
{

struct Signature
{
    QByteArrayView start;
    const char *format = nullptr;
};

const Signature signatures[] = {
    {pngSignature, "png"},
    {QByteArrayView("\xFF\xD8\xFF", 3), "jpeg"},
    {QByteArrayView("II*\0", 4), "tiff"},
    {QByteArrayView("MM\0*", 4), "tiff"},
    {QByteArrayView("BM", 2), "bmp"},
    {QByteArrayView("GIF8", 4), "gif"},
    {QByteArrayView("icns", 4), "icns"},
};

/// Decoders allocate the memory that a chunk claims before they check that the file is long enough.
bool isWholePng(const QByteArray &bytes)
{
    PngChunkWalk walk(bytes);
    while (const auto chunk = walk.next()) {
        if (chunk->type == "IEND")
            return true;
    }
    return false;
}

bool isWholeJpeg(const QByteArray &bytes)
{
    // Inside the scans every 0xFF is followed by 0x00 or a restart marker, so the pair can only be the end itself. The
    // search begins at the last scan because a thumbnail in the metadata has an end of its own.
    const qsizetype lastScan = bytes.lastIndexOf("\xFF\xDA");
    return lastScan >= 0 && bytes.indexOf("\xFF\xD9", lastScan) >= 0;
}

template <typename Number> Number littleEndianAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromLittleEndian<Number>(bytes.cbegin() + offset);
}

bool isWholeBmp(const QByteArray &bytes)
{
    constexpr qsizetype headerBytes = 54;
    constexpr quint32 plainRows = 0;
    constexpr quint32 maskedRows = 3;
    if (bytes.isNull() || bytes.size() < headerBytes)
        return false;
    const auto infoBytes = littleEndianAt<quint32>(bytes, 14);
    const auto compression = littleEndianAt<quint32>(bytes, 30);
    // Only decoding shows the length of run-length packed rows; a header of 12 bytes has its fields in other places.
    if (infoBytes < 40 || (compression != plainRows && compression != maskedRows))
        return true;
    const qint64 width = littleEndianAt<qint32>(bytes, 18);
    const qint64 height = std::abs(qint64{littleEndianAt<qint32>(bytes, 22)});
    const qint64 bitsPerPixel = littleEndianAt<quint16>(bytes, 28);
    const qint64 rowBytes = (width * bitsPerPixel + 31) / 32 * 4;
    return qint64{littleEndianAt<quint32>(bytes, 10)} + rowBytes * height <= bytes.size();
}

} // namespace

QByteArray pictureFormat(const QByteArray &bytes)
{
    if (bytes.startsWith("RIFF") && bytes.indexOf("WEBP") == 8)
        return "webp";
    for (const Signature &signature : signatures) {
        if (bytes.startsWith(signature.start))
            return signature.format;
    }
    return {};
}

bool isWhole(const QByteArray &bytes)
{
    const QByteArray format = pictureFormat(bytes);
    if (format == "png")
        return isWholePng(bytes);
    if (format == "jpeg")
        return isWholeJpeg(bytes);
    if (format == "bmp")
        return isWholeBmp(bytes);
    return true;
}

} // namespace lumora
