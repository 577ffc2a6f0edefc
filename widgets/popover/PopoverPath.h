// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverGeometry.h"

#include <QPainterPath>

namespace lumora
{

/// The balloon's outline around a content rectangle in one closed path: a rounded rectangle with the arrow spliced into
/// the side the position names, its tip at the distance before the attachment point. Counts y upwards. The arrow's base
/// keeps to the straight part of its side, so that it never cuts into a corner.
QPainterPath popoverPath(const QRectF &contentRect, const QPointF &attachmentPoint, const PopoverMetrics &metrics);

/// Appends the arrow to an outline that is being drawn counter-clockwise along the side of the balloon the arrow is on.
/// `balloon` is the outline's rectangle without the arrow.
void appendArrow(QPainterPath *path, const QRectF &balloon, const QPointF &attachmentPoint,
                 const PopoverMetrics &metrics);

} // namespace lumora
