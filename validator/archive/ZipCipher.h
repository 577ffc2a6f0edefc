// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <array>
#include <cstdint>
#include <span>

namespace lumora
{

/// The traditional encryption of zip archives: a stream cipher over three 32-bit keys, as PKWARE's application note
/// (APPNOTE 6.1) gives it. Weak by today's measure; it is what password-protected archives use. Debian's minizip is
/// built without the reading side of it, and its writing side takes the CRC table for one of 64-bit words, which no
/// other program can read.
class ZipCipher
{
public:
    /// Bytes of random header in front of the entry's data.
    static constexpr std::size_t headerSize = 12;

    explicit ZipCipher(const QByteArray &password);

    void decrypt(std::span<unsigned char> bytes);
    void encrypt(std::span<unsigned char> bytes);

private:
    unsigned char keyByte() const;
    void update(unsigned char plain);

    std::array<std::uint32_t, 3> m_keys = {0x12345678, 0x23456789, 0x34567890};
};

} // namespace lumora
