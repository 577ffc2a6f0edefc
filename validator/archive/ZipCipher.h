// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <array>
#include <cstdint>
#include <span>

namespace lumora
{

/// The traditional encryption of zip archives: a stream cipher over three 32-bit keys, as PKWARE's application note
/// (APPNOTE 6.1) defines it. It is weak, but password-protected archives use it. Debian's minizip is built without the
/// reading side, and its writing side treats the CRC table as one of 64-bit words, so that no other program can read
/// its output.
class ZipCipher
{
public:
    /// The length of the random header before the entry's data, in bytes.
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
