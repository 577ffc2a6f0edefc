// SPDX-License-Identifier: MIT
#pragma once

#include "BFIconTabBarItem.h"
#include "TabSelection.h"
#include "widgets/style/KeyboardFocus.h"

#include <QList>
#include <QWidget>

namespace lumora
{

/// Hears when the user changes what is selected in a BFIconTabBar.
class BFIconTabBarDelegate
{
public:
    virtual ~BFIconTabBarDelegate() = default;
    virtual void tabBarChangedSelection(BFIconTabBar *) {}
};

/// A row of icon tabs, one or several of which are selected.
///
/// Slot i reaches from startX + i × itemWidth over one itemWidth, counted from the edge where reading begins. Selecting
/// by code is silent; a press, a drag or a key of the user sends action() and then calls the delegate.
class BFIconTabBar final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double itemWidth READ itemWidth WRITE setItemWidth)
    Q_PROPERTY(bool multipleSelection READ multipleSelection WRITE setMultipleSelection)
public:
    static constexpr double startX = 4;

    explicit BFIconTabBar(QWidget *parent = nullptr);
    ~BFIconTabBar() override;

    const QList<BFIconTabBarItem *> &items() const { return m_items; }
    /// The bar becomes every item's tabBar, and the owner of those that have none. Selects index 0 where nothing is
    /// selected yet.
    void setItems(const QList<BFIconTabBarItem *> &items);
    /// In points; 32 unless set otherwise. A width that is not above 0 is not taken.
    double itemWidth() const { return m_itemWidth; }
    void setItemWidth(double width);
    bool multipleSelection() const { return m_selection.isMultiple(); }
    void setMultipleSelection(bool multiple);
    /// Not owned; must outlive the bar or be taken off with nullptr.
    BFIconTabBarDelegate *delegate() const { return m_delegate; }
    void setDelegate(BFIconTabBarDelegate *delegate) { m_delegate = delegate; }

    /// The first selected item or index; nullptr and -1 where there is none.
    BFIconTabBarItem *selectedItem() const;
    int selectedIndex() const { return m_selection.first(); }
    QList<BFIconTabBarItem *> selectedItems() const;
    IndexSet selectedIndexes() const { return m_selection.indexes(); }

    /// Selects the indexes, in single selection only the first. Keeps what was selected only where extending is asked
    /// for in multiple selection. An empty set is logged and changes nothing.
    void selectIndexes(const IndexSet &indexes, bool byExtendingSelection);
    void selectIndex(int index);
    void selectItem(const BFIconTabBarItem *item);
    /// Selects every item but the last.
    void selectAll();
    /// An empty set is logged and changes nothing.
    void deselectIndexes(const IndexSet &indexes);
    void deselectIndex(int index);
    void deselectItem(const BFIconTabBarItem *item);
    void deselectAll();

    /// The item whose slot x lies in, x counted from the edge where reading begins; nullptr outside of all slots.
    BFIconTabBarItem *itemAtX(double x) const;
    /// The slot of an index in the widget's coordinates.
    QRectF slotRect(int index) const;

    /// The pointer was pressed on an item and is still down.
    bool isDragging() const { return m_dragging; }
    /// In multiple selection, what the press does and a drag over further items: select them, or for false deselect.
    bool firstItemWasSelected() const { return m_firstItemWasSelected; }

    /// Sends action() and calls the delegate.
    void notify();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void action(lumora::BFIconTabBar *sender);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void disconnectItems();
    void forgetItem(QObject *gone);
    BFIconTabBarItem *itemAt(QPointF position) const;
    /// What a press on the item does, and a drag over it.
    void applyPressTo(BFIconTabBarItem *item);
    void setHovered(BFIconTabBarItem *item);
    void moveCurrent(int index);
    void drawItem(QPainter &painter, int index) const;
    void selectionChanged();

    QList<BFIconTabBarItem *> m_items;
    TabSelection m_selection;
    QList<BFIconTabBarItem *> m_announced; ///< selected when it was last said; compared only
    KeyboardFocus m_keyboardFocus;
    BFIconTabBarDelegate *m_delegate = nullptr;
    BFIconTabBarItem *m_draggedOver = nullptr;
    BFIconTabBarItem *m_hovered = nullptr;
    double m_itemWidth = 32;
    /// Where keys go to in the bar; only meaningful in multiple selection.
    int m_current = 0;
    bool m_dragging = false;
    bool m_firstItemWasSelected = false;
};

} // namespace lumora
