// SPDX-License-Identifier: MIT
#include "TitleBarLayout.h"

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

/// By how much stacked buttons are closer together, in points.
constexpr qreal stackedReduction = 2;

qreal topOf(const QRectF &rect)
{
    return rect.y() + rect.height();
}

qreal middleOf(const QRectF &rect)
{
    return rect.y() + rect.height() / 2;
}

qreal rowOf(qreal height, bool centered, qreal topMargin, const QRectF &container)
{
    return centered ? middleOf(container) - height / 2 : topOf(container) - height - topMargin;
}

} // namespace

QRectF titleBarRect(const QSizeF &window, qreal titleBarHeight)
{
    return {0, window.height() - titleBarHeight, window.width(), titleBarHeight};
}

QRectF contentRectBelowTitleBar(const QSizeF &window, qreal titleBarHeight)
{
    return {0, 0, window.width(), std::max(0.0, window.height() - titleBarHeight)};
}

std::array<QRectF, 3> trafficLightRects(const TrafficLights &lights, const QRectF &container)
{
    std::array<QRectF, 3> rects;
    if (lights.vertical) {
        const qreal gap = lights.separation - stackedReduction;
        qreal total = 2 * gap;
        for (const QSizeF &size : lights.sizes)
            total += size.height();
        qreal top = lights.centered ? std::round(middleOf(container) + total / 2) : topOf(container) - lights.topMargin;
        for (size_t i = 0; i < rects.size(); ++i) {
            const QSizeF size = lights.sizes[i];
            rects[i] = QRectF(QPointF(lights.leftMargin, top - size.height()), size);
            top = rects[i].y() - gap;
        }
        return rects;
    }
    qreal x = lights.leftMargin;
    for (size_t i = 0; i < rects.size(); ++i) {
        const QSizeF size = lights.sizes[i];
        rects[i] = QRectF(QPointF(x, rowOf(size.height(), lights.centered, lights.topMargin, container)), size);
        x += size.width() + lights.separation;
    }
    return rects;
}

QRectF fullScreenButtonRect(const QSizeF &button, qreal rightMargin, qreal topMargin, bool centered,
                            const QRectF &container)
{
    return {QPointF(container.width() - button.width() - rightMargin,
                    rowOf(button.height(), centered, topMargin, container)),
            button};
}

QRectF titleRect(const QSizeF &text, const QRectF &container, qreal leftLimit, qreal rightLimit, bool centered,
                 qreal standardHeight)
{
    const qreal width = std::min(text.width(), std::max(0.0, rightLimit - leftLimit));
    const qreal x =
        std::clamp(container.x() + (container.width() - width) / 2, leftLimit, std::max(leftLimit, rightLimit - width));
    const qreal middle = centered ? middleOf(container) : topOf(container) - standardHeight / 2;
    return {x, middle - text.height() / 2, width, text.height()};
}

} // namespace lumora
