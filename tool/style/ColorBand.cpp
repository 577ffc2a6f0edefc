// SPDX-License-Identifier: MIT
#include "ColorBand.h"

#include <QPainter>

namespace lumora
{

ColorBand::ColorBand(QWidget *parent) : QWidget(parent) {}

void ColorBand::setBackgroundColor(const QColor &color)
{
    if (m_backgroundColor == color)
        return;
    m_backgroundColor = color;
    update();
}

void ColorBand::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), m_backgroundColor);
}

} // namespace lumora
