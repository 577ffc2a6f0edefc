// SPDX-License-Identifier: MIT
#include "Panel.h"

#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

Panel::Panel(QWidget *parent) : QWidget(parent) {}

void Panel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::panel);
    painter.drawRoundedRect(rect(), cornerRadius, cornerRadius);
}

} // namespace lumora
