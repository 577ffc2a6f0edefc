// SPDX-License-Identifier: MIT
#include "BFIconTabBarItem.h"

#include "BFIconTabBar.h"

namespace lumora
{

BFIconTabBarItem::BFIconTabBarItem(const QIcon &icon, const QString &tooltip, QObject *parent)
    : QObject(parent), m_icon(icon), m_tooltip(tooltip)
{
}

BFIconTabBarItem *BFIconTabBarItem::itemWithIcon(const QIcon &icon, const QString &tooltip)
{
    return new BFIconTabBarItem(icon, tooltip);
}

void BFIconTabBarItem::setIcon(const QIcon &icon)
{
    m_icon = icon;
    if (m_tabBar)
        m_tabBar->update();
}

BFIconTabBar *BFIconTabBarItem::tabBar() const
{
    return m_tabBar;
}

void BFIconTabBarItem::setTabBar(BFIconTabBar *tabBar)
{
    m_tabBar = tabBar;
}

} // namespace lumora
