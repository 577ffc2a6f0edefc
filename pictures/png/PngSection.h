// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

#include <cstdint>
#include <span>

namespace lumora
{

class PngRows;

/// What a PNG file holds of each pixel, 8 bits a channel.
enum class PngChannels {
    Rgba,
    Rgb, ///< without alpha
};

/// A run of rows of one picture, filtered and deflated by itself, so that several cores can work inside one picture.
/// The sections depend only on the picture's size, not on the machine, so the file's bytes are the same everywhere.
struct PngSection
{
    QByteArray deflated; ///< complete deflate blocks, ending at a byte boundary; only the last section ends the stream
    std::uint32_t checksum = 1; ///< Adler-32 of the filtered rows
    qsizetype filteredBytes = 0;
};

/// The number of sections in a picture of that size; 1 for small pictures.
int pngSectionCount(QSize size);

/// Makes one section of a picture. Sections may be made in any order, on any threads.
PngSection makePngSection(const PngRows &picture, int index, PngChannels channels = PngChannels::Rgba);

/// The whole picture as a single section, made with as much effort as is worth its time. For batches, in which each
/// core works on its own picture.
PngSection makeOnlyPngSection(const PngRows &picture);

/// The PNG file of all sections of a picture of that size.
QByteArray joinPngSections(QSize size, std::span<const PngSection> sections, PngChannels channels = PngChannels::Rgba);

} // namespace lumora
