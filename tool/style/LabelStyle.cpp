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
    if ((label->alignment() & Qt::AlignLeft) != 0)
        alignToStart(label, label->alignment() & Qt::AlignVertical_Mask);
}

void alignToStart(QLabel *label, Qt::Alignment vertical)
{
    const bool mirrored = label->layoutDirection() == Qt::RightToLeft;
    label->setAlignment(vertical | (mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute);
}

} // namespace lumora
