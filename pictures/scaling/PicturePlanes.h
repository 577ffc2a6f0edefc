// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <memory>

namespace lumora
{

class ColorPlanes;

/// Whether every pixel of an 8-bit RGBA picture is opaque.
bool isOpaque(const QImage &picture);

/// Takes a picture apart into planes of premultiplied red, green and blue, and of alpha unless it is opaque. The planes
/// of a `QImage::Format_RGBA8888_Premultiplied` have its 8 bits; those of a straight `QImage::Format_RGBA8888` have 16,
/// which lose nothing. The picture is not null. Throws `std::bad_alloc` if memory runs out.
std::unique_ptr<ColorPlanes> takenApart(const QImage &picture);

/// Joins planes of either depth into a `QImage::Format_RGBA8888_Premultiplied`. A color above its alpha, which a filter
/// may leave, is lowered to it. Throws `std::bad_alloc` if memory runs out.
QImage putTogether(const ColorPlanes &planes);

} // namespace lumora
