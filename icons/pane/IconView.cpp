// SPDX-License-Identifier: MIT
#include "IconView.h"

#include "widgets/style/AccessibleRole.h"

#include <QEvent>
#include <QPainter>

namespace lumora
{

IconView::IconView(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
}

int IconView::pixelSide() const
{
    return static_cast<int>(std::min(width(), height()) * devicePixelRatioF());
}

void IconView::setPicture(const QImage &picture)
{
    m_picture = picture;
    update();
}

bool IconView::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    // The scale is certain only when the view is shown, and some changes of it send no event.
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show || event->type() == QEvent::Paint)
        noteSide();
    if (event->type() == QEvent::Paint && !std::exchange(m_painted, true))
        QMetaObject::invokeMethod(this, &IconView::firstPainted, Qt::QueuedConnection);
    return handled;
}

void IconView::paintEvent(QPaintEvent *)
{
    if (m_picture.isNull())
        return;
    const qreal scale = devicePixelRatioF();
    QRectF target(QPointF(), QSizeF(m_picture.size()).scaled(pixelSide(), pixelSide(), Qt::KeepAspectRatio) / scale);
    target.moveCenter(QRectF(rect()).center());
    // On the pixel grid, so that a picture of the right size is not resampled.
    target.moveTopLeft({std::round(target.x() * scale) / scale, std::round(target.y() * scale) / scale});
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_picture);
}

void IconView::noteSide()
{
    const int side = pixelSide();
    // Before it is shown, a view may be resized many times.
    if (!isVisible() || side == m_notedSide)
        return;
    m_notedSide = side;
    emit pixelSideChanged();
}

} // namespace lumora
