// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/popover/PopoverGeometry.h"

class QWidget;

namespace lumora
{

class SFBPopover;

/// The position in which a balloon of the content size, pointing at the point, lies wholly inside the area (both y
/// upwards): the preferred one, `Below` or `Above`, if it does, else the one nearest to it that does. Where none does,
/// the one that shows most.
PopoverPosition positionInside(const QRectF &area, QPointF point, QSizeF contentSize, PopoverMetrics metrics,
                               PopoverPosition preferred);

/// Displays the popover as `displayPopoverInWindow` does, on the preferred side of the point, and turns it away from
/// the edges of the screen that would cut it off there.
void displayOnScreen(SFBPopover &popover, QWidget *window, QPointF atPoint,
                     PopoverPosition preferred = PopoverPosition::Below);

} // namespace lumora
