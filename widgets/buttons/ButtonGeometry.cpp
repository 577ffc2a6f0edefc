// SPDX-License-Identifier: MIT
#include "ButtonGeometry.h"

#include <algorithm>
#include <cmath>

namespace lumora::buttongeometry
{

namespace
{

/// The least distance between an icon's ink and the text, and between the text and the button's edges.
constexpr qreal textMargin = 8;

/// The rectangle, mirrored for text that runs from the right.
QRectF mirrored(const QRectF &rect, qreal width)
{
    return {width - rect.right(), rect.top(), rect.width(), rect.height()};
}

QRectF directed(const QRectF &rect, qreal width, Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft ? mirrored(rect, width) : rect;
}

} // namespace

qreal selectionTextTop(qreal boundsHeight, qreal textHeight)
{
    return std::floor(boundsHeight / 2 - textHeight / 2 - 2);
}

qreal filledTextTop(qreal boundsHeight, qreal textHeight)
{
    return std::floor(boundsHeight / 2 - textHeight / 2 - 3);
}

QRectF selectionImageRect(QSizeF bounds, Qt::LayoutDirection direction)
{
    const qreal top = std::max(0.0, selectionTextTop(bounds.height(), selectionImageSide));
    return directed({0, top, selectionImageSide, selectionImageSide}, bounds.width(), direction);
}

QRectF selectionTextArea(QSizeF bounds, Qt::LayoutDirection direction)
{
    const qreal width = std::max(0.0, bounds.width() - selectionTextX);
    return directed({selectionTextX, 0, width, bounds.height()}, bounds.width(), direction);
}

QRectF iconRect(QSizeF bounds, QSizeF iconSize, const QRectF &ink, Qt::LayoutDirection direction)
{
    if (iconSize.isEmpty() || bounds.isEmpty())
        return {};
    qreal scale = bounds.height() / iconSize.height();
    const qreal inkRight = ink.right() * iconSize.width();
    if (inkRight > 0)
        scale = std::min(scale, bounds.width() / inkRight);
    const QSizeF size = iconSize * scale;
    if (direction == Qt::RightToLeft) {
        // The ink keeps its distance from the edge where reading begins; the glyph itself is never mirrored.
        const qreal left = bounds.width() - (ink.left() + ink.right()) * size.width();
        return {QPointF(left, (bounds.height() - size.height()) / 2), size};
    }
    return {QPointF(0, (bounds.height() - size.height()) / 2), size};
}

QRectF filledTextArea(QSizeF bounds, const QRectF &iconInk, qreal textWidth, Qt::LayoutDirection direction)
{
    const QRectF whole =
        QRectF(QPointF(), bounds)
            .adjusted(std::min(textMargin, bounds.width() / 2), 0, -std::min(textMargin, bounds.width() / 2), 0);
    if (iconInk.isEmpty())
        return whole;
    const QRectF ink = directed(iconInk, bounds.width(), direction);
    const qreal free = ink.right() + textMargin;
    if ((bounds.width() - textWidth) / 2 >= free)
        return whole;
    const qreal right = std::max(free, bounds.width() - textMargin);
    return directed({free, 0, right - free, bounds.height()}, bounds.width(), direction);
}

QRectF centeredImageRect(QSizeF bounds, QSizeF imageSize)
{
    if (imageSize.isEmpty())
        return {};
    QSizeF size = imageSize;
    if (size.width() > bounds.width() || size.height() > bounds.height())
        size.scale(bounds, Qt::KeepAspectRatio);
    return {QPointF((bounds.width() - size.width()) / 2, (bounds.height() - size.height()) / 2), size};
}

} // namespace lumora::buttongeometry
