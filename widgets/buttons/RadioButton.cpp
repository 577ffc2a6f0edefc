// SPDX-License-Identifier: MIT
#include "RadioButton.h"

namespace lumora
{

RadioButton::RadioButton(QWidget *parent)
    : SelectionButton(QAccessible::RadioButton, QStringLiteral("button_radiobutton"), parent)
{
}

} // namespace lumora
