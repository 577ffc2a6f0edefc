// SPDX-License-Identifier: MIT
#include "DeviceViews.h"

#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

namespace
{

constexpr int labelFontSize = 13;

} // namespace

DevicePicture::DevicePicture(const NamedImage &image, QWidget *parent) : FadingView(parent), m_image(image)
{
    setAccessibleRole(this, QAccessible::Graphic);
}

void DevicePicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QSizeF fitted = m_image.size().scaled(QSizeF(size()), Qt::KeepAspectRatio);
    QRectF target(QPointF(), fitted);
    target.moveCenter(QRectF(rect()).center());
    m_image.paint(&painter, target, static_cast<qreal>(alphaValue()));
}

DeviceLabel::DeviceLabel(const QString &text, QWidget *parent) : FadingView(parent), m_text(text)
{
    setAccessibleRole(this, QAccessible::StaticText);
    setAccessibleName(text);
    setFont(latoBold(labelFontSize));
}

void DeviceLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(static_cast<qreal>(alphaValue()));
    painter.setPen(palette::chromeText);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.drawText(rect(), Qt::AlignCenter, m_text);
}

} // namespace lumora
