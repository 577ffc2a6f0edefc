// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleObject>
#include <QAccessibleWidget>

namespace lumora
{

class BFIconTabBar;
class BFIconTabBarItem;

/// Presents a tab bar to screen readers: its items, in order.
class BFIconTabBarAccessible final : public QAccessibleWidget
{
public:
    explicit BFIconTabBarAccessible(BFIconTabBar *bar);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

private:
    BFIconTabBar *bar() const;
};

/// One tab: named by its tool tip, selected or not; pressing it works like a click.
class BFIconTabBarItemAccessible final : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit BFIconTabBarItemAccessible(BFIconTabBarItem *item);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    BFIconTabBarItem *item() const;
    int index() const;
};

} // namespace lumora
