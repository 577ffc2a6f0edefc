// SPDX-License-Identifier: MIT
#include "SidebarAccessible.h"

#include "ITSidebar.h"
#include "ITSidebarItemCell.h"

#include <QAccessibleWidget>

namespace lumora
{

namespace
{

class ItemAccessible final : public QAccessibleWidget
{
public:
    explicit ItemAccessible(ITSidebarItemCell *cell) : QAccessibleWidget(cell, QAccessible::PageTab), m_cell(cell) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = m_cell->state();
        return state;
    }
    QStringList actionNames() const override { return {QAccessibleActionInterface::pressAction()}; }
    void doAction(const QString &name) override
    {
        if (name == QAccessibleActionInterface::pressAction())
            m_cell->click();
    }

private:
    ITSidebarItemCell *m_cell;
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    if (auto *cell = qobject_cast<ITSidebarItemCell *>(object))
        return new ItemAccessible(cell);
    if (auto *sidebar = qobject_cast<ITSidebar *>(object))
        return new QAccessibleWidget(sidebar, QAccessible::PageTabList);
    return nullptr;
}

} // namespace

void installSidebarAccessible()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(&makeAccessible);
        return true;
    }();
}

} // namespace lumora
