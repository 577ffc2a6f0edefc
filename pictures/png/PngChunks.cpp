// SPDX-License-Identifier: MIT
#include "PngChunks.h"

#include <QtEndian>

#include <libdeflate.h>

namespace lumora
{

namespace
{

constexpr qsizetype lengthBytes = 4;
constexpr qsizetype typeBytes = 4;
constexpr qsizetype checksumBytes = 4;

} // namespace

std::uint32_t bigEndian32(QByteArrayView bytes)
{
    return qFromBigEndian<std::uint32_t>(bytes.data());
}

bool PngChunkView::isUndamaged() const
{
    // Type and content are adjacent in the file.
    return libdeflate_crc32(0, type.data(), static_cast<std::size_t>(type.size() + content.size())) == checksum;
}

PngChunkWalk::PngChunkWalk(QByteArrayView file)
    : m_rest(file.startsWith(pngSignature) ? file.sliced(pngSignature.size()) : QByteArrayView())
{
}

std::optional<PngChunkView> PngChunkWalk::next()
{
    constexpr qsizetype frameBytes = lengthBytes + typeBytes + checksumBytes;
    if (m_rest.size() < frameBytes)
        return std::nullopt;
    const auto length = qsizetype{bigEndian32(m_rest)};
    if (length > m_rest.size() - frameBytes)
        return std::nullopt;
    const PngChunkView chunk{m_rest.sliced(lengthBytes, typeBytes), m_rest.sliced(lengthBytes + typeBytes, length),
                             bigEndian32(m_rest.sliced(lengthBytes + typeBytes + length))};
    m_rest = m_rest.sliced(frameBytes + length);
    return chunk;
}

std::optional<std::vector<PngChunkView>> readPngChunks(QByteArrayView file)
{
    std::vector<PngChunkView> chunks;
    PngChunkWalk walk(file);
    while (const std::optional<PngChunkView> chunk = walk.next()) {
        if (!chunk->isUndamaged())
            return std::nullopt;
        chunks.push_back(*chunk);
        if (chunk->type == "IEND")
            return chunks;
    }
    return std::nullopt;
}

std::optional<QByteArrayView> earlyPngChunk(QByteArrayView file, QByteArrayView type)
{
    PngChunkWalk walk(file);
    while (const std::optional<PngChunkView> chunk = walk.next()) {
        if (chunk->type == "PLTE" || chunk->type == "IDAT")
            break;
        if (chunk->type == type && chunk->isUndamaged())
            return chunk->content;
    }
    return std::nullopt;
}

} // namespace lumora
