// SPDX-License-Identifier: MIT
#include "ZipCipher.h"

#include <zlib.h>

namespace lumora
{

namespace
{

std::uint32_t crcStep(std::uint32_t crc, unsigned char byte)
{
    static const z_crc_t *const table = get_crc_table();
    return static_cast<std::uint32_t>(table[(crc ^ byte) & 0xFF]) ^ (crc >> 8);
}

} // namespace

ZipCipher::ZipCipher(const QByteArray &password)
{
    for (const char character : password)
        update(static_cast<unsigned char>(character));
}

unsigned char ZipCipher::keyByte() const
{
    const std::uint32_t seed = (m_keys[2] & 0xFFFF) | 2;
    return static_cast<unsigned char>((seed * (seed ^ 1)) >> 8);
}

void ZipCipher::update(unsigned char plain)
{
    m_keys[0] = crcStep(m_keys[0], plain);
    m_keys[1] = (m_keys[1] + (m_keys[0] & 0xFF)) * 134775813 + 1;
    m_keys[2] = crcStep(m_keys[2], static_cast<unsigned char>(m_keys[1] >> 24));
}

void ZipCipher::decrypt(std::span<unsigned char> bytes)
{
    for (unsigned char &byte : bytes) {
        byte ^= keyByte();
        update(byte);
    }
}

void ZipCipher::encrypt(std::span<unsigned char> bytes)
{
    for (unsigned char &byte : bytes) {
        const unsigned char plain = byte;
        byte ^= keyByte();
        update(plain);
    }
}

} // namespace lumora
