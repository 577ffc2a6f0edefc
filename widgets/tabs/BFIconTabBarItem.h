// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QObject>
#include <QPointer>

namespace lumora
{

class BFIconTabBar;

/// One tab of a BFIconTabBar. Its tool tip is also its accessible name.
class BFIconTabBarItem final : public QObject
{
    Q_OBJECT
public:
    BFIconTabBarItem(const QIcon &icon, const QString &tooltip, QObject *parent = nullptr);
    /// The caller owns the item until a bar receives it.
    static BFIconTabBarItem *itemWithIcon(const QIcon &icon, const QString &tooltip);

    const QIcon &icon() const { return m_icon; }
    void setIcon(const QIcon &icon);
    const QString &tooltip() const { return m_tooltip; }
    void setTooltip(const QString &tooltip) { m_tooltip = tooltip; }

    /// The bar that received the item last; nullptr before that and once the bar is deleted.
    BFIconTabBar *tabBar() const;
    void setTabBar(BFIconTabBar *tabBar);

private:
    QIcon m_icon;
    QString m_tooltip;
    QPointer<BFIconTabBar> m_tabBar;
};

} // namespace lumora
