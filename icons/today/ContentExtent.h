// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

#include <optional>

namespace lumora
{

/// The color along all four edges of an opaque RGBA picture, within the errors that JPEG adds; nothing if the color is
/// not uniform or a pixel there is not opaque.
std::optional<QColor> borderColor(const QImage &picture);

/// The diameter of the smallest circle around the middle of a square premultiplied RGBA picture that contains all
/// visible content, in edge lengths: 1 for a disk that touches the edges, 1.414 for a full square, 0 for an empty
/// picture. Pixels in the color of a uniform border are background, not content.
double contentDiameter(const QImage &picture);

} // namespace lumora
