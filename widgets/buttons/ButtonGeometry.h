// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>
#include <Qt>

/// Where the painted buttons draw what, in points with y counted downwards.
namespace lumora::buttongeometry
{

/// Check boxes and radio buttons: a square image, the text beginning at a fixed distance from the same edge.
inline constexpr qreal selectionImageSide = 20;
inline constexpr qreal selectionTextX = 30;
/// The rounding of filled buttons.
inline constexpr qreal cornerRadius = 5;

/// The top of a check box's or radio button's text: two points above the middle.
qreal selectionTextTop(qreal boundsHeight, qreal textHeight);
/// The top of a filled button's text: three points above the middle.
qreal filledTextTop(qreal boundsHeight, qreal textHeight);

/// The image of a check box or radio button, in line with its text, at the edge where reading begins.
QRectF selectionImageRect(QSizeF bounds, Qt::LayoutDirection direction);
/// The area left for the text of a check box or radio button, over the full height.
QRectF selectionTextArea(QSizeF bounds, Qt::LayoutDirection direction);

/// Where an icon goes that is meant to lie over the whole of a filled button: as high as the button, at the edge where
/// reading begins, its own aspect kept. ink is the part of the icon that is not empty, in fractions of its size; the
/// icon shrinks only where its ink would not fit otherwise.
QRectF iconRect(QSizeF bounds, QSizeF iconSize, const QRectF &ink, Qt::LayoutDirection direction);
/// The area in which a filled button's text is centered: all of the bounds where a text of that width keeps clear of
/// the icon's ink, else what the ink leaves free. iconInk is in the button's coordinates, empty without an icon.
QRectF filledTextArea(QSizeF bounds, const QRectF &iconInk, qreal textWidth, Qt::LayoutDirection direction);
/// An image at its own size in the middle, smaller in proportion where it does not fit.
QRectF centeredImageRect(QSizeF bounds, QSizeF imageSize);

} // namespace lumora::buttongeometry
