// SPDX-License-Identifier: MIT
#include "PopoverAnchor.h"

#include "ScreenCoordinates.h"

#include <QScreen>

namespace lumora
{

PopoverAnchor::PopoverAnchor(QWidget *window, const QPointF &point)
    : m_view(window), m_point(window ? flipped(point, window->height()) : point), m_isInWindow(window != nullptr)
{
}

PopoverAnchor::PopoverAnchor(const PopoverTarget &target) : m_target(target), m_view(target.view), m_isPoint(false) {}

std::optional<PopoverPlacement> PopoverAnchor::placement(const QSizeF &contentSize, const PopoverMetrics &metrics) const
{
    if (m_isPoint && !m_isInWindow)
        return PopoverPlacement{metrics.position, m_point};
    if (!m_view)
        return {};
    if (m_isPoint)
        return PopoverPlacement{metrics.position, flippedOnScreen(m_view->mapToGlobal(m_point))};
    const QRectF area(m_target.area.isEmpty() ? m_view->rect() : m_target.area);
    const PopoverTargetArea onScreen{flippedOnScreen(QRectF(m_view->mapToGlobal(area.topLeft()), area.size())),
                                     m_target.preferredEdge, m_target.gap};
    const QRectF screen = flippedOnScreen(QRectF(m_view->screen()->availableGeometry()));
    return popoverPlacement(onScreen, contentSize, screen, metrics);
}

} // namespace lumora
