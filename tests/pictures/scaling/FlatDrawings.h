// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/scaling/ColorPlanes.h"

#include <QColor>
#include <QImage>

/// Pictures of shapes in one color each, as icons are drawn.
namespace flat_drawings
{

inline constexpr int sourceEdge = 1024;

/// How deep inside a shape a point lies, in source pixels; negative outside.
using Shape = double (*)(double x, double y);

double leftOfAnEdge(double x, double y);
double aboveASlope(double x, double y);
double insideADisc(double x, double y);
double insideAHole(double x, double y);

/// A shape of one color on a ground of another, its edge smoothed over one pixel.
QImage drawn(Shape shape, QColor color, QColor ground, int edge = sourceEdge);

/// The red channel of a picture as the only plane.
lumora::ColorPlanes redPlane(const QImage &picture);

inline const QColor green(39, 174, 96);
inline const QColor paper(236, 240, 241);

} // namespace flat_drawings
