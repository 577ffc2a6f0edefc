// SPDX-License-Identifier: MIT
#include "PopupPlacement.h"

#include "widgets/popover/SFBPopover.h"
#include "widgets/popover/ScreenCoordinates.h"

#include <QScreen>

#include <array>

namespace lumora
{

namespace
{

using Sides = std::array<PopoverPosition, 3>;

/// The arrow in the middle first: the balloon lies even on both sides of what it points at.
constexpr Sides below = {PopoverPosition::Below, PopoverPosition::BelowArrowNearRight,
                         PopoverPosition::BelowArrowNearLeft};
constexpr Sides above = {PopoverPosition::Above, PopoverPosition::AboveArrowNearRight,
                         PopoverPosition::AboveArrowNearLeft};

/// More than what sums of fractions may differ by, less than anybody sees; square points.
constexpr qreal roundingArea = 0.5;

qreal areaOf(const QRectF &rect)
{
    return rect.isValid() ? rect.width() * rect.height() : 0;
}

} // namespace

PopoverPosition positionInside(const QRectF &area, QPointF point, QSizeF contentSize, PopoverMetrics metrics,
                               PopoverPosition preferred)
{
    PopoverPosition best = preferred;
    qreal most = -2 * roundingArea;
    const bool aboveFirst = preferred == PopoverPosition::Above;
    for (const Sides &sides : {aboveFirst ? above : below, aboveFirst ? below : above}) {
        for (const PopoverPosition position : sides) {
            metrics.position = position;
            QRectF frame(QPointF(), frameRectForContentRect(QRectF(QPointF(), contentSize), metrics).size());
            frame.moveTopLeft(point - attachmentPointForRect(frame, metrics));
            const qreal visible = areaOf(frame.intersected(area));
            if (visible > most + roundingArea) {
                most = visible;
                best = position;
            }
        }
    }
    return best;
}

void displayOnScreen(SFBPopover &popover, QWidget *window, QPointF atPoint, PopoverPosition preferred)
{
    if (popover.isVisible())
        return;
    const QWidget *parent = window == nullptr ? nullptr : window->window();
    SFBPopoverWindow &balloon = *popover.popoverWindow();
    if (parent != nullptr && parent->screen() != nullptr && balloon.contentView() != nullptr) {
        const QSizeF size(balloon.contentView()->size());
        // A change of the position takes the content back to the size it had in the balloon.
        balloon.setContentSize(size);
        const QRectF screen = flippedOnScreen(QRectF(parent->screen()->availableGeometry()));
        popover.setPosition(positionInside(screen, basePointToScreen(parent, atPoint), size,
                                           balloon.popoverWindowFrame()->metrics(), preferred));
    }
    popover.displayPopoverInWindow(window, atPoint);
}

} // namespace lumora
