// SPDX-License-Identifier: MIT
#include "ColorWheelAccessible.h"

#include "ColorWheel.h"

namespace lumora
{

ColorWheelAccessible::ColorWheelAccessible(ColorWheel *wheel) : QAccessibleWidget(wheel, QAccessible::Dial) {}

void *ColorWheelAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString ColorWheelAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value || kind == QAccessible::Description)
        return wheel()->valueText();
    return QAccessibleWidget::text(kind);
}

QVariant ColorWheelAccessible::currentValue() const
{
    return channelNumber(wheel()->model()->picked(), ColorChannel::Hue);
}

void ColorWheelAccessible::setCurrentValue(const QVariant &value)
{
    PickerModel *model = wheel()->model();
    model->setPicked(withChannel(model->picked(), ColorChannel::Hue, value.toInt()));
}

QVariant ColorWheelAccessible::maximumValue() const
{
    return channelMaximum(ColorChannel::Hue);
}

QVariant ColorWheelAccessible::minimumValue() const
{
    return 0;
}

QVariant ColorWheelAccessible::minimumStepSize() const
{
    return 1;
}

ColorWheel *ColorWheelAccessible::wheel() const
{
    return static_cast<ColorWheel *>(widget());
}

} // namespace lumora
