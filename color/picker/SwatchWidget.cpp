// SPDX-License-Identifier: MIT
#include "SwatchWidget.h"

#include "ColorPainting.h"
#include "PickerMetrics.h"

#include <QPainter>

namespace lumora
{

void SwatchWidget::setColor(const RgbaColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
}

void SwatchWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSwatch(painter, rect(), m_color, metrics::swatchCorner);
}

} // namespace lumora
