// SPDX-License-Identifier: MIT
#include "PngChunks.h"

#include <QtEndian>

#include <libdeflate.h>

namespace lumora
{

std::uint32_t bigEndian32(QByteArrayView bytes)
{
    return qFromBigEndian<std::uint32_t>(bytes.data());
}

std::optional<std::vector<PngChunkView>> readPngChunks(QByteArrayView file)
{
    constexpr QByteArrayView signature("\x89PNG\r\n\x1A\n", 8);
    constexpr qsizetype lengthBytes = 4;
    constexpr qsizetype typeBytes = 4;
    constexpr qsizetype checksumBytes = 4;
    if (!file.startsWith(signature))
        return std::nullopt;
    std::vector<PngChunkView> chunks;
    for (QByteArrayView rest = file.sliced(signature.size());;) {
        if (rest.size() < lengthBytes + typeBytes + checksumBytes)
            return std::nullopt;
        const auto length = qsizetype{bigEndian32(rest)};
        if (length > rest.size() - lengthBytes - typeBytes - checksumBytes)
            return std::nullopt;
        const QByteArrayView checked = rest.sliced(lengthBytes, typeBytes + length);
        rest = rest.sliced(lengthBytes + checked.size());
        if (libdeflate_crc32(0, checked.data(), static_cast<std::size_t>(checked.size())) != bigEndian32(rest))
            return std::nullopt;
        rest = rest.sliced(checksumBytes);
        chunks.push_back({checked.first(typeBytes), checked.sliced(typeBytes)});
        if (chunks.back().type == "IEND")
            return chunks;
    }
}

} // namespace lumora
