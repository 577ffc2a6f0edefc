// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <optional>

namespace lumora
{

/// Decodes an ordinary PNG file in a fraction of the general decoder's time. Ordinary means: up to 8 bits a sample, any
/// color type, not interlaced, in sRGB colors, undamaged. Empty for any other file; the general decoder reads those.
/// The result is straight `QImage::Format_RGBA8888`. The caller has checked the size that the header claims.
std::optional<QImage> decodeOrdinaryPng(const QByteArray &bytes);

} // namespace lumora
