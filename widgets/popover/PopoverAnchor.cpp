// SPDX-License-Identifier: MIT
#include "PopoverAnchor.h"

#include "PopoverGeometry.h"
#include "ScreenCoordinates.h"

#include <QLineF>

#include <algorithm>

namespace lumora
{

namespace
{

/// How far from a control a point may lie and still be meant for it, in points.
constexpr qreal reach = 24;

QRectF rectInWindow(const QWidget *widget, const QWidget *window)
{
    return {widget->mapTo(window, QPointF()), QSizeF(widget->size())};
}

qreal distanceTo(const QRectF &rect, const QPointF &point)
{
    const QPointF nearest(std::clamp(point.x(), rect.left(), rect.right()),
                          std::clamp(point.y(), rect.top(), rect.bottom()));
    return QLineF(nearest, point).length();
}

/// The widget without visible children that lies nearest, or nullptr where none is within reach.
QWidget *controlNear(const QWidget *window, const QPointF &point)
{
    QWidget *nearest = nullptr;
    qreal smallest = reach;
    const auto widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isWindow() || widget->window() != window || !widget->isVisibleTo(window))
            continue;
        const auto children = widget->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        if (std::any_of(children.cbegin(), children.cend(), [](const QWidget *child) { return child->isVisible(); }))
            continue;
        const qreal distance = distanceTo(rectInWindow(widget, window), point);
        if (distance < smallest) {
            smallest = distance;
            nearest = widget;
        }
    }
    return nearest;
}

} // namespace

PopoverAnchor::PopoverAnchor(QWidget *window, const QPointF &point) : m_window(window), m_offset(point)
{
    if (!window)
        return;
    m_offset = flipped(point, window->height());
    m_control = controlNear(window, m_offset);
    if (m_control)
        m_offset -= rectInWindow(m_control, window).center();
}

QPointF PopoverAnchor::onScreen() const
{
    if (!m_window)
        return m_offset;
    QPointF inWindow = m_offset;
    if (m_control)
        inWindow += rectInWindow(m_control, m_window).center();
    return flippedOnScreen(m_window->mapToGlobal(inWindow));
}

} // namespace lumora
