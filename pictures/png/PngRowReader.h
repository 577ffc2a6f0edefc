// SPDX-License-Identifier: MIT
#pragma once

#include "PngChunks.h"

#include <QByteArrayView>

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace lumora
{

/// Unpacks the raw deflate stream in a PNG file's IDAT chunks row by row and undoes the rows' filters.
class PngRowReader
{
public:
    /// `bytes` is the whole file and must outlive the object; `bytesPerPixel` is 3 or 4.
    PngRowReader(QByteArrayView bytes, int bytesPerPixel);
    ~PngRowReader();
    Q_DISABLE_COPY_MOVE(PngRowReader)

    /// Starts a pass whose rows have this many pixels; its first row has no row above it.
    void beginPass(int columns);
    /// The next row of the pass, valid until the next call; empty when the data is damaged or ends too early.
    std::span<const std::uint8_t> next();

private:
    class Inflater;

    bool inflateRow();
    /// Makes the next IDAT chunk the inflater's input; false when there is none.
    bool nextChunk();

    PngChunkWalk m_chunks;
    int m_pixelBytes;
    std::unique_ptr<Inflater> m_inflater;
    std::vector<std::uint8_t> m_row; ///< the number of its filter and the row
    std::vector<std::uint8_t> m_above;
};

} // namespace lumora
