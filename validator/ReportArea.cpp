// SPDX-License-Identifier: MIT
#include "ReportArea.h"

#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

namespace
{

constexpr int ringWidth = 2;
constexpr qreal ringRadius = 4;

} // namespace

ReportArea::ReportArea(QWidget *parent) : QScrollArea(parent)
{
    setAccessibleRole(this, QAccessible::Grouping);
    setFocusPolicy(Qt::StrongFocus);
    setViewportMargins(ringWidth, ringWidth, ringWidth, ringWidth);
}

bool ReportArea::event(QEvent *event)
{
    if (m_keyboardFocus.follow(event))
        update();
    const bool handled = QScrollArea::event(event);
    // The area itself is painted around its viewport.
    if (event->type() == QEvent::Paint && hasFocus() && m_keyboardFocus.isShown()) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette::focusRing, ringWidth));
        constexpr qreal inset = ringWidth / 2.0;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), ringRadius, ringRadius);
    } else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        update();
    }
    return handled;
}

} // namespace lumora
