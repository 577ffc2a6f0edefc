// SPDX-License-Identifier: MIT
#include "PictureFacts.h"

#include "foundation/WholeFile.h"
#include "pictures/PictureFormat.h"
#include "pictures/PictureReader.h"
#include "pictures/png/PngChunks.h"
#include "pictures/png/PngHeader.h"

#include <QColorSpace>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int grayForm = 0;
constexpr int colorForm = 2;
constexpr int paletteForm = 3;
constexpr int deepBits = 16;

/// The facts in a PNG file's chunks. An Apple-optimized file counts as a picture, too.
void readPng(PictureFacts &facts)
{
    const std::optional<PngHeader> header =
        pngHeader(QByteArrayView(facts.bytes).first(std::min<qsizetype>(facts.bytes.size(), pngHeaderBytes)));
    const std::optional<std::vector<PngChunkView>> chunks = readPngChunks(facts.bytes);
    facts.readable = header && chunks;
    if (!facts.readable)
        return;
    facts.size = header->size;
    facts.palette = header->colorType == paletteForm;
    facts.deep = header->bitDepth == deepBits;
    facts.interlaced = header->interlaced;
    facts.alphaChannel = header->colorType != grayForm && header->colorType != colorForm && !facts.palette;
    for (const PngChunkView &chunk : *chunks) {
        if (chunk.type == QByteArrayView("tRNS"))
            facts.alphaChannel = true;
        if (chunk.type == QByteArrayView("iCCP")) {
            const qsizetype nameEnd = chunk.content.indexOf('\0');
            const QByteArrayView packed =
                nameEnd < 0 ? QByteArrayView() : chunk.content.sliced(std::min(nameEnd + 2, chunk.content.size()));
            facts.wideGamut = !packed.isEmpty() && QByteArrayView(chunk.content).first(nameEnd).contains("P3");
        }
    }
}

} // namespace

QImage PictureFacts::pixels() const
{
    const Result<QImage> picture = readPicture(bytes, {});
    return picture ? picture.value() : QImage();
}

PictureFacts pictureFacts(const QString &path)
{
    PictureFacts facts;
    const QFileInfo info(path);
    facts.exists = info.exists();
    if (!info.isFile())
        return facts;
    const Result<QByteArray> bytes = readWholeFile(path, largestPictureFile);
    if (!bytes)
        return facts;
    facts.bytes = bytes.value();
    facts.fileBytes = facts.bytes.size();
    facts.format = pictureFormat(facts.bytes);
    if (facts.format == "png") {
        readPng(facts);
    } else if (const Result<QSize> size = storedPixelSize(facts.bytes, path); size && isWhole(facts.bytes)) {
        facts.readable = true;
        facts.size = size.value();
        facts.alphaChannel = facts.format != "jpeg";
    }
    return facts;
}

} // namespace lumora
