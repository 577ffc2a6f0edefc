// SPDX-License-Identifier: MIT
#include "RadioButton.h"

using namespace Qt::StringLiterals;

namespace lumora
{

RadioButton::RadioButton(QWidget *parent) : SelectionButton(QAccessible::RadioButton, u"button_radiobutton"_s, parent)
{
}

} // namespace lumora
