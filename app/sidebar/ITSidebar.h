// SPDX-License-Identifier: MIT
#pragma once

#include "SidebarScrollView.h"
#include "TargetAction.h"
#include "widgets/style/KeyboardFocus.h"
#include "widgets/style/NamedImage.h"

#include <QWidget>

namespace lumora
{

class ITSidebarItemCell;
class SidebarMatrix;

/// A column of image items, one of which is selected by click or arrow key; lives in a SidebarScrollView. Reports every
/// change of the selection to its own target or, if that does not respond, to the selected item's.
class ITSidebar : public QWidget
{
    Q_OBJECT

public:
    /// Makes a cell. A subclass may return another class of cell.
    using CellClass = ITSidebarItemCell *(*)(QWidget *parent);
    using CellAction = std::function<void(ITSidebarItemCell *)>;

    explicit ITSidebar(QWidget *parent = nullptr);
    /// Called once the sidebar is in its scroll view.
    void awakeFromNib();

    virtual CellClass sidebarItemCellClass() const;
    static QSize defaultCellSize() { return {62, 62}; }

    /// Appends an item, which the sidebar owns. Without an alternate image, the image is shown in every state.
    ITSidebarItemCell *addItemWithImage(const NamedImage &image, const NamedImage &alternateImage = {},
                                        QObject *target = nullptr, CellAction action = {});
    ITSidebarItemCell *addItemWithImage(const NamedImage &image, QObject *target, CellAction action);
    void addCell(ITSidebarItemCell *cell);
    void removeRow(int rowIndex);
    /// Sets both images. Throws std::out_of_range for an index without a cell.
    void setImage(const NamedImage &image, qint32 forCellIndex);

    SidebarMatrix *matrix() const { return m_matrix; }
    /// The index of the selected cell, -1 for none.
    qint32 selectedIndex() const;
    /// Selects the cell and reports it, even if it is already selected; ignores an index without a cell.
    void setSelectedIndex(qint32 index);
    ITSidebarItemCell *selectedItem() const;
    /// The same by cell; ignores a cell of another sidebar.
    void setSelectedItem(ITSidebarItemCell *cell);
    void selectNextItem() { selectNeighbourItemWithValue(1); }
    void selectPreviousItem() { selectNeighbourItemWithValue(-1); }
    /// These two do nothing at the end.
    void selectNeighbourItemWithValue(qint32 delta);
    /// Possible even if an empty selection is not allowed.
    void deselectAllItems();

    bool allowsEmptySelection() const;
    /// If an empty selection is not allowed and nothing is selected, selects the first item.
    void setAllowsEmptySelection(bool allows);
    QSize cellSize() const;
    void setCellSize(QSize size);

    /// The settings of the enclosing scroll view; without one, none and without effect.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);
    ScrollerKnobStyle scrollerKnobStyle() const;
    void setScrollerKnobStyle(ScrollerKnobStyle style);

    QObject *target() const { return m_targetAction.target; }
    void setTarget(QObject *target);
    void setAction(std::function<void(ITSidebar *)> action);

    /// Places the sidebar 10 points right of the given rectangle.
    void setFrame(const QRect &frame);
    /// Resizes to the items, with at least the visible height of the scroll view.
    void resizeMatrix();
    /// Reports the selection.
    void matrixCallback();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void initialise();
    void addMatrix();
    void initialiseScrollView();
    SidebarScrollView *enclosingScrollView() const;

    SidebarMatrix *m_matrix = nullptr;
    TargetAction<ITSidebar> m_targetAction;
    KeyboardFocus m_keyboardFocus;
};

} // namespace lumora
