// SPDX-License-Identifier: MIT
#include "IconMasks.h"

#include "AndroidFigures.h"
#include "AppleSlots.h"
#include "WebFigures.h"

namespace lumora
{

namespace
{

/// Corner radii in parts of the edge.
constexpr double roundedSquareRadius = 0.2;
constexpr double teardropRadius = 0.12;
/// The distance of a squircle's control points from the corners, in parts of the edge.
constexpr double squircleReach = 0.1;

QRectF inMiddle(const QRectF &rectangle, double share)
{
    const QSizeF size = rectangle.size() * share;
    return {rectangle.center() - QPointF(size.width(), size.height()) / 2, size};
}

/// Four curves between the middles of the edges, drawn towards the corners.
QPainterPath squircle(const QRectF &square)
{
    const double near = squircleReach * square.width();
    const QPointF middle = square.center();
    QPainterPath path(QPointF(middle.x(), square.top()));
    path.cubicTo({square.right() - near, square.top()}, {square.right(), square.top() + near},
                 {square.right(), middle.y()});
    path.cubicTo({square.right(), square.bottom() - near}, {square.right() - near, square.bottom()},
                 {middle.x(), square.bottom()});
    path.cubicTo({square.left() + near, square.bottom()}, {square.left(), square.bottom() - near},
                 {square.left(), middle.y()});
    path.cubicTo({square.left(), square.top() + near}, {square.left() + near, square.top()},
                 {middle.x(), square.top()});
    path.closeSubpath();
    return path;
}

/// A circle with its lower right quarter pulled into a corner.
QPainterPath teardrop(const QRectF &square)
{
    const double corner = 2 * teardropRadius * square.width();
    const QPointF middle = square.center();
    QPainterPath path(QPointF(square.right(), middle.y()));
    path.arcTo(square, 0, 270);
    path.lineTo(square.right() - corner / 2, square.bottom());
    path.arcTo({square.right() - corner, square.bottom() - corner, corner, corner}, 270, 90);
    path.closeSubpath();
    return path;
}

} // namespace

QRectF adaptiveViewport(const QRectF &layer)
{
    return inMiddle(layer, double{adaptiveViewportDp} / adaptiveLayerDp);
}

QRectF adaptiveSafeZone(const QRectF &layer)
{
    return inMiddle(layer, double{adaptiveSafeDp} / adaptiveLayerDp);
}

QRectF maskableSafeZone(const QRectF &picture)
{
    return inMiddle(picture, maskableSafePercent / 100.0);
}

QPainterPath maskOutline(AndroidMask mask, const QRectF &viewport)
{
    QPainterPath path;
    switch (mask) {
    case AndroidMask::Circle:
        path.addEllipse(viewport);
        break;
    case AndroidMask::Squircle:
        return squircle(viewport);
    case AndroidMask::RoundedSquare:
        path.addRoundedRect(viewport, roundedSquareRadius * viewport.width(), roundedSquareRadius * viewport.width());
        break;
    case AndroidMask::Teardrop:
        return teardrop(viewport);
    }
    return path;
}

QPainterPath macBodyOutline(const QRectF &picture)
{
    const QRectF body = inMiddle(picture, double{macGrid.body} / storeIconSize);
    const double radius = static_cast<double>(macGrid.cornerRadius) * picture.width() / storeIconSize;
    QPainterPath path;
    path.addRoundedRect(body, radius, radius);
    return path;
}

} // namespace lumora
