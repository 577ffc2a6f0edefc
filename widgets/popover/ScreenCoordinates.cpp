// SPDX-License-Identifier: MIT
#include "ScreenCoordinates.h"

#include "PopoverGeometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace lumora
{

namespace
{

qreal lowerEdge()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry().y() + screen->geometry().height() : 0;
}

} // namespace

QRectF flippedOnScreen(const QRectF &rect)
{
    return flipped(rect, lowerEdge());
}

QPointF flippedOnScreen(const QPointF &point)
{
    return flipped(point, lowerEdge());
}

QPointF basePointToScreen(const QWidget *window, const QPointF &point)
{
    return flippedOnScreen(window->mapToGlobal(flipped(point, window->height())));
}

} // namespace lumora
