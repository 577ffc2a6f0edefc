// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace lumora
{

class SFBPopoverWindow;

/// Presents a popover to screen readers: as a dialog if it has something to operate, else as an alert; it has its
/// content's name.
class PopoverAccessible final : public QAccessibleWidget
{
public:
    explicit PopoverAccessible(SFBPopoverWindow *popover);

    /// Makes screen readers read the popover's texts again: its content may have changed while it was hidden.
    static void renew(SFBPopoverWindow *popover);
    /// Reports to screen readers that the popover has just appeared.
    static void announce(SFBPopoverWindow *popover);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;

private:
    const SFBPopoverWindow *popover() const;
};

} // namespace lumora
