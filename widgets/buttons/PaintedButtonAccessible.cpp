// SPDX-License-Identifier: MIT
#include "PaintedButtonAccessible.h"

#include "PaintedButton.h"

namespace lumora
{

PaintedButtonAccessible::PaintedButtonAccessible(PaintedButton *button)
    : QAccessibleWidget(button, button->accessibleRole())
{
}

QString PaintedButtonAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name) {
        if (!widget()->accessibleName().isEmpty())
            return widget()->accessibleName();
        if (!button()->text().isEmpty())
            return button()->text();
        // A button with only a picture is named by its tool tip.
        if (!widget()->toolTip().isEmpty())
            return widget()->toolTip();
    }
    return QAccessibleWidget::text(kind);
}

QAccessible::State PaintedButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = button()->isDown();
    if (isSelection()) {
        state.checkable = true;
        state.checked = button()->isActive();
    }
    return state;
}

QStringList PaintedButtonAccessible::actionNames() const
{
    QStringList names;
    if (widget()->isEnabled()) {
        if (isSelection())
            names << toggleAction();
        names << pressAction();
    }
    return names + QAccessibleWidget::actionNames();
}

void PaintedButtonAccessible::doAction(const QString &name)
{
    if (name == pressAction() || (isSelection() && name == toggleAction()))
        button()->click();
    else
        QAccessibleWidget::doAction(name);
}

PaintedButton *PaintedButtonAccessible::button() const
{
    return static_cast<PaintedButton *>(widget());
}

bool PaintedButtonAccessible::isSelection() const
{
    return role() == QAccessible::CheckBox || role() == QAccessible::RadioButton || button()->isCheckable();
}

} // namespace lumora
