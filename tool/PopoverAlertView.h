// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QWidget>

namespace lumora
{

class IconButton;
class PopoverAlert;

/// What an alert's popover shows; its size follows the texts. The first button is the one return presses.
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
