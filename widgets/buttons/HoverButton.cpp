// SPDX-License-Identifier: MIT
#include "HoverButton.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

namespace lumora
{

HoverButton::HoverButton(QWidget *parent) : FilledButton(latoBold(17), parent), m_hovercolor(palette::buttonHover) {}

} // namespace lumora
