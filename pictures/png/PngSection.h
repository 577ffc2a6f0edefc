// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

#include <cstdint>
#include <span>

namespace lumora
{

class PngRows;

/// A run of rows of one picture, filtered and deflated by itself, so that several cores can work inside one picture.
/// The sections of a picture follow from its size alone, never from the machine, so the file's bytes do not either.
struct PngSection
{
    QByteArray deflated; ///< whole deflate blocks, ended at a byte's border; only the last section's end the stream
    std::uint32_t checksum = 1; ///< Adler-32 of the filtered rows
    qsizetype filteredBytes = 0;
};

/// How many sections a picture of that size is made of; 1 for small ones.
int pngSectionCount(QSize size);

/// Makes one section of a picture. Sections may be made in any order, on any threads.
PngSection makePngSection(const PngRows &picture, int index);

/// The whole picture as its only section, with no more effort than pays. For batches, in which every core has a picture
/// of its own.
PngSection makeOnlyPngSection(const PngRows &picture);

/// The PNG file of all sections of a picture of that size.
QByteArray joinPngSections(QSize size, std::span<const PngSection> sections);

} // namespace lumora
