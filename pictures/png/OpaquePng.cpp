// SPDX-License-Identifier: MIT
#include "OpaquePng.h"

#include "PngDeflate.h"
#include "PngFilter.h"
#include "PngRows.h"
#include "pictures/pixels/PixelFormat.h"

#include <QtEndian>

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <thread>
#include <vector>

namespace lumora
{

namespace
{

/// Of filtered rows without alpha; large enough that what a section cannot find in the one before it does not count.
constexpr qsizetype bytesPerSection = 768 * 1024;
/// Rows by which a section's filters are chosen.
constexpr int sampledRows = 16;
/// Rows with more novelty are a photograph's, which gain little from effort.
constexpr double mostNoveltyOfDrawings = 0.6;
constexpr int trialLevel = 1;
constexpr int photographLevel = 4;
constexpr int drawingLevel = 6;

struct Section
{
    QByteArray deflated;
    std::uint32_t checksum = 1;
    qsizetype filteredBytes = 0;
};

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

Section makeSection(const PngRows &picture, RowRange rows)
{
    const int width = picture.size().width();
    const int middle = (rows.first + rows.end) / 2;
    const RowRange sample{std::max(rows.first, middle - sampledRows / 2), std::min(rows.end, middle + sampledRows / 2)};
    const std::vector<std::uint8_t> plain = filteredRows(picture, {&sample, 1}, PngFilterChoice::None);
    const bool photograph = novelty(plain, width) > mostNoveltyOfDrawings;
    PngFilterChoice best = PngFilterChoice::None;
    qsizetype least = deflated(withoutAlpha(plain, width), trialLevel).size();
    for (const PngFilterChoice choice :
         {PngFilterChoice::Left, PngFilterChoice::Up, PngFilterChoice::Average, PngFilterChoice::ByEntropy}) {
        const qsizetype bytes =
            deflated(withoutAlpha(filteredRows(picture, {&sample, 1}, choice), width), trialLevel).size();
        if (bytes < least) {
            least = bytes;
            best = choice;
        }
    }
    const std::vector<std::uint8_t> filtered = withoutAlpha(filteredRows(picture, {&rows, 1}, best), width);
    Section section;
    section.deflated = deflated(filtered, photograph ? photographLevel : drawingLevel);
    section.deflated.squeeze();
    section.checksum = libdeflate_adler32(1, filtered.data(), filtered.size());
    section.filteredBytes = static_cast<qsizetype>(filtered.size());
    return section;
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

QByteArray pngFile(QSize size, const std::vector<Section> &sections)
{
    QByteArray header;
    append32(header, static_cast<std::uint32_t>(size.width()));
    append32(header, static_cast<std::uint32_t>(size.height()));
    // 8 bits a sample, RGB, deflate, adaptive filters, not interlaced.
    header.append(QByteArrayView("\x08\x02\x00\x00\x00", 5));
    QByteArray stream(QByteArrayView("\x78\x9C", 2).toByteArray());
    uLong checksum = 1;
    for (const Section &section : sections) {
        stream.append(section.deflated);
        checksum = adler32_combine(checksum, section.checksum, static_cast<z_off_t>(section.filteredBytes));
    }
    append32(stream, static_cast<std::uint32_t>(checksum));
    QByteArray file(QByteArrayView("\x89PNG\r\n\x1A\n", 8).toByteArray());
    appendChunk(file, "IHDR", header);
    // Rendering intent: perceptual.
    appendChunk(file, "sRGB", QByteArrayView("\x00", 1));
    appendChunk(file, "IDAT", stream);
    appendChunk(file, "IEND", {});
    return file;
}

} // namespace

QByteArray encodeOpaquePng(const QImage &picture, int threads)
{
    if (picture.isNull())
        return {};
    // The premultiplied colors are those of the picture on black.
    QImage opaque = premultiplied(picture);
    opaque.reinterpretAsFormat(QImage::Format_RGBA8888);
    return encodeOpaquePng(ImageRows(opaque), threads);
}

QByteArray encodeOpaquePng(const PngRows &rows, int threads)
{
    const QSize size = rows.size();
    const int height = size.height();
    const qsizetype bytes = (qsizetype{size.width()} * 3 + 1) * height;
    const auto count = static_cast<std::size_t>(std::clamp<qsizetype>(bytes / bytesPerSection, 1, height));
    std::vector<Section> sections(count);
    std::atomic<std::size_t> next = 0;
    const auto makeSections = [&] {
        for (std::size_t index = next++; index < count; index = next++) {
            const auto border = [&](std::size_t at) {
                return static_cast<int>(static_cast<std::size_t>(height) * at / count);
            };
            sections[index] = makeSection(rows, {border(index), border(index + 1)});
            if (index + 1 < count)
                keepOpen(sections[index].deflated);
        }
    };
    {
        std::vector<std::jthread> others;
        for (std::size_t i = 1; i < std::min(static_cast<std::size_t>(std::max(threads, 1)), count); ++i)
            others.emplace_back(makeSections);
        makeSections();
    }
    return pngFile(size, sections);
}

} // namespace lumora
