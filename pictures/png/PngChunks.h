// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <vector>

namespace lumora
{

/// One chunk of a PNG file; both views look into the file's bytes.
struct PngChunkView
{
    QByteArrayView type; ///< four letters
    QByteArrayView content;
};

/// The number of four bytes, the highest first, at the start of the view, which is that long.
std::uint32_t bigEndian32(QByteArrayView bytes);

/// The chunks up to and with IEND. Nothing where the signature, a length or a checksum is wrong or the end is missing.
std::optional<std::vector<PngChunkView>> readPngChunks(QByteArrayView file);

} // namespace lumora
