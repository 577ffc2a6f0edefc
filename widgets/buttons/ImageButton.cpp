// SPDX-License-Identifier: MIT
#include "ImageButton.h"

#include "ButtonGeometry.h"
#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

namespace
{

/// The focus ring is a dark line and a light one inside it, so that one of the two shows on any background.
constexpr qreal outerRingWidth = 2;
constexpr qreal innerRingWidth = 1.5;
constexpr qreal ringInset = 2;

} // namespace

ImageButton::ImageButton(QWidget *parent) : PaintedButton(QAccessible::Button, parent) {}

void ImageButton::setImage(const NamedImage &image)
{
    if (image == m_image)
        return;
    m_image = image;
    updateGeometry();
    update();
}

void ImageButton::setAlternateImage(const NamedImage &image)
{
    if (image == m_alternateImage)
        return;
    m_alternateImage = image;
    update();
}

QSize ImageButton::sizeHint() const
{
    return m_image.size().toSize();
}

void ImageButton::keyUp()
{
    if (!isHovered())
        touchOut();
}

void ImageButton::drawRect(QPainter &painter)
{
    const NamedImage &image = isDown() && !m_alternateImage.isNull() ? m_alternateImage : m_image;
    if (!image.isNull())
        drawImage(painter, image, buttongeometry::centeredImageRect(size(), image.size()));
}

void ImageButton::drawFocusRing(QPainter &painter)
{
    const auto stroke = [&](qreal offset, qreal width, const QColor &color) {
        const qreal inset = ringInset + offset + width / 2;
        painter.setPen(QPen(color, width));
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), buttongeometry::cornerRadius,
                                buttongeometry::cornerRadius);
    };
    painter.setBrush(Qt::NoBrush);
    stroke(0, outerRingWidth, palette::chromeText);
    stroke(outerRingWidth, innerRingWidth, palette::focusRingInner);
}

} // namespace lumora
