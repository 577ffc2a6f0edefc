// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace lumora
{

class SFBPopoverWindow;

/// What a screen reader learns about a popover: a message that wants attention, or a dialog where there is something to
/// operate, named as its content is.
class PopoverAccessible final : public QAccessibleWidget
{
public:
    explicit PopoverAccessible(SFBPopoverWindow *popover);

    /// Has screen readers ask for the popover's texts again: they are its content's, which may have changed
    /// while nobody saw it.
    static void renew(SFBPopoverWindow *popover);
    /// Tells the screen reader that the popover has just come up.
    static void announce(SFBPopoverWindow *popover);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;

private:
    const SFBPopoverWindow *popover() const;
};

} // namespace lumora
