// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <memory>

namespace lumora
{

class ColorPlanes;

/// Whether no pixel of an RGBA picture of 8 bits a sample lets anything behind it show.
bool isOpaque(const QImage &picture);

/// Takes a picture apart into planes of premultiplied red, green and blue, and of alpha unless it is opaque. The planes
/// of a `QImage::Format_RGBA8888_Premultiplied` have its 8 bits; those of a straight `QImage::Format_RGBA8888` have 16,
/// which lose nothing of it. Null for a null picture.
std::unique_ptr<ColorPlanes> takenApart(const QImage &picture);

/// Puts planes together into a `QImage::Format_RGBA8888_Premultiplied`, whatever their depth. A color above its alpha,
/// which a filter may leave, is brought down to it. Null when there is no memory.
QImage putTogether(const ColorPlanes &planes);

} // namespace lumora
