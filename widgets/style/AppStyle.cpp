// SPDX-License-Identifier: MIT
#include "AppStyle.h"

#include "Fonts.h"
#include "Palette.h"
#include "SlimScrollBars.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace lumora
{

void applyAppStyle()
{
    QApplication::setStyle(new SlimScrollBars(u"fusion"_s));
}

void applyAppColors()
{
    QPalette colors(palette::panel, palette::window);
    const auto setText = [&colors](QPalette::ColorRole role) {
        QColor disabled = palette::chromeText;
        disabled.setAlphaF(static_cast<float>(palette::disabledOpacity));
        colors.setColor(role, palette::chromeText);
        colors.setColor(QPalette::Disabled, role, disabled);
    };
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        setText(role);
    colors.setColor(QPalette::Base, palette::window);
    colors.setColor(QPalette::AlternateBase, palette::panel);
    colors.setColor(QPalette::ToolTipBase, palette::window);
    colors.setColor(QPalette::PlaceholderText, palette::placeholderText);
    colors.setColor(QPalette::Highlight, palette::selectedTextBackground);
    colors.setColor(QPalette::HighlightedText, palette::selectedText);
    colors.setColor(QPalette::Link, palette::linkText);
    QApplication::setPalette(colors);
    QToolTip::setPalette(colors);
    QApplication::setFont(latoRegular(13));
}

} // namespace lumora
