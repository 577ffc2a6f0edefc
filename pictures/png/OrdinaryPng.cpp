// SPDX-License-Identifier: MIT
#include "OrdinaryPng.h"

#include "CodePoints.h"
#include "PngChunks.h"
#include "PngHeader.h"
#include "PngUnfilter.h"

#include <libdeflate.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace lumora
{

namespace
{

enum ColorType : std::uint8_t { Gray = 0, Rgb = 2, Palette = 3, GrayAlpha = 4, Rgba = 6 };

constexpr int maximum8Bit = 255;

/// What the chunks before the pixels say.
struct PngInfo
{
    PngHeader header;
    QByteArrayView palette;
    QByteArrayView transparency;

    int channels() const
    {
        switch (header.colorType) {
        case Rgb:
            return 3;
        case GrayAlpha:
            return 2;
        case Rgba:
            return 4;
        default:
            return 1;
        }
    }
    qsizetype rowBytes() const { return (qsizetype{header.size.width()} * channels() * header.bitDepth + 7) / 8; }
};

bool isNear(QByteArrayView content, qsizetype index, std::uint32_t expected, std::uint32_t tolerance)
{
    const std::uint32_t value = bigEndian32(content.sliced(4 * index));
    return value >= expected - tolerance && value <= expected + tolerance;
}

/// gAMA of 1 / 2.2, times 100,000.
bool isSrgbGamma(QByteArrayView content)
{
    return content.size() == 4 && isNear(content, 0, 45455, 50);
}

/// cHRM with the white point and primaries of ITU-R BT.709, times 100,000.
bool areSrgbPrimaries(QByteArrayView content)
{
    constexpr std::array<std::uint32_t, 8> expected = {31270, 32900, 64000, 33000, 30000, 60000, 15000, 6000};
    if (content.size() != 4 * std::ssize(expected))
        return false;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (!isNear(content, static_cast<qsizetype>(i), expected[i], 20))
            return false;
    }
    return true;
}

/// How a file names its colors.
struct ColorMarks
{
    std::optional<CodePoints> points;
    bool srgb = false;
    bool profile = false;
    bool otherGamma = false;
    bool otherPrimaries = false;

    void note(const PngChunkView &chunk)
    {
        if (chunk.type == "cICP") {
            points = codePoints(chunk.content);
        } else if (chunk.type == "sRGB") {
            srgb = true;
        } else if (chunk.type == "iCCP") {
            profile = true;
        } else if (chunk.type == "gAMA") {
            otherGamma = !isSrgbGamma(chunk.content);
        } else if (chunk.type == "cHRM") {
            otherPrimaries = !areSrgbPrimaries(chunk.content);
        }
    }
    /// False where only the general decoder can tell the colors.
    bool colorsAreSrgb() const
    {
        if (points)
            return isSrgb(*points);
        return !profile && (srgb || (!otherGamma && !otherPrimaries));
    }
};

bool isOrdinary(const PngHeader &header)
{
    const bool small = header.bitDepth == 1 || header.bitDepth == 2 || header.bitDepth == 4;
    const bool known =
        (header.bitDepth == 8 && (header.colorType == Gray || header.colorType == Rgb || header.colorType == Palette ||
                                  header.colorType == GrayAlpha || header.colorType == Rgba)) ||
        (small && (header.colorType == Gray || header.colorType == Palette));
    return known && !header.interlaced && !header.appleOptimized;
}

bool isCritical(QByteArrayView type)
{
    return type.front() >= 'A' && type.front() <= 'Z';
}

/// Reads the chunks before the pixels; false when the file is not ordinary. Several IDAT chunks are joined into
/// `joined`.
bool takeChunks(const std::vector<PngChunkView> &chunks, PngInfo &info, QByteArrayView &deflated, QByteArray &joined)
{
    ColorMarks marks;
    std::vector<QByteArrayView> parts;
    for (auto chunk = chunks.begin() + 1; chunk != chunks.end(); ++chunk) {
        marks.note(*chunk);
        if (chunk->type == "IDAT")
            parts.push_back(chunk->content);
        else if (chunk->type == "PLTE")
            info.palette = chunk->content;
        else if (chunk->type == "tRNS")
            info.transparency = chunk->content;
        else if (chunk->type == "eXIf" || (isCritical(chunk->type) && chunk->type != "IEND"))
            return false;
    }
    if (!marks.colorsAreSrgb() || parts.empty() || (info.header.colorType == Palette && info.palette.isEmpty()))
        return false;
    deflated = parts.front();
    if (parts.size() > 1) {
        qsizetype bytes = 0;
        for (const QByteArrayView part : parts)
            bytes += part.size();
        joined.reserve(bytes);
        for (const QByteArrayView part : parts)
            joined.append(part);
        deflated = joined;
    }
    return true;
}

struct FreeDecompressor
{
    void operator()(libdeflate_decompressor *decompressor) const { libdeflate_free_decompressor(decompressor); }
};

bool inflate(QByteArrayView deflated, std::uint8_t *target, std::size_t bytes)
{
    const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(libdeflate_alloc_decompressor());
    return decompressor != nullptr &&
           libdeflate_zlib_decompress(decompressor.get(), deflated.data(), static_cast<std::size_t>(deflated.size()),
                                      target, bytes, nullptr) == LIBDEFLATE_SUCCESS;
}

using Pixel = std::array<std::uint8_t, 4>;

/// The color of every value that a sample of a palette or gray picture can take.
std::array<Pixel, 256> colorTable(const PngInfo &info)
{
    std::array<Pixel, 256> table{};
    const int values = 1 << info.header.bitDepth;
    for (int value = 0; value < values; ++value) {
        Pixel &pixel = table[static_cast<std::size_t>(value)];
        if (info.header.colorType == Palette) {
            // A value beyond the palette is black, as in other decoders.
            for (int channel = 0; channel < 3; ++channel) {
                const qsizetype at = 3 * qsizetype{value} + channel;
                pixel[static_cast<std::size_t>(channel)] =
                    at < info.palette.size() ? static_cast<std::uint8_t>(info.palette.at(at)) : std::uint8_t{0};
            }
            pixel[3] = value < info.transparency.size() ? static_cast<std::uint8_t>(info.transparency.at(value))
                                                        : std::uint8_t{maximum8Bit};
        } else {
            const auto level = static_cast<std::uint8_t>(value * maximum8Bit / (values - 1));
            const bool key = info.transparency.size() == 2 &&
                             static_cast<std::uint8_t>(info.transparency.at(1)) == value &&
                             info.transparency.at(0) == 0;
            pixel = {level, level, level, key ? std::uint8_t{0} : std::uint8_t{maximum8Bit}};
        }
    }
    return table;
}

void expandTable(const std::uint8_t *samples, int depth, int width, const std::array<Pixel, 256> &table,
                 std::uint8_t *pixel)
{
    const unsigned mask = (1U << static_cast<unsigned>(depth)) - 1;
    for (int x = 0; x < width; ++x, pixel += 4) {
        const int bit = x * depth;
        const unsigned shift = static_cast<unsigned>(8 - depth - bit % 8);
        const unsigned value = (static_cast<unsigned>(samples[bit / 8]) >> shift) & mask;
        std::copy_n(table[value].begin(), 4, pixel);
    }
}

void expandRgb(const std::uint8_t *samples, int width, std::uint8_t *pixel)
{
    int x = 0;
    if constexpr (Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
        // Reads four bytes a pixel, which takes a third of the time. Not for the last pixel, since no byte follows it.
        for (; x < width - 1; ++x, samples += 3, pixel += 4) {
            std::uint32_t value = 0;
            std::memcpy(&value, samples, sizeof value);
            value |= 0xFF000000;
            std::memcpy(pixel, &value, sizeof value);
        }
    }
    for (; x < width; ++x, samples += 3, pixel += 4) {
        pixel[0] = samples[0];
        pixel[1] = samples[1];
        pixel[2] = samples[2];
        pixel[3] = maximum8Bit;
    }
}

/// Makes the pixels of an RGB picture's one transparent color transparent.
void applyColorKey(QByteArrayView key, int width, std::uint8_t *pixel)
{
    constexpr qsizetype keyBytes = 6;
    if (key.size() != keyBytes || key.at(0) != 0 || key.at(2) != 0 || key.at(4) != 0)
        return;
    const std::array<std::uint8_t, 3> color = {static_cast<std::uint8_t>(key.at(1)),
                                               static_cast<std::uint8_t>(key.at(3)),
                                               static_cast<std::uint8_t>(key.at(5))};
    for (int x = 0; x < width; ++x, pixel += 4) {
        if (std::equal(color.begin(), color.end(), pixel))
            pixel[3] = 0;
    }
}

void expandGrayAlpha(const std::uint8_t *samples, int width, std::uint8_t *pixel)
{
    for (int x = 0; x < width; ++x, samples += 2, pixel += 4) {
        std::fill_n(pixel, 3, samples[0]);
        pixel[3] = samples[1];
    }
}

} // namespace

