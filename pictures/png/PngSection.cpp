// SPDX-License-Identifier: MIT
#include "PngSection.h"

#include "PngChunks.h"
#include "PngDeflate.h"
#include "PngFilter.h"
#include "PngRows.h"

#include <QtEndian>

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

namespace lumora
{

namespace
{

// docs/performance.md holds the measurements behind these figures.

/// Bytes of filtered rows: large enough that a section loses little by not looking back into the previous one.
constexpr qsizetype bytesPerSection = 1024 * 1024;

/// Bytes of filtered rows: a section's filters are chosen on a quarter of it, within these limits.
constexpr qsizetype smallestSample = 16 * 1024;
constexpr qsizetype largestSample = 64 * 1024;
constexpr qsizetype shareOfSample = 4;
/// The number of places from which a sample's rows come.
constexpr int placesPerSample = 4;

/// Rows with more novelty count as a photograph.
constexpr double mostNoveltyOfDrawings = 0.6;

/// libdeflate's level on which a drawing's filters are tried.
constexpr int drawingTrialLevel = 4;
/// Choosing a filter for each row is the slowest way; it must save at least 1/128 of the bytes that one filter for all
/// rows takes.
constexpr qsizetype leastGainOfRows = 128;

/// The level on which a photo's filters are tried, and its level in a batch.
constexpr int trialLevel = 1;
/// In batches: a photo that stays above this share of its bytes at that level is mostly noise.
constexpr double noisyShare = 0.3;
/// libdeflate's level for drawings in a batch.
constexpr int batchDrawingLevel = 6;
/// In batches: rows in eighths of the picture on which it is tried whether a filter gains anything, and the share of
/// the other's bytes below which one way is certain to be the better one.
constexpr int trialPlaces = 8;
constexpr int shareOfTrial = 8;
constexpr double clearlySmaller = 0.75;
/// In batches: a drawing that shrinks to one byte in this many without a filter gains too little from a filter.
constexpr qsizetype plainEnough = 20;

qsizetype filteredRowBytes(QSize size)
{
    return qsizetype{size.width()} * 4 + 1;
}

/// libdeflate's levels for small, middle and large pictures. In large noisy pictures, higher levels take several times
/// as long to save a few percent; small pictures have less noise left and more to gain.
using Levels = std::array<int, 3>;
constexpr Levels noiseLevels = {7, 6, 4};
constexpr Levels drawingLevels = {7, 6, 6};
/// Plain shapes, which shrink most without a filter and are fast to compress.
constexpr Levels shapesLevels = {7, 7, 8};

/// The sizes at which the level changes, in bytes of filtered rows.
constexpr qsizetype largestOfSmall = 512 * 1024;
constexpr qsizetype largestOfMiddle = 2 * 1024 * 1024;

int levelFor(const Levels &levels, QSize size)
{
    const qsizetype bytes = filteredRowBytes(size) * size.height();
    return levels[bytes <= largestOfSmall ? 0 : bytes <= largestOfMiddle ? 1 : 2];
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

QByteArray header(QSize size, PngChannels channels)
{
    QByteArray content;
    append32(content, static_cast<std::uint32_t>(size.width()));
    append32(content, static_cast<std::uint32_t>(size.height()));
    content.append(8);
    // The types of color: RGB with and without alpha.
    content.append(channels == PngChannels::Rgba ? 6 : 2);
    // Deflate, adaptive filters, not interlaced.
    content.append(3, '\0');
    return content;
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

/// Every filter looks at one channel alone, so the filtered rows of RGBA without each fourth byte are those of RGB.
std::vector<std::uint8_t> withoutAlpha(const std::vector<std::uint8_t> &rows, int width)
{
    const std::size_t from = static_cast<std::size_t>(width) * 4 + 1;
    const std::size_t to = static_cast<std::size_t>(width) * 3 + 1;
    std::vector<std::uint8_t> result(rows.size() / from * to);
    for (std::size_t row = 0; row < rows.size() / from; ++row) {
        const std::uint8_t *in = rows.data() + row * from;
        std::uint8_t *out = result.data() + row * to;
        *out++ = *in++;
        for (int x = 0; x < width; ++x, in += 4, out += 3)
            std::memcpy(out, in, 3);
    }
    return result;
}

/// The rows from which a section's filters are chosen; all rows of a small section.
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

/// No rule predicts the best filters: plain shapes shrink most without a filter, gentle gradients by the pixel to the
/// left, and photographs as often by one filter for all rows as by a choice for each row. So the choices are tried.
CompressedRows compressed(const PngRows &picture, RowRange section, PngChannels channels)
{
    const std::vector<RowRange> sample = sampleOf(picture, section);
    std::vector<std::uint8_t> plain = filteredRows(picture, sample, PngFilterChoice::None);
    const bool noisy = novelty(plain, picture.size().width()) > mostNoveltyOfDrawings;
    const int trial = noisy ? trialLevel : drawingTrialLevel;
    PngFilterChoice choice = PngFilterChoice::Left;
    const auto stored = [&](std::vector<std::uint8_t> rows) {
        return channels == PngChannels::Rgba ? rows : withoutAlpha(rows, picture.size().width());
    };
    CompressedRows best = compressed(stored(filteredRows(picture, sample, choice)), trial);
    const auto tryRows = [&](PngFilterChoice other, std::vector<std::uint8_t> rows, qsizetype leastGain) {
        CompressedRows tried = compressed(stored(std::move(rows)), trial);
        if (tried.stream.size() >= best.stream.size() - leastGain)
            return;
        best = std::move(tried);
        choice = other;
    };
    const auto tryOther = [&](PngFilterChoice other, qsizetype leastGain) {
        tryRows(other, filteredRows(picture, sample, other), leastGain);
    };
    if (noisy) {
        tryOther(PngFilterChoice::Up, 0);
        tryOther(PngFilterChoice::Average, 0);
    } else {
        tryRows(PngFilterChoice::None, std::move(plain), 0);
    }
    // Where no filter is best, a choice for each row gains nothing.
    if (choice != PngFilterChoice::None)
        tryOther(PngFilterChoice::ByEntropy, best.stream.size() / leastGainOfRows);
    if (const bool sampleIsAll = sample.size() == 1; !sampleIsAll)
        best.rows = stored(filteredRows(picture, {&section, 1}, choice));
    const Levels &levels = noisy ? noiseLevels : choice == PngFilterChoice::None ? shapesLevels : drawingLevels;
    best.stream = deflated(best.rows, levelFor(levels, picture.size()));
    return best;
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

PngSection makePngSection(const PngRows &picture, int index, PngChannels channels)
{
    const qint64 height = picture.size().height();
    const qint64 sections = pngSectionCount(picture.size());
    const int first = static_cast<int>(height * index / sections);
    const int end = static_cast<int>(height * (index + 1) / sections);
    PngSection section = finished(compressed(picture, {first, end}, channels));
    if (index + 1 < sections)
        keepOpen(section.deflated);
    // The buffer has the length of the worst case; for a large, plain picture nearly all of it is unused.
    section.deflated.squeeze();
    return section;
}

namespace
{

/// Some rows from every part of the picture.
std::vector<RowRange> trialRowsOf(const PngRows &picture)
{
    const int height = picture.size().height();
    std::vector<RowRange> rows;
    for (int place = 0; place < trialPlaces; ++place) {
        const int first = height * place / trialPlaces;
        const int part = height * (place + 1) / trialPlaces - first;
        rows.push_back({first + part / 2, first + part / 2 + (part + shareOfTrial - 1) / shareOfTrial});
    }
    return rows;
}

} // namespace

PngSection makeOnlyPngSection(const PngRows &picture)
{
    const RowRange all{0, picture.size().height()};
    const auto rowsBy = [&](PngFilterChoice choice) { return filteredRows(picture, {&all, 1}, choice); };
    std::vector<std::uint8_t> plain = rowsBy(PngFilterChoice::None);
    if (novelty(plain, picture.size().width()) > mostNoveltyOfDrawings) {
        CompressedRows photo = compressed(rowsBy(PngFilterChoice::ByMagnitude), trialLevel);
        // At a higher level gentle gradients shrink further in little time, but noise takes twice the time to save a
        // twentieth.
        if (static_cast<double>(photo.stream.size()) < noisyShare * static_cast<double>(photo.rows.size()))
            photo.stream = deflated(photo.rows, batchDrawingLevel);
        return finished(std::move(photo));
    }
    const std::vector<RowRange> sample = trialRowsOf(picture);
    const auto trialOf = [&](PngFilterChoice choice) {
        return static_cast<double>(deflated(filteredRows(picture, sample, choice), trialLevel).size());
    };
    const double plainTrial = trialOf(PngFilterChoice::None);
    const double filteredTrial = trialOf(PngFilterChoice::ByMagnitude);
    // Only between near equals, both ways are taken to the end.
    if (filteredTrial < clearlySmaller * plainTrial)
        return finished(compressed(rowsBy(PngFilterChoice::ByMagnitude), batchDrawingLevel));
    CompressedRows drawing = compressed(std::move(plain), batchDrawingLevel);
    if (plainTrial >= clearlySmaller * filteredTrial &&
        drawing.stream.size() * plainEnough > std::ssize(drawing.rows)) {
        CompressedRows filtered = compressed(rowsBy(PngFilterChoice::ByMagnitude), batchDrawingLevel);
        if (filtered.stream.size() < drawing.stream.size())
            drawing = std::move(filtered);
    }
    return finished(std::move(drawing));
}

QByteArray joinPngSections(QSize size, std::span<const PngSection> sections, PngChannels channels)
{
    // The zlib header names a 32 KiB window and gives no compression level.
    QByteArray stream(QByteArrayView("\x78\x9C", 2).toByteArray());
    uLong checksum = 1;
    for (const PngSection &section : sections) {
        stream.append(section.deflated);
        checksum = adler32_combine(checksum, section.checksum, static_cast<z_off_t>(section.filteredBytes));
    }
    append32(stream, static_cast<std::uint32_t>(checksum));

    QByteArray file(pngSignature.toByteArray());
    file.reserve(stream.size() + 128);
    appendChunk(file, "IHDR", header(size, channels));
    // Rendering intent: perceptual.
    appendChunk(file, "sRGB", QByteArrayView("\x00", 1));
    appendChunk(file, "IDAT", stream);
    appendChunk(file, "IEND", {});
    return file;
}

} // namespace lumora
