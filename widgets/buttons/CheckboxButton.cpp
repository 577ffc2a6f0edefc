// SPDX-License-Identifier: MIT
#include "CheckboxButton.h"

using namespace Qt::StringLiterals;

namespace lumora
{

CheckboxButton::CheckboxButton(QWidget *parent)
    : SelectionButton(QAccessible::CheckBox, u"button_checkbox"_s, parent), m_invalidImage(u"button_checkbox_invalid"_s)
{
}

void CheckboxButton::setInvalid(bool invalid)
{
    m_invalid = invalid;
    m_staticBox = true;
    setCurrentImage(invalid ? m_invalidImage : activeImage());
}

void CheckboxButton::setIdle()
{
    setCurrentImage(idleImage());
}

void CheckboxButton::mouseEntered()
{
    if (!m_staticBox)
        SelectionButton::mouseEntered();
}

void CheckboxButton::mouseExited()
{
    if (!m_staticBox)
        SelectionButton::mouseExited();
}

void CheckboxButton::mouseDown()
{
    if (!m_staticBox)
        SelectionButton::mouseDown();
}

} // namespace lumora