std::optional<QImage> decodeOrdinaryPng(const QByteArray &bytes)
{
    const std::optional<PngHeader> header = pngHeader(bytes);
    if (!header || !isOrdinary(*header))
        return std::nullopt;
    const auto chunks = readPngChunks(bytes);
    PngInfo info{*header, {}, {}};
    QByteArrayView deflated;
    QByteArray joined;
    if (!chunks || !takeChunks(*chunks, info, deflated, joined))
        return std::nullopt;

    const auto rowBytes = static_cast<std::size_t>(info.rowBytes());
    const auto stride = rowBytes + 1;
    const auto height = static_cast<std::size_t>(info.header.size.height());
    const std::unique_ptr<std::uint8_t[]> rows(new (std::nothrow) std::uint8_t[stride * height]);
    QImage picture(info.header.size, QImage::Format_RGBA8888);
    if (rows == nullptr || picture.isNull() || !inflate(deflated, rows.get(), stride * height))
        return std::nullopt;

    const int pixelBytes = std::max(1, info.channels() * info.header.bitDepth / 8);
    const std::array<Pixel, 256> table = info.channels() == 1 ? colorTable(info) : std::array<Pixel, 256>{};
    const int width = info.header.size.width();
    const std::vector<std::uint8_t> zeroes(rowBytes);
    const std::uint8_t *above = zeroes.data();
    for (std::size_t y = 0; y < height; ++y) {
        std::uint8_t *row = rows.get() + y * stride + 1;
        if (!unfilterRow(row[-1], row, above, rowBytes, pixelBytes))
            return std::nullopt;
        std::uint8_t *pixel = picture.scanLine(static_cast<int>(y));
        switch (info.header.colorType) {
        case Rgba:
            std::copy_n(row, rowBytes, pixel);
            break;
        case Rgb:
            expandRgb(row, width, pixel);
            applyColorKey(info.transparency, width, pixel);
            break;
        case GrayAlpha:
            expandGrayAlpha(row, width, pixel);
            break;
        default:
            expandTable(row, info.header.bitDepth, width, table, pixel);
        }
        above = row;
    }
    return picture;
}

} // namespace lumora
