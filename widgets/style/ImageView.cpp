// SPDX-License-Identifier: MIT
#include "ImageView.h"

#include <QPainter>

namespace lumora
{

ImageView::ImageView(QWidget *parent) : QWidget(parent) {}

void ImageView::setImage(const NamedImage &image)
{
    if (m_image == image)
        return;
    m_image = image;
    updateGeometry();
    update();
}

QSize ImageView::sizeHint() const
{
    return m_image.size().toSize();
}

void ImageView::paintEvent(QPaintEvent *)
{
    if (m_image.isNull())
        return;
    QRectF target(QPointF(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    target.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    m_image.paint(&painter, target);
}

} // namespace lumora
