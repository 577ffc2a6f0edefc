// SPDX-License-Identifier: MIT
#include "SidebarAccessible.h"

#include "ITSidebar.h"
#include "ITSidebarItemCell.h"
#include "widgets/style/InstallAccessible.h"

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

class SidebarAccessible final : public QAccessibleWidget
{
public:
    explicit SidebarAccessible(ITSidebar *sidebar) : QAccessibleWidget(sidebar, QAccessible::PageTabList) {}
};

} // namespace

void installSidebarAccessible()
{
    installAccessible<ITSidebarItemCell, ItemAccessible>();
    installAccessible<ITSidebar, SidebarAccessible>();
}

} // namespace lumora
