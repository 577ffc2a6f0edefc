// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace lumora
{

class LBProgressBar;

/// Presents a progress bar to screen readers: its range and its value, which they cannot set.
class LBProgressBarAccessible final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit LBProgressBarAccessible(LBProgressBar *bar);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &) override {}
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return {}; }

private:
    LBProgressBar *bar() const;
};

} // namespace lumora
