// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <span>
#include <vector>

#include <zlib.h>

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

    /// Starts a pass whose rows have this many pixels; there is no row above its first one.
    void beginPass(int columns);
    /// The next row of the pass, valid until the next call; empty when the data is damaged or ends too early.
    std::span<const unsigned char> next();

private:
    bool inflateRow();
    /// Makes the next IDAT chunk the inflater's input; false when there is none.
    bool nextChunk();
    bool unfilter(int filter);

    QByteArrayView m_bytes;
    std::size_t m_pixel;
    qsizetype m_at = 0;
    z_stream m_stream = {};
    bool m_ready = false;
    std::vector<unsigned char> m_row; ///< the filter byte and the row
    std::vector<unsigned char> m_above;
};

} // namespace lumora
