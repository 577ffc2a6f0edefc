// SPDX-License-Identifier: MIT
#include "PngSection.h"

#include "PngFilter.h"
#include "PngRows.h"

#include <QtEndian>

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <memory>
#include <new>
#include <vector>

namespace lumora
{

namespace
{

// docs/performance.md holds the measurements behind these figures.

/// Of filtered rows; large enough that what a section cannot find in the one before it does not count.
constexpr qsizetype bytesPerSection = 1024 * 1024;

/// Noise is its own limit: higher levels only take longer.
constexpr int noiseLevel = 4;
/// Drawings gain at every level and are fast to compress.
constexpr int drawingLevel = 6;
/// Tells which filters suit a drawing better.
constexpr int trialLevel = 1;
/// Of batches: what compresses to no less than this share of its bytes at the trial level is taken for noise.
constexpr double noisyShare = 0.3;

/// Rows with a novelty in between are a drawing's. Below, there is nothing to gain; above, it is a photograph.
constexpr double leastNoveltyOfDrawings = 0.002;
constexpr double mostNoveltyOfDrawings = 0.35;

struct FreeCompressor
{
    void operator()(libdeflate_compressor *compressor) const { libdeflate_free_compressor(compressor); }
};

/// Where the last block of a deflate stream begins, and how many bits of the stream's last byte are unused.
struct StreamEnd
{
    std::size_t lastBlockBit = 0;
    unsigned unusedBits = 0;
};

StreamEnd findStreamEnd(const QByteArray &stream)
{
    z_stream inflater{};
    if (inflateInit2(&inflater, -MAX_WBITS) != Z_OK)
        throw std::bad_alloc();
    const std::unique_ptr<z_stream, void (*)(z_stream *)> closed(&inflater, [](z_stream *z) { inflateEnd(z); });

    std::vector<Bytef> sink(1 << 16);
    inflater.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(stream.constData()));
    inflater.avail_in = static_cast<uInt>(stream.size());
    StreamEnd end;
    for (;;) {
        inflater.next_out = sink.data();
        inflater.avail_out = static_cast<uInt>(sink.size());
        const int status = inflate(&inflater, Z_BLOCK);
        const auto unused = static_cast<unsigned>(inflater.data_type) & 7U;
        const bool afterBlock = (static_cast<unsigned>(inflater.data_type) & 128U) != 0;
        const bool inLastBlock = (static_cast<unsigned>(inflater.data_type) & 64U) != 0;
        if (afterBlock && inLastBlock) {
            end.unusedBits = unused;
            return end;
        }
        if (afterBlock)
            end.lastBlockBit = inflater.total_in * 8 - unused;
        if (status != Z_OK && status != Z_BUF_ERROR)
            return end;
    }
}

/// Turns a finished stream into one that another may follow: its last block is no longer marked as such, and an empty
/// stored block fills it up to a byte's border.
void keepOpen(QByteArray &stream)
{
    const StreamEnd end = findStreamEnd(stream);
    auto *bytes = reinterpret_cast<std::uint8_t *>(stream.data());
    bytes[end.lastBlockBit / 8] &= static_cast<std::uint8_t>(~(1U << (end.lastBlockBit % 8)));
    constexpr unsigned storedBlockHeaderBits = 3;
    if (end.unusedBits < storedBlockHeaderBits)
        stream.append('\0');
    stream.append(QByteArrayView("\x00\x00\xFF\xFF", 4));
}

void append32(QByteArray &bytes, std::uint32_t number)
{
    const std::uint32_t bigEndian = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
}

void appendChunk(QByteArray &file, QByteArrayView type, QByteArrayView content)
{
    append32(file, static_cast<std::uint32_t>(content.size()));
    const qsizetype checked = file.size();
    file.append(type).append(content);
    append32(file, libdeflate_crc32(0, file.constData() + checked, static_cast<std::size_t>(file.size() - checked)));
}

QByteArray header(QSize size)
{
    QByteArray content;
    append32(content, static_cast<std::uint32_t>(size.width()));
    append32(content, static_cast<std::uint32_t>(size.height()));
    // 8 bits a sample, RGBA, deflate, adaptive filters, not interlaced.
    content.append(QByteArrayView("\x08\x06\x00\x00\x00", 5));
    return content;
}

qsizetype filteredRowBytes(QSize size)
{
    return qsizetype{size.width()} * 4 + 1;
}

QByteArray deflated(const std::vector<std::uint8_t> &rows, int level)
{
    const std::unique_ptr<libdeflate_compressor, FreeCompressor> compressor(libdeflate_alloc_compressor(level));
    if (compressor == nullptr)
        throw std::bad_alloc();
    const std::size_t bound = libdeflate_deflate_compress_bound(compressor.get(), rows.size());
    QByteArray stream(static_cast<qsizetype>(bound), Qt::Uninitialized);
    stream.resize(static_cast<qsizetype>(
        libdeflate_deflate_compress(compressor.get(), rows.data(), rows.size(), stream.data(), bound)));
    return stream;
}

struct RowsToCompress
{
    std::vector<std::uint8_t> rows;
    int level;
};

RowsToCompress rowsToCompress(const PngRows &picture, int first, int end)
{
    std::vector<std::uint8_t> plain = filteredRows(picture, first, end, PngFilterChoice::None);
    std::vector<std::uint8_t> adaptive = filteredRows(picture, first, end, PngFilterChoice::Adaptive);
    const double share = novelty(plain, picture.size().width());
    if (share < leastNoveltyOfDrawings || share > mostNoveltyOfDrawings)
        return {std::move(adaptive), noiseLevel};
    const bool plainIsSmaller = deflated(plain, trialLevel).size() < deflated(adaptive, trialLevel).size();
    return {std::move(plainIsSmaller ? plain : adaptive), drawingLevel};
}

} // namespace

