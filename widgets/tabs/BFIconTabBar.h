// SPDX-License-Identifier: MIT
#pragma once

#include "BFIconTabBarItem.h"
#include "TabSelection.h"
#include "widgets/style/KeyboardFocus.h"

#include <QList>
#include <QWidget>

namespace lumora
{

/// Is notified when the user changes the selection in a BFIconTabBar.
class BFIconTabBarDelegate
{
public:
    virtual ~BFIconTabBarDelegate() = default;
    virtual void tabBarChangedSelection(BFIconTabBar *) {}
};

/// A row of icon tabs, one or several of which are selected.
///
/// Slot i begins at startX + i × itemWidth from the edge where reading begins, and is itemWidth wide. Selecting by code
/// sends nothing; a press, a drag or a key of the user sends action() and then calls the delegate.
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
    /// The bar becomes every item's tabBar, and owns those without an owner. Selects index 0 if nothing is selected.
    void setItems(const QList<BFIconTabBarItem *> &items);
    /// In points; 32 by default. A width of 0 or less is ignored.
    double itemWidth() const { return m_itemWidth; }
    void setItemWidth(double width);
    bool multipleSelection() const { return m_selection.isMultiple(); }
    void setMultipleSelection(bool multiple);
    /// Not owned; must outlive the bar, or be removed by setting nullptr.
    BFIconTabBarDelegate *delegate() const { return m_delegate; }
    void setDelegate(BFIconTabBarDelegate *delegate) { m_delegate = delegate; }

    /// The first selected item or index; nullptr and -1 if there is none.
    BFIconTabBarItem *selectedItem() const;
    int selectedIndex() const { return m_selection.first(); }
    QList<BFIconTabBarItem *> selectedItems() const;
    IndexSet selectedIndexes() const { return m_selection.indexes(); }

    /// Selects the indexes, in single selection only the first. Keeps the present selection only if `extending` is set
    /// in multiple selection. An empty set is logged and changes nothing.
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

    /// The item whose slot contains x, counted from the edge where reading begins; nullptr outside all slots.
    BFIconTabBarItem *itemAtX(double x) const;
    /// The slot of an index in the widget's coordinates.
    QRectF slotRect(int index) const;

    /// The item on which the pointer was pressed and is still down.
    bool isDragging() const { return m_dragging; }
    /// In multiple selection, whether a press, and a drag over further items, selects or deselects them.
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
    /// Handles a press on the item, or a drag over it.
    void applyPressTo(BFIconTabBarItem *item);
    void setHovered(BFIconTabBarItem *item);
    void moveCurrent(int index);
    void drawItem(QPainter &painter, int index) const;
    void selectionChanged();

    QList<BFIconTabBarItem *> m_items;
    TabSelection m_selection;
    QList<BFIconTabBarItem *> m_announced; ///< selected at the last notification; only compared
    KeyboardFocus m_keyboardFocus;
    BFIconTabBarDelegate *m_delegate = nullptr;
    BFIconTabBarItem *m_draggedOver = nullptr;
    BFIconTabBarItem *m_hovered = nullptr;
    double m_itemWidth = 32;
    /// The item that gets the keys; only used in multiple selection.
    int m_current = 0;
    bool m_dragging = false;
    bool m_firstItemWasSelected = false;
};

} // namespace lumora
