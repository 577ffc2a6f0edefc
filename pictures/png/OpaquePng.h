// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

namespace lumora
{

/// The picture as a PNG file without an alpha channel: 8-bit RGB, tagged sRGB, the same bytes on every run and machine.
/// What is transparent in it is taken as drawn on black. Empty for a null picture. Large pictures are encoded by up to
/// `threads` threads.
QByteArray encodeOpaquePng(const QImage &picture, int threads = 1);

} // namespace lumora
