// SPDX-License-Identifier: MIT
#include "PngRowReader.h"

#include "PngUnfilter.h"

#include <zlib.h>

namespace lumora
{

/// zlib's state for a raw deflate stream.
class PngRowReader::Inflater
{
public:
    Inflater() : m_ready(::inflateInit2(&m_stream, -MAX_WBITS) == Z_OK) {}
    ~Inflater()
    {
        if (m_ready)
            ::inflateEnd(&m_stream);
    }
    Q_DISABLE_COPY_MOVE(Inflater)

    bool isReady() const { return m_ready; }
    z_stream &stream() { return m_stream; }

private:
    z_stream m_stream = {};
    bool m_ready;
};

PngRowReader::PngRowReader(QByteArrayView bytes, int bytesPerPixel)
    : m_chunks(bytes), m_pixelBytes(bytesPerPixel), m_inflater(std::make_unique<Inflater>())
{
}

PngRowReader::~PngRowReader() = default;

void PngRowReader::beginPass(int columns)
{
    const std::size_t size = 1 + static_cast<std::size_t>(columns) * static_cast<std::size_t>(m_pixelBytes);
    m_row.assign(size, 0);
    m_above.assign(size, 0);
}

std::span<const std::uint8_t> PngRowReader::next()
{
    m_row.swap(m_above);
    if (!m_inflater->isReady() || !inflateRow() ||
        !unfilterRow(m_row[0], m_row.data() + 1, m_above.data() + 1, m_row.size() - 1, m_pixelBytes))
        return {};
    return std::span(m_row).subspan(1);
}

bool PngRowReader::nextChunk()
{
    while (const auto chunk = m_chunks.next()) {
        if (chunk->type == "IEND")
            return false;
        if (chunk->type != "IDAT" || chunk->content.isEmpty())
            continue;
        if (!chunk->isUndamaged())
            return false;
        z_stream &stream = m_inflater->stream();
        // zlib only reads it.
        stream.next_in = const_cast<Bytef *>(reinterpret_cast<const Bytef *>(chunk->content.data()));
        stream.avail_in = static_cast<uInt>(chunk->content.size());
        return true;
    }
    return false;
}

bool PngRowReader::inflateRow()
{
    z_stream &stream = m_inflater->stream();
    stream.next_out = m_row.data();
    stream.avail_out = static_cast<uInt>(m_row.size());
    while (stream.avail_out > 0) {
        if (stream.avail_in == 0 && !nextChunk())
            return false;
        const int status = ::inflate(&stream, Z_NO_FLUSH);
        if (status == Z_STREAM_END)
            return stream.avail_out == 0;
        // Input may run out without output; that is an error only after the last chunk.
        if (status != Z_OK && !(status == Z_BUF_ERROR && stream.avail_in == 0))
            return false;
    }
    return true;
}

} // namespace lumora
