// SPDX-License-Identifier: MIT
#include "PopoverAccessible.h"

#include "PopoverKeyStatus.h"
#include "SFBPopoverWindow.h"

#include <QAccessible>

namespace lumora
{

PopoverAccessible::PopoverAccessible(SFBPopoverWindow *popover) : QAccessibleWidget(popover, QAccessible::Dialog) {}

void PopoverAccessible::renew(SFBPopoverWindow *popover)
{
    for (const QAccessible::Event change : {QAccessible::NameChanged, QAccessible::DescriptionChanged}) {
        QAccessibleEvent changed(popover, change);
        QAccessible::updateAccessibility(&changed);
    }
}

void PopoverAccessible::announce(SFBPopoverWindow *popover)
{
    QAccessibleEvent shown(popover, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
    QAccessibleEvent alert(popover, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

const SFBPopoverWindow *PopoverAccessible::popover() const
{
    return static_cast<const SFBPopoverWindow *>(widget());
}

QAccessible::Role PopoverAccessible::role() const
{
    return wantsKeyboard(popover()->contentView(), nullptr) ? QAccessible::Dialog : QAccessible::AlertMessage;
}

QString PopoverAccessible::text(QAccessible::Text kind) const
{
    const QWidget *content = popover()->contentView();
    if (content && kind == QAccessible::Name && !content->accessibleName().isEmpty())
        return content->accessibleName();
    if (content && kind == QAccessible::Description && !content->accessibleDescription().isEmpty())
        return content->accessibleDescription();
    return QAccessibleWidget::text(kind);
}

} // namespace lumora
