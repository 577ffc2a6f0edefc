// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverGeometry.h"

#include <QPainterPath>

namespace lumora
{

/// The balloon's outline around a content rectangle in one closed path: a rounded rectangle with an arrow on the side
/// that the position names. The arrow's tip keeps the distance from the attachment point. Its base stays on the
/// straight part of the side and never cuts into a corner. Y counts upwards.
QPainterPath popoverPath(const QRectF &contentRect, const QPointF &attachmentPoint, const PopoverMetrics &metrics);

/// Appends the arrow to an outline that is drawn counter-clockwise along the arrow's side of the balloon. `balloon` is
/// the outline's rectangle without the arrow.
void appendArrow(QPainterPath *path, const QRectF &balloon, const QPointF &attachmentPoint,
                 const PopoverMetrics &metrics);

/// The outline moved by up to half a pixel, so that a border of `borderPixels` along the sides of the balloon covers
/// whole pixels and is as sharp on each side. Y counts downwards; `devicePixelRatio` is the number of pixels in a
/// point.
QPainterPath onWholePixels(const QPainterPath &outline, const QRectF &balloon, qreal borderPixels,
                           qreal devicePixelRatio);

} // namespace lumora
