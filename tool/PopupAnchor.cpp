// SPDX-License-Identifier: MIT
#include "PopupAnchor.h"

#include "ShellMetrics.h"

#include <QWidget>

namespace lumora
{

QPointF popupAnchor(QPointF origin, QSizeF controlSize)
{
    return {origin.x() + controlSize.width() / 2 + metrics::toolLeft,
            origin.y() - (controlSize.height() + metrics::popupGap)};
}

QPointF popupAnchorOrigin(const QWidget *control)
{
    const QWidget *panel = control == nullptr ? nullptr : control->parentWidget();
    const QWidget *toolView = panel == nullptr ? nullptr : panel->parentWidget();
    if (toolView == nullptr)
        return {};
    const QPoint upperLeft = control->mapTo(toolView, QPoint());
    return QPointF(upperLeft.x(), toolView->height() - upperLeft.y());
}

} // namespace lumora
