// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <cstdint>

namespace lumora
{

/// Converts any picture to `QImage::Format_RGBA8888_Premultiplied`. Qt's own conversions round differently on different
/// processors; the written files must be the same everywhere. An empty picture stays empty; throws `std::bad_alloc` if
/// memory runs out.
QImage premultiplied(QImage picture);

/// Turns `count` premultiplied RGBA pixels into straight ones in place. A translucent pixel gets no more color
/// precision than its premultiplied bytes have, since more would not show on any background: 23 shades of gray at an
/// alpha of 22. Fully transparent pixels become transparent black; a color above its alpha counts as equal to it.
void straightenPixels(std::uint8_t *pixels, int count);

/// Whether all these RGBA pixels have an alpha of 255.
bool areOpaque(const std::uint8_t *pixels, int count);

} // namespace lumora
