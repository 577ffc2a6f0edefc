// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/tabs/BFIconTabBar.h"

#include <QPixmap>

#include <memory>

namespace lumora::testing
{

inline QIcon plainIcon(const QColor &color)
{
    QPixmap pixmap(20, 20);
    pixmap.fill(color);
    return QIcon(pixmap);
}

inline std::unique_ptr<BFIconTabBar> bar(int count, bool multiple = false)
{
    auto made = std::make_unique<BFIconTabBar>();
    made->setMultipleSelection(multiple);
    QList<BFIconTabBarItem *> items;
    for (int i = 0; i < count; ++i)
        items << BFIconTabBarItem::itemWithIcon(plainIcon(Qt::green), QStringLiteral("tip %1").arg(i));
    made->setItems(items);
    made->resize(made->sizeHint());
    return made;
}

/// The middle of a slot of the standard width.
inline QPoint slotMiddle(int index)
{
    return {4 + 32 * index + 16, 17};
}

} // namespace lumora::testing
