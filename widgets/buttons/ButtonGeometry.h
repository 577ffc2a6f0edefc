// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>
#include <Qt>

/// The geometry of the painted buttons, in points, y down.
namespace lumora::buttongeometry
{

/// Check boxes and radio buttons: the size of the square image, and the distance from the edge where reading begins to
/// the text.
inline constexpr qreal selectionImageSide = 20;
inline constexpr qreal selectionTextX = 30;
/// The corner radius of filled buttons.
inline constexpr qreal cornerRadius = 5;

/// The top of a check box's or radio button's text: two points above the middle.
qreal selectionTextTop(qreal boundsHeight, qreal textHeight);
/// The top of a filled button's text: three points above the middle.
qreal filledTextTop(qreal boundsHeight, qreal textHeight);

/// The area of a check box's or radio button's image: level with the text, at the edge where reading begins.
QRectF selectionImageRect(QSizeF bounds, Qt::LayoutDirection direction);
/// The area left for the text of a check box or radio button, over the full height.
QRectF selectionTextArea(QSizeF bounds, Qt::LayoutDirection direction);

/// The area of an icon that covers a whole filled button: as high as the button, at the edge where reading begins, in
/// its own aspect ratio. `ink` is the part of the icon that is not empty, in fractions of its size; the icon shrinks
/// only if its ink would not fit.
QRectF iconRect(QSizeF bounds, QSizeF iconSize, const QRectF &ink, Qt::LayoutDirection direction);
/// The area in which a filled button's text is centered: all of the bounds if a text of that width does not touch the
/// icon's ink, else the part beside the ink. `iconInk` is in the button's coordinates, empty without an icon.
QRectF filledTextArea(QSizeF bounds, const QRectF &iconInk, qreal textWidth, Qt::LayoutDirection direction);
/// The area of an image in the middle at its own size, scaled down in proportion if it does not fit.
QRectF centeredImageRect(QSizeF bounds, QSizeF imageSize);

} // namespace lumora::buttongeometry
