// SPDX-License-Identifier: MIT
#include "ZipEntryReader.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

#include <zlib.h>

namespace lumora
{

namespace
{

constexpr std::uint64_t overflowed = 0xFFFFFFFF;
constexpr std::uint64_t zip64Id = 1;
constexpr qint64 localHeaderSize = 30;
constexpr quint32 localHeaderMark = 0x04034b50;
constexpr unsigned stored = 0;
constexpr unsigned deflated = 8;

std::uint64_t littleEndian(QByteArrayView bytes)
{
    std::uint64_t value = 0;
    for (qsizetype i = bytes.size(); i > 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[i - 1]);
    return value;
}

} // namespace

std::optional<Zip64Values> zip64Values(const QByteArray &extraFields, std::uint64_t size, std::uint64_t compressedSize)
{
    for (qsizetype at = 0; at + 4 <= extraFields.size();) {
        const std::uint64_t id = littleEndian(QByteArrayView(extraFields).sliced(at, 2));
        const auto length = static_cast<qsizetype>(littleEndian(QByteArrayView(extraFields).sliced(at + 2, 2)));
        at += 4;
        if (id != zip64Id) {
            at += length;
            continue;
        }
        const qsizetype end = std::min<qsizetype>(at + length, extraFields.size());
        const auto take = [&]() -> std::optional<std::uint64_t> {
            if (at + 8 > end)
                return std::nullopt;
            at += 8;
            return littleEndian(QByteArrayView(extraFields).sliced(at - 8, 8));
        };
        Zip64Values values = {size, compressedSize, std::nullopt};
        for (std::uint64_t *value : {&values.size, &values.compressedSize}) {
            if (*value != overflowed)
                continue;
            const auto wide = take();
            if (!wide)
                return std::nullopt;
            *value = *wide;
        }
        values.localHeader = take();
        return values;
    }
    return std::nullopt;
}

std::optional<std::uint64_t> dataBehindLocalHeader(QFile &archive, std::uint64_t localHeader)
{
    char header[localHeaderSize];
    if (localHeader > static_cast<std::uint64_t>(archive.size()) || !archive.seek(static_cast<qint64>(localHeader)) ||
        archive.read(header, localHeaderSize) != localHeaderSize ||
        qFromLittleEndian<quint32>(header) != localHeaderMark)
        return std::nullopt;
    return localHeader + static_cast<std::uint64_t>(localHeaderSize) + qFromLittleEndian<quint16>(header + 26) +
           qFromLittleEndian<quint16>(header + 28);
}

ZipEntryReader::ZipEntryReader(QFile &archive, const ZipEntryData &data)
    : m_archive(archive), m_data(data), m_position(data.offset), m_compressedLeft(data.compressedSize),
      m_left(data.size)
{
}

std::unique_ptr<ZipEntryReader> ZipEntryReader::open(QFile &archive, const ZipEntryData &data,
                                                     const QByteArray &password)
{
    if (data.method != stored && data.method != deflated)
        return nullptr;
    // Not std::make_unique, since the constructor is private.
    std::unique_ptr<ZipEntryReader> reader(new ZipEntryReader(archive, data));
    if (data.encrypted && !reader->passHeader(password))
        return nullptr;
    if (data.method == deflated) {
        reader->m_stream.reset(new z_stream());
        if (::inflateInit2(reader->m_stream.get(), -MAX_WBITS) != Z_OK)
            return nullptr;
    }
    return reader;
}

void ZipEntryReader::EndInflating::operator()(z_stream_s *stream) const
{
    ::inflateEnd(stream);
    delete stream;
}

bool ZipEntryReader::passHeader(const QByteArray &password)
{
    std::array<unsigned char, ZipCipher::headerSize> header = {};
    if (m_compressedLeft < header.size() || !m_archive.seek(static_cast<qint64>(m_position)) ||
        m_archive.read(reinterpret_cast<char *>(header.data()), header.size()) != qint64{header.size()})
        return false;
    m_position += header.size();
    m_compressedLeft -= header.size();
    m_cipher.emplace(password);
    m_cipher->decrypt(header);
    return header.back() == m_data.passwordCheck;
}

bool ZipEntryReader::fill()
{
    if (m_available > 0 || m_compressedLeft == 0)
        return true;
    const auto wanted = static_cast<qint64>(std::min<std::uint64_t>(m_input.size(), m_compressedLeft));
    if (!m_archive.seek(static_cast<qint64>(m_position)) ||
        m_archive.read(reinterpret_cast<char *>(m_input.data()), wanted) != wanted)
        return false;
    m_position += static_cast<std::uint64_t>(wanted);
    m_compressedLeft -= static_cast<std::uint64_t>(wanted);
    if (m_cipher)
        m_cipher->decrypt(std::span(m_input.data(), static_cast<std::size_t>(wanted)));
    m_next = m_input.data();
    m_available = static_cast<unsigned>(wanted);
    return true;
}

int ZipEntryReader::read(char *buffer, unsigned size)
{
    auto *bytes = reinterpret_cast<unsigned char *>(buffer);
    const auto wanted = static_cast<unsigned>(std::min<std::uint64_t>(size, m_left));
    if (wanted == 0 || m_ended)
        return 0;
    const int count = m_data.method == stored ? copy(bytes, wanted) : inflateInto(bytes, wanted);
    if (count > 0) {
        m_left -= static_cast<unsigned>(count);
        m_checksum = static_cast<std::uint32_t>(::crc32(m_checksum, bytes, static_cast<uInt>(count)));
    }
    return count;
}

int ZipEntryReader::copy(unsigned char *buffer, unsigned size)
{
    if (!fill() || m_available == 0)
        return -1;
    const unsigned count = std::min(size, m_available);
    std::memcpy(buffer, m_next, count);
    m_next += count;
    m_available -= count;
    return static_cast<int>(count);
}

int ZipEntryReader::inflateInto(unsigned char *buffer, unsigned size)
{
    m_stream->next_out = buffer;
    m_stream->avail_out = size;
    while (m_stream->avail_out > 0 && !m_ended) {
        if (!fill())
            return -1;
        // The library's interface takes a pointer to non-constant bytes but does not change them.
        m_stream->next_in = const_cast<unsigned char *>(m_next);
        m_stream->avail_in = m_available;
        const int status = ::inflate(m_stream.get(), Z_SYNC_FLUSH);
        m_next = m_stream->next_in;
        m_available = m_stream->avail_in;
        if (status == Z_STREAM_END)
            m_ended = true;
        else if (status != Z_OK)
            return -1;
    }
    return static_cast<int>(size - m_stream->avail_out);
}

} // namespace lumora
