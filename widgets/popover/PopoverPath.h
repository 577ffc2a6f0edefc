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

} // namespace lumora
