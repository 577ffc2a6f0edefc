// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace lumora
{

class PaintedButton;

/// Presents a painted button to screen readers: its role, its text as its name, whether it is checked, and how to press
/// it.
class PaintedButtonAccessible final : public QAccessibleWidget
{
public:
    explicit PaintedButtonAccessible(PaintedButton *button);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    PaintedButton *button() const;
    bool isSelection() const;
};

} // namespace lumora
