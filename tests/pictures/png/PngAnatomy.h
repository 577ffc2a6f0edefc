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

/// The chunks of a PNG file in order; empty if signature, lengths or checksums are wrong.
QList<PngChunk> pngChunks(const QByteArray &file);

/// The data that zlib inflates from the IDAT chunks, with its checksum verified; empty if it is damaged or more data
/// follows.
QByteArray inflatedPixels(const QByteArray &file);

} // namespace lumora
