// SPDX-License-Identifier: MIT
#include "BFIconTabBarAccessible.h"

#include "BFIconTabBar.h"

namespace lumora
{

BFIconTabBarAccessible::BFIconTabBarAccessible(BFIconTabBar *bar) : QAccessibleWidget(bar, QAccessible::PageTabList) {}

int BFIconTabBarAccessible::childCount() const
{
    return static_cast<int>(bar()->items().size());
}

QAccessibleInterface *BFIconTabBarAccessible::child(int index) const
{
    return QAccessible::queryAccessibleInterface(bar()->items().value(index, nullptr));
}

QAccessibleInterface *BFIconTabBarAccessible::childAt(int x, int y) const
{
    const QPoint local = bar()->mapFromGlobal(QPoint(x, y));
    for (int index = 0; index < childCount(); ++index) {
        if (bar()->slotRect(index).contains(local))
            return child(index);
    }
    return nullptr;
}

int BFIconTabBarAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    for (int index = 0; index < childCount(); ++index) {
        if (child != nullptr && bar()->items()[index] == child->object())
            return index;
    }
    return -1;
}

BFIconTabBar *BFIconTabBarAccessible::bar() const
{
    return static_cast<BFIconTabBar *>(widget());
}

BFIconTabBarItemAccessible::BFIconTabBarItemAccessible(BFIconTabBarItem *item) : QAccessibleObject(item) {}

void *BFIconTabBarItemAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

QAccessibleInterface *BFIconTabBarItemAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(item()->tabBar());
}

QString BFIconTabBarItemAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? item()->tooltip() : QString();
}

QRect BFIconTabBarItemAccessible::rect() const
{
    const BFIconTabBar *bar = item()->tabBar();
    if (bar == nullptr)
        return {};
    const QRect slot = bar->slotRect(index()).toAlignedRect();
    return {bar->mapToGlobal(slot.topLeft()), slot.size()};
}

QAccessible::State BFIconTabBarItemAccessible::state() const
{
    QAccessible::State state;
    const BFIconTabBar *bar = item()->tabBar();
    if (bar == nullptr) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.selected = bar->selectedIndexes().count(index()) != 0;
    state.disabled = !bar->isEnabled();
    state.invisible = !bar->isVisible();
    return state;
}

QStringList BFIconTabBarItemAccessible::actionNames() const
{
    return {pressAction()};
}

void BFIconTabBarItemAccessible::doAction(const QString &name)
{
    BFIconTabBar *bar = item()->tabBar();
    if (name != pressAction() || bar == nullptr || !bar->isEnabled())
        return;
    if (bar->multipleSelection() && bar->selectedIndexes().count(index()) != 0)
        bar->deselectItem(item());
    else
        bar->selectItem(item());
    bar->notify();
}

BFIconTabBarItem *BFIconTabBarItemAccessible::item() const
{
    return static_cast<BFIconTabBarItem *>(object());
}

int BFIconTabBarItemAccessible::index() const
{
    const BFIconTabBar *bar = item()->tabBar();
    return bar == nullptr ? -1 : static_cast<int>(bar->items().indexOf(item()));
}

} // namespace lumora