int pngSectionCount(QSize size)
{
    const qsizetype bytes = filteredRowBytes(size) * size.height();
    return static_cast<int>(std::clamp<qsizetype>(bytes / bytesPerSection, 1, std::max(size.height(), 1)));
}

PngSection makePngSection(const PngRows &picture, int index)
{
    const qint64 height = picture.size().height();
    const qint64 sections = pngSectionCount(picture.size());
    const int first = static_cast<int>(height * index / sections);
    const int end = static_cast<int>(height * (index + 1) / sections);
    const auto [rows, level] = rowsToCompress(picture, first, end);

    PngSection section;
    section.filteredBytes = static_cast<qsizetype>(rows.size());
    section.checksum = libdeflate_adler32(1, rows.data(), rows.size());
    section.deflated = deflated(rows, level);
    if (index + 1 < sections)
        keepOpen(section.deflated);
    return section;
}

PngSection makeOnlyPngSection(const PngRows &picture)
{
    const std::vector<std::uint8_t> rows = filteredRows(picture, 0, picture.size().height(), PngFilterChoice::Adaptive);
    PngSection section;
    section.filteredBytes = static_cast<qsizetype>(rows.size());
    section.checksum = libdeflate_adler32(1, rows.data(), rows.size());
    section.deflated = deflated(rows, trialLevel);
    // Flat drawings shrink further for next to nothing; noise takes twice the time for a twentieth of its bytes.
    if (static_cast<double>(section.deflated.size()) < noisyShare * static_cast<double>(rows.size()))
        section.deflated = deflated(rows, drawingLevel);
    return section;
}

QByteArray joinPngSections(QSize size, std::span<const PngSection> sections)
{
    // The zlib header names a 32 KiB window and carries no hint of the effort spent.
    QByteArray stream(QByteArrayView("\x78\x9C", 2).toByteArray());
    uLong checksum = 1;
    for (const PngSection &section : sections) {
        stream.append(section.deflated);
        checksum = adler32_combine(checksum, section.checksum, static_cast<z_off_t>(section.filteredBytes));
    }
    append32(stream, static_cast<std::uint32_t>(checksum));

    QByteArray file(QByteArrayView("\x89PNG\r\n\x1A\n", 8).toByteArray());
    file.reserve(stream.size() + 128);
    appendChunk(file, "IHDR", header(size));
    // Rendering intent: perceptual.
    appendChunk(file, "sRGB", QByteArrayView("\x00", 1));
    appendChunk(file, "IDAT", stream);
    appendChunk(file, "IEND", {});
    return file;
}

} // namespace lumora
