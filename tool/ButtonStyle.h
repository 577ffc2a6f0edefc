// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

namespace lumora
{

class HoverButton;
class IconButton;

/// The looks of an icon button whose hover and active colors are one, by the name of its icon.
void styleButton(IconButton *button, const QString &text, const QString &iconName, const QColor &normalColor,
                 const QColor &hoverColor);
void styleButton(HoverButton *button, const QString &text, const QColor &normalColor, const QColor &hoverColor);

} // namespace lumora
