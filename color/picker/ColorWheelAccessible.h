// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace lumora
{

class ColorWheel;

/// Presents the color wheel to screen readers: a dial whose value is the hue in degrees, with hue and saturation in
/// words as its description.
class ColorWheelAccessible final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit ColorWheelAccessible(ColorWheel *wheel);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    ColorWheel *wheel() const;
};

} // namespace lumora
