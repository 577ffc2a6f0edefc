// SPDX-License-Identifier: MIT
#include "LabelStyle.h"

#include <QLabel>

namespace lumora
{

void styleLabel(QLabel *label, const QFont &font, const QColor &color)
{
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, color);
    label->setPalette(colors);
}

} // namespace lumora
