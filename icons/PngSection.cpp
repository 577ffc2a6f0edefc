// SPDX-License-Identifier: MIT
#include "PngSection.h"

#include "PngDeflate.h"
#include "PngFilter.h"
#include "PngRows.h"

#include <QtEndian>

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace lumora
{

namespace
{

// docs/performance.md holds the measurements behind these figures.

/// Of filtered rows; large enough that what a section cannot find in the one before it does not count.
constexpr qsizetype bytesPerSection = 1024 * 1024;

/// Of filtered rows; a quarter of a section, within these limits, stands for it when its filters are chosen.
constexpr qsizetype smallestSample = 16 * 1024;
constexpr qsizetype largestSample = 64 * 1024;
constexpr qsizetype shareOfSample = 4;
/// A sample's rows come from as many places.
constexpr int placesPerSample = 4;

/// Rows with more novelty are a photograph's.
constexpr double mostNoveltyOfDrawings = 0.6;

/// Noise is its own limit: higher levels only take longer.
constexpr int noiseLevel = 4;
/// Drawings gain at every level and are fast to compress.
constexpr int drawingLevel = 6;

/// Enough to tell which filters suit noise.
constexpr int trialLevel = 1;
/// Of batches: what compresses to no less than this share of its bytes at that level is taken for noise.
constexpr double noisyShare = 0.3;

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

struct CompressedRows
{
    std::vector<std::uint8_t> rows;
    QByteArray stream;
};

CompressedRows compressed(std::vector<std::uint8_t> rows, int level)
{
    QByteArray stream = deflated(rows, level);
    return {std::move(rows), std::move(stream)};
}

/// The rows from which a section's filters are chosen: all of them where there are few.
std::vector<RowRange> sampleOf(const PngRows &picture, RowRange section)
{
    const int count = section.end - section.first;
    const qsizetype rowBytes = filteredRowBytes(picture.size());
    const qsizetype bytes = std::clamp(count * rowBytes / shareOfSample, smallestSample, largestSample);
    const auto wanted = static_cast<int>(bytes / rowBytes);
    if (count <= std::max(wanted, placesPerSample))
        return {section};
    const int each = std::max(wanted / placesPerSample, 1);
    std::vector<RowRange> sample;
    for (int place = 0; place < placesPerSample; ++place) {
        const int middle = section.first + count * (2 * place + 1) / (2 * placesPerSample);
        const int first = std::clamp(middle - each / 2, section.first, section.end - each);
        sample.push_back({first, first + each});
    }
    return sample;
}

/// No rule tells which filters suit a picture: plain shapes shrink most without any, slow shades and some photographs
/// by the pixel to the left, most photographs by a choice for each row. So they are tried.
CompressedRows compressed(const PngRows &picture, RowRange section)
{
    const std::vector<RowRange> sample = sampleOf(picture, section);
    std::vector<std::uint8_t> plain = filteredRows(picture, sample, PngFilterChoice::None);
    const bool noisy = novelty(plain, picture.size().width()) > mostNoveltyOfDrawings;
    const int sampleLevel = noisy ? trialLevel : drawingLevel;
    PngFilterChoice choice = PngFilterChoice::Left;
    CompressedRows best = compressed(filteredRows(picture, sample, choice), sampleLevel);
    const auto tryOther = [&](PngFilterChoice other, std::vector<std::uint8_t> rows) {
        CompressedRows tried = compressed(std::move(rows), sampleLevel);
        if (tried.stream.size() >= best.stream.size())
            return;
        best = std::move(tried);
        choice = other;
    };
    if (!noisy)
        tryOther(PngFilterChoice::None, std::move(plain));
    // What suits plain shapes leaves the costliest choice nothing to gain.
    if (choice != PngFilterChoice::None)
        tryOther(PngFilterChoice::Adaptive, filteredRows(picture, sample, PngFilterChoice::Adaptive));
    const bool sampleIsAll = sample.size() == 1;
    if (sampleIsAll && !noisy)
        return best;
    return compressed(filteredRows(picture, {&section, 1}, choice), noisy ? noiseLevel : drawingLevel);
}

PngSection finished(CompressedRows compressed)
{
    PngSection section;
    section.filteredBytes = static_cast<qsizetype>(compressed.rows.size());
    section.checksum = libdeflate_adler32(1, compressed.rows.data(), compressed.rows.size());
    section.deflated = std::move(compressed.stream);
    return section;
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
    PngSection section = finished(compressed(picture, {first, end}));
    if (index + 1 < sections)
        keepOpen(section.deflated);
    // Made as long as the worst case; of a large and plain picture nearly all of that would stay behind.
    section.deflated.squeeze();
    return section;
}

PngSection makeOnlyPngSection(const PngRows &picture)
{
    const RowRange all{0, picture.size().height()};
    CompressedRows result = compressed(filteredRows(picture, {&all, 1}, PngFilterChoice::Adaptive), trialLevel);
    // Flat drawings shrink further for next to nothing; noise takes twice the time for a twentieth of its bytes.
    if (static_cast<double>(result.stream.size()) < noisyShare * static_cast<double>(result.rows.size()))
        result.stream = deflated(result.rows, drawingLevel);
    return finished(std::move(result));
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
