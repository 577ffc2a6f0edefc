// SPDX-License-Identifier: MIT
#pragma once

#include "ZipCipher.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

struct z_stream_s;

namespace lumora
{

/// The place of an entry's data in its archive, and its expected result.
struct ZipEntryData
{
    std::uint64_t offset = 0; ///< of the first data byte (or of the encryption header) in the file
    std::uint64_t compressedSize = 0;
    std::uint64_t size = 0;
    unsigned method = 0; ///< 0 stored, 8 deflated
    std::uint32_t crc = 0;
    bool encrypted = false;
    unsigned char passwordCheck = 0; ///< the expected last byte of the decrypted encryption header
};

/// The 64-bit values of an entry whose 32-bit fields overflowed.
struct Zip64Values
{
    std::uint64_t size = 0;
    std::uint64_t compressedSize = 0;
    std::optional<std::uint64_t> localHeader; ///< present when the field holds a further value
};

/// Reads the Zip64 extra field (id 1) from an entry's extra fields. It contains only those of the two sizes that are
/// 0xFFFFFFFF, in this order. Empty when there is no such field or it is too short.
std::optional<Zip64Values> zip64Values(const QByteArray &extraFields, std::uint64_t size, std::uint64_t compressedSize);

/// The position of the data after the local header at `localHeader`; empty if there is no such header.
std::optional<std::uint64_t> dataBehindLocalHeader(QFile &archive, std::uint64_t localHeader);

/// Reads one entry that Debian's minizip cannot read: an encrypted one (the library is built without decryption), or
/// one whose sizes or position need 64 bits (it compares the 32-bit fields with a 64-bit -1 and so never looks).
class ZipEntryReader
{
public:
    /// Empty when the method is unknown or the password is wrong. The archive must outlive the reader.
    static std::unique_ptr<ZipEntryReader> open(QFile &archive, const ZipEntryData &data, const QByteArray &password);
    Q_DISABLE_COPY_MOVE(ZipEntryReader)

    /// Reads up to `size` bytes into the buffer. Returns their number, 0 at the end, a negative number when the data is
    /// damaged.
    int read(char *buffer, unsigned size);
    /// The size of the content in bytes, as the archive states it.
    std::uint64_t size() const { return m_data.size; }
    /// True when the read bytes have the archive's checksum.
    bool checksumMatches() const { return m_checksum == m_data.crc; }

private:
    ZipEntryReader(QFile &archive, const ZipEntryData &data);

    bool passHeader(const QByteArray &password);
    /// Fills the input buffer when it is empty; false on a short read.
    bool fill();
    int copy(unsigned char *buffer, unsigned size);
    int inflateInto(unsigned char *buffer, unsigned size);

    /// Ends the library's decoder.
    struct EndInflating
    {
        void operator()(z_stream_s *stream) const;
    };

    QFile &m_archive;
    ZipEntryData m_data;
    std::optional<ZipCipher> m_cipher;
    std::array<unsigned char, 16384> m_input = {};
    std::unique_ptr<z_stream_s, EndInflating> m_stream; ///< null for stored data
    const unsigned char *m_next = nullptr;              ///< start of the unused input, ...
    unsigned m_available = 0;                           ///< ... and its length in bytes
    std::uint64_t m_position = 0;
    std::uint64_t m_compressedLeft = 0;
    std::uint64_t m_left = 0;
    std::uint32_t m_checksum = 0;
    bool m_ended = false;
};

} // namespace lumora
