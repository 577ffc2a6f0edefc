// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

namespace lumora
{

/// One chunk of a PNG file, its checksum verified.
struct PngChunk
{
    QByteArray type;
    QByteArray content;
};

/// The chunks of a PNG file in order; empty where signature, lengths or checksums are wrong.
QList<PngChunk> pngChunks(const QByteArray &file);

/// What zlib inflates from the IDAT chunks, its own checksum verified; empty where it is damaged or followed by more.
QByteArray inflatedPixels(const QByteArray &file);

} // namespace lumora
