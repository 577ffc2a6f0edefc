// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

namespace lumora
{

class HoverButton;
class IconButton;

/// The look of an icon button with one color for hovering and pressing; the icon is given by name.
void styleButton(IconButton *button, const QString &text, const QString &iconName, const QColor &normalColor,
                 const QColor &hoverColor);
void styleButton(HoverButton *button, const QString &text, const QColor &normalColor, const QColor &hoverColor);

} // namespace lumora
