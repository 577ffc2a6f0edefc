// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

namespace lumora
{

/// The picture as a PNG file: always 8-bit straight RGBA, tagged sRGB, without time, resolution or other extras, the
/// same bytes on every run and machine. Empty for a null picture.
QByteArray encodePng(const QImage &picture);

} // namespace lumora
