// SPDX-License-Identifier: MIT
#include "RadioButton.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace lumora
{

RadioButton::RadioButton(QWidget *parent) : SelectionButton(QAccessible::RadioButton, u"button_radiobutton"_s, parent)
{
}

void RadioButton::keyPressEvent(QKeyEvent *event)
{
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        moveOn(-forward);
        break;
    case Qt::Key_Right:
        moveOn(forward);
        break;
    case Qt::Key_Up:
        moveOn(-1);
        break;
    case Qt::Key_Down:
        moveOn(1);
        break;
    default:
        SelectionButton::keyPressEvent(event);
    }
}

void RadioButton::moveOn(int step)
{
    const QList<RadioButton *> group = parentWidget() == nullptr
                                           ? QList<RadioButton *>{this}
                                           : parentWidget()->findChildren<RadioButton *>(Qt::FindDirectChildrenOnly);
    RadioButton *next = group.value(group.indexOf(this) + step);
    if (next == nullptr || !next->isVisible() || !next->isEnabled())
        return;
    next->setFocus(Qt::TabFocusReason);
    // A click on the chosen button may take the choice back.
    if (!next->isActive())
        next->click();
}

} // namespace lumora
