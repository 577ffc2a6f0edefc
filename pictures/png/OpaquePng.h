// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

namespace lumora
{

class PngRows;

/// The picture as a PNG file without an alpha channel: 8-bit RGB, tagged sRGB, the same bytes on every run and machine.
/// What is transparent in it is taken as drawn on black. Empty for a null picture. Large pictures are encoded by up to
/// `threads` threads.
QByteArray encodeOpaquePng(const QImage &picture, int threads = 1);

/// The same of rows that are asked for; their alpha is left out. There is at least one pixel.
QByteArray encodeOpaquePng(const PngRows &rows, int threads = 1);

} // namespace lumora
