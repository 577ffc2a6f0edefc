// SPDX-License-Identifier: MIT
#include "ButtonStyle.h"

#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"

namespace lumora
{

void styleButton(IconButton *button, const QString &text, const QString &iconName, const QColor &normalColor,
                 const QColor &hoverColor)
{
    button->setText(text);
    button->setIcon(NamedImage(iconName));
    button->setNormalColor(normalColor);
    button->setHoverColor(hoverColor);
    button->setActiveColor(hoverColor);
}

void styleButton(HoverButton *button, const QString &text, const QColor &normalColor, const QColor &hoverColor)
{
    button->setText(text);
    button->setNormalColor(normalColor);
    button->setHovercolor(hoverColor);
}

} // namespace lumora
