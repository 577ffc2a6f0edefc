// SPDX-License-Identifier: MIT
#include "PngRowReader.h"

#include <QtEndian>

#include <cstdlib>

namespace lumora
{

namespace
{

constexpr qsizetype signatureSize = 8;

unsigned char paeth(int left, int above, int corner)
{
    const int estimate = left + above - corner;
    const int toLeft = std::abs(estimate - left);
    const int toAbove = std::abs(estimate - above);
    const int toCorner = std::abs(estimate - corner);
    if (toLeft <= toAbove && toLeft <= toCorner)
        return static_cast<unsigned char>(left);
    return static_cast<unsigned char>(toAbove <= toCorner ? above : corner);
}

} // namespace

PngRowReader::PngRowReader(QByteArrayView bytes, int bytesPerPixel)
    : m_bytes(bytes), m_pixel(static_cast<std::size_t>(bytesPerPixel)), m_at(signatureSize),
      m_ready(::inflateInit2(&m_stream, -MAX_WBITS) == Z_OK)
{
}

PngRowReader::~PngRowReader()
{
    if (m_ready)
        ::inflateEnd(&m_stream);
}

void PngRowReader::beginPass(int columns)
{
    const std::size_t size = 1 + static_cast<std::size_t>(columns) * m_pixel;
    m_row.assign(size, 0);
    m_above.assign(size, 0);
}

std::span<const unsigned char> PngRowReader::next()
{
    m_row.swap(m_above);
    if (!m_ready || !inflateRow() || !unfilter(m_row[0]))
        return {};
    return std::span(m_row).subspan(1);
}

bool PngRowReader::nextChunk()
{
    while (m_at <= m_bytes.size() - 12) {
        const qsizetype length = qFromBigEndian<quint32>(m_bytes.data() + m_at);
        const QByteArrayView name = m_bytes.sliced(m_at + 4, 4);
        const qsizetype dataAt = m_at + 8;
        if (length > m_bytes.size() - dataAt - 4 || name == QByteArrayView("IEND"))
            return false;
        m_at = dataAt + length + 4;
        if (name != QByteArrayView("IDAT") || length == 0)
            continue;
        const auto *framed = reinterpret_cast<const Bytef *>(m_bytes.data() + dataAt);
        const uLong checksum = ::crc32(::crc32(0, nullptr, 0), framed - 4, static_cast<uInt>(length + 4));
        if (checksum != qFromBigEndian<quint32>(m_bytes.data() + dataAt + length))
            return false;
        m_stream.next_in = const_cast<Bytef *>(framed); // zlib reads it only
        m_stream.avail_in = static_cast<uInt>(length);
        return true;
    }
    return false;
}

bool PngRowReader::inflateRow()
{
    m_stream.next_out = m_row.data();
    m_stream.avail_out = static_cast<uInt>(m_row.size());
    while (m_stream.avail_out > 0) {
        if (m_stream.avail_in == 0 && !nextChunk())
            return false;
        const int status = ::inflate(&m_stream, Z_NO_FLUSH);
        if (status == Z_STREAM_END)
            return m_stream.avail_out == 0;
        // All input used up without output is no error as long as there are chunks left.
        if (status != Z_OK && !(status == Z_BUF_ERROR && m_stream.avail_in == 0))
            return false;
    }
    return true;
}

bool PngRowReader::unfilter(int filter)
{
    const auto left = [this](std::size_t i) -> int { return i > m_pixel ? m_row[i - m_pixel] : 0; };
    const auto corner = [this](std::size_t i) -> int { return i > m_pixel ? m_above[i - m_pixel] : 0; };
    const auto add = [this](std::size_t i, int prediction) {
        m_row[i] = static_cast<unsigned char>(m_row[i] + prediction);
    };
    switch (filter) {
    case 0:
        return true;
    case 1:
        for (std::size_t i = 1; i < m_row.size(); ++i)
            add(i, left(i));
        return true;
    case 2:
        for (std::size_t i = 1; i < m_row.size(); ++i)
            add(i, m_above[i]);
        return true;
    case 3:
        for (std::size_t i = 1; i < m_row.size(); ++i)
            add(i, (left(i) + m_above[i]) / 2);
        return true;
    case 4:
        for (std::size_t i = 1; i < m_row.size(); ++i)
            add(i, paeth(left(i), m_above[i], corner(i)));
        return true;
    default:
        return false;
    }
}

} // namespace lumora
