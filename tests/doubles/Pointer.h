// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEnterEvent>
#include <QWidget>

namespace lumora::testing
{

/// Lets the pointer enter or leave a widget without moving a real one.
inline void enter(QWidget *widget)
{
    const QPointF middle = QRectF(widget->rect()).center();
    QEnterEvent event(middle, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &event);
}

inline void leave(QWidget *widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &event);
}

/// Shows a window away from where the platform's pointer rests.
inline void showAside(QWidget *widget)
{
    widget->move(300, 300);
    widget->show();
}

/// The picture that the widget draws at a scale factor.
inline QImage pictureOf(QWidget *widget, qreal scale = 1)
{
    QImage picture(widget->size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    widget->render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

} // namespace lumora::testing
