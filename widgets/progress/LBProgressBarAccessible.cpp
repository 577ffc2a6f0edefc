// SPDX-License-Identifier: MIT
#include "LBProgressBarAccessible.h"

#include "LBProgressBar.h"

#include <QLocale>

namespace lumora
{

LBProgressBarAccessible::LBProgressBarAccessible(LBProgressBar *bar) : QAccessibleWidget(bar, QAccessible::ProgressBar)
{
}

void *LBProgressBarAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString LBProgressBarAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return widget()->locale().toString(bar()->doubleValue());
    return QAccessibleWidget::text(kind);
}

QAccessible::State LBProgressBarAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.animated = bar()->isAnimating();
    return state;
}

QVariant LBProgressBarAccessible::currentValue() const
{
    return bar()->doubleValue();
}

QVariant LBProgressBarAccessible::maximumValue() const
{
    return bar()->maxValue();
}

QVariant LBProgressBarAccessible::minimumValue() const
{
    return bar()->minValue();
}

LBProgressBar *LBProgressBarAccessible::bar() const
{
    return static_cast<LBProgressBar *>(widget());
}

} // namespace lumora
