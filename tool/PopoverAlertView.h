// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QWidget>

namespace lumora
{

class IconButton;
class PopoverAlert;

/// The content of an alert's popover; its size depends on the texts. Return presses the first button.
class PopoverAlertView final : public QWidget
{
    Q_OBJECT

public:
    explicit PopoverAlertView(const PopoverAlert &alert);

    /// In the order of the alert's titles.
    const QList<IconButton *> &buttons() const { return m_buttons; }

private:
    QList<IconButton *> m_buttons;
};

} // namespace lumora
