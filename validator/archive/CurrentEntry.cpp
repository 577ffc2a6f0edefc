// SPDX-License-Identifier: MIT
#include "CurrentEntry.h"

#include <algorithm>
#include <optional>

#include <minizip/unzip.h>

namespace lumora
{

namespace
{

constexpr uLong overflowed = 0xFFFFFFFF;
constexpr uLong encryptedFlag = 1;
constexpr uLong sizesFollowFlag = 8;
constexpr uLong stored = 0;
constexpr uLong deflated = 8;

/// The last byte of the encryption header repeats a byte of the checksum, or of the time if the checksum comes after
/// the data.
unsigned char passwordCheck(const unz_file_info64 &info)
{
    if ((info.flag & sizesFollowFlag) != 0)
        return static_cast<unsigned char>((info.dosDate >> 8) & 0xFF);
    return static_cast<unsigned char>(info.crc >> 24);
}

/// The current entry's information and its extra fields; empty when they cannot be read.
std::optional<QByteArray> extraFields(unzFile archive, unz_file_info64 &info)
{
    if (::unzGetCurrentFileInfo64(archive, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        return std::nullopt;
    QByteArray fields(static_cast<qsizetype>(info.size_file_extra), '\0');
    if (!fields.isEmpty() && ::unzGetCurrentFileInfo64(archive, &info, nullptr, 0, fields.data(),
                                                       static_cast<uLong>(fields.size()), nullptr, 0) != UNZ_OK)
        return std::nullopt;
    return fields;
}

} // namespace

CurrentEntry::CurrentEntry(void *archive, const QString &path, const QByteArray &password)
    : m_archive(archive), m_file(path), m_password(password)
{
}

bool CurrentEntry::open()
{
    m_reader.reset();
    m_unreadable = false;
    m_left = 0;
    const int status = m_password.isEmpty() ? ::unzOpenCurrentFile(m_archive)
                                            : ::unzOpenCurrentFilePassword(m_archive, m_password.constData());
    return status == UNZ_OK || openAround();
}

void CurrentEntry::noteSizes(const unz_file_info &info)
{
    if (m_reader)
        return;
    m_left = info.uncompressed_size;
    if (info.uncompressed_size == overflowed || info.compressed_size == overflowed)
        m_unreadable = !openAround();
    else
        m_unreadable = info.compression_method != stored && info.compression_method != deflated;
}

bool CurrentEntry::openAround()
{
    unz_file_info64 info = {};
    const auto fields = extraFields(m_archive, info);
    if (!fields)
        return false;
    ZipEntryData data;
    data.compressedSize = info.compressed_size;
    data.size = info.uncompressed_size;
    data.method = static_cast<unsigned>(info.compression_method);
    data.crc = static_cast<std::uint32_t>(info.crc);
    data.encrypted = (info.flag & encryptedFlag) != 0;
    data.passwordCheck = passwordCheck(info);
    const auto wide = zip64Values(*fields, info.uncompressed_size, info.compressed_size);
    if (wide) {
        data.size = wide->size;
        data.compressedSize = wide->compressedSize;
    }

    if (!m_file.isOpen() && !m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    int method = 0;
    int level = 0;
    if (::unzOpenCurrentFile2(m_archive, &method, &level, 1) == UNZ_OK) {
        data.offset = ::unzGetCurrentFileZStreamPos64(m_archive);
    } else {
        const auto offset =
            wide && wide->localHeader ? dataBehindLocalHeader(m_file, *wide->localHeader) : std::nullopt;
        if (!offset)
            return false;
        data.offset = *offset;
    }
    m_reader = ZipEntryReader::open(m_file, data, m_password);
    return m_reader != nullptr;
}

std::uint64_t CurrentEntry::size(const unz_file_info &info) const
{
    return m_reader ? m_reader->size() : info.uncompressed_size;
}

int CurrentEntry::read(char *buffer, unsigned size)
{
    if (m_unreadable)
        return UNZ_BADZIPFILE;
    if (m_reader)
        return m_reader->read(buffer, size);
    const int count = ::unzReadCurrentFile(m_archive, buffer, size);
    m_left -= std::min<std::uint64_t>(m_left, static_cast<std::uint64_t>(std::max(count, 0)));
    return count;
}

bool CurrentEntry::close()
{
    const int status = ::unzCloseCurrentFile(m_archive);
    // minizip compares checksums only if it has delivered all bytes.
    if (!m_reader)
        return status == UNZ_OK && !m_unreadable && m_left == 0;
    const bool matches = m_reader->checksumMatches();
    m_reader.reset();
    return matches;
}

} // namespace lumora
