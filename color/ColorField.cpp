// SPDX-License-Identifier: MIT
#include "ColorField.h"

#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

namespace
{

constexpr qreal cornerRadius = 6;
constexpr qreal borderWidth = 2;
/// Above this mean of red, green and blue, a color is too light for a white background.
constexpr float lightest = 0.8F;

} // namespace

ColorField::ColorField(QWidget *parent) : QLineEdit(parent), m_groundColor(palette::window)
{
    setFrame(false);
    QPalette colors = QLineEdit::palette();
    // The platform would fill the corners, too.
    colors.setColor(QPalette::Base, Qt::transparent);
    setPalette(colors);
}

void ColorField::setTextColor(const RgbaColor &color)
{
    const bool light = (color.red + color.green + color.blue) / 3.0F > lightest;
    m_groundColor = light ? palette::chromeText : palette::window;
    QPalette colors = QLineEdit::palette();
    // The opacity is not part of the code and would make the text pale or invisible.
    colors.setColor(QPalette::Text, platformColor({color.red, color.green, color.blue, 1.0F}));
    setPalette(colors);
    update();
}

void ColorField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(m_groundColor);
        painter.setPen(hasFocus() ? QPen(palette::color, borderWidth) : QPen(Qt::NoPen));
        constexpr qreal inset = borderWidth / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    }
    QLineEdit::paintEvent(event);
}

} // namespace lumora
