// SPDX-License-Identifier: MIT
#include "ColorField.h"

#include "color/spaces/Contrast.h"
#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

namespace
{

constexpr qreal cornerRadius = 6;
constexpr qreal borderWidth = 1;
constexpr qreal focusedBorderWidth = 2;

WideColor wide(const QColor &color)
{
    return wideColorFromBytes(color.red(), color.green(), color.blue());
}

} // namespace

ColorField::ColorField(QWidget *parent) : HexField(parent), m_groundColor(palette::window)
{
    setFrame(false);
    QPalette colors = QWidget::palette();
    // The platform would fill the corners, too.
    colors.setColor(QPalette::Base, Qt::transparent);
    setPalette(colors);
}

void ColorField::setTextColor(const RgbaColor &color)
{
    // The opacity is not part of the code and would make the text pale or invisible.
    const QColor opaque = platformColor({color.red, color.green, color.blue, 1.0F});
    const auto against = [&opaque](const QColor &ground) { return contrastOf(wide(opaque), wide(ground)).ratio; };
    m_groundColor = against(palette::chromeText) > against(palette::window) ? palette::chromeText : palette::window;
    QPalette colors = QWidget::palette();
    colors.setColor(QPalette::Text, opaque);
    setPalette(colors);
    update();
}

void ColorField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(m_groundColor);
        const qreal width = hasFocus() ? focusedBorderWidth : borderWidth;
        painter.setPen(QPen(hasFocus() ? palette::color : palette::panelOutline, width));
        const qreal inset = width / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    }
    HexField::paintEvent(event);
}

} // namespace lumora
