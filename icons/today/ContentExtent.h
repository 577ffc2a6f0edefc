// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

#include <optional>

namespace lumora
{

/// The one color along all four edges of an opaque RGBA picture, give or take what a JPEG file adds; nothing where it
/// is not uniform or lets something through.
std::optional<QColor> borderColor(const QImage &picture);

/// The diameter of the circle around the middle of a square premultiplied RGBA picture that holds everything to be
/// seen, in edges of the picture: 1 for a disk that touches the edges, 1.414 for a full square, 0 where there is
/// nothing. What has the color of a uniform border is ground and not content.
double contentDiameter(const QImage &picture);

} // namespace lumora
