// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <vector>

namespace lumora
{

/// What every PNG file begins with.
inline constexpr QByteArrayView pngSignature("\x89PNG\r\n\x1A\n", 8);

/// One chunk of a PNG file; the views look into the file's bytes.
struct PngChunkView
{
    QByteArrayView type; ///< four letters
    QByteArrayView content;
    std::uint32_t checksum = 0; ///< as the file states it

    /// Whether the checksum is that of type and content. Reads all of them.
    bool isUndamaged() const;
};

/// Goes from chunk to chunk of a PNG file.
class PngChunkWalk
{
public:
    /// The file's bytes must outlive the object.
    explicit PngChunkWalk(QByteArrayView file);

    /// The next chunk; its checksum is not checked. Empty after the last complete chunk, or when the signature is
    /// wrong.
    std::optional<PngChunkView> next();

private:
    QByteArrayView m_rest;
};

/// The big-endian 32-bit number at the start of the view, which has at least four bytes.
std::uint32_t bigEndian32(QByteArrayView bytes);

/// The chunks up to and including IEND. Empty where the signature, a length or a checksum is wrong or the end is
/// missing.
std::optional<std::vector<PngChunkView>> readPngChunks(QByteArrayView file);

/// The content of the first undamaged chunk of that type before the palette and the pixels.
std::optional<QByteArrayView> earlyPngChunk(QByteArrayView file, QByteArrayView type);

} // namespace lumora
