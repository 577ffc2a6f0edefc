// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/scaling/ColorPlanes.h"

#include <QColor>
#include <QImage>

/// Pictures of shapes in a single color, like drawn icons.
namespace flat_drawings
{

inline constexpr int sourceEdge = 1024;

/// The depth of a point inside a shape, in source pixels; negative outside.
using Shape = double (*)(double x, double y);

double leftOfAnEdge(double x, double y);
double aboveASlope(double x, double y);
double insideADisc(double x, double y);
double insideAHole(double x, double y);

/// A shape of one color on a background of another, with its edge smoothed over one pixel.
QImage drawn(Shape shape, QColor color, QColor ground, int edge = sourceEdge);

/// The red channel of a picture as the only plane.
lumora::ColorPlanes redPlane(const QImage &picture);

inline const QColor green(39, 174, 96);
inline const QColor paper(236, 240, 241);

} // namespace flat_drawings
