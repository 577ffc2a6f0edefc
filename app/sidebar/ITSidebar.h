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
/// change of the selection to its own target or, where that does not respond, to the selected item's.
class ITSidebar : public QWidget
{
    Q_OBJECT

public:
    /// Makes a cell. A subclass may answer another than `sidebarItemCellClass` does here.
    using CellClass = ITSidebarItemCell *(*)(QWidget *parent);
    using CellAction = std::function<void(ITSidebarItemCell *)>;

    explicit ITSidebar(QWidget *parent = nullptr);
    /// Called once the sidebar stands in its scroll view.
    void awakeFromNib();

    virtual CellClass sidebarItemCellClass() const;
    static QSize defaultCellSize() { return {62, 62}; }

    /// Appends an item; the sidebar owns it. Without an alternate image the image is shown in every state.
    ITSidebarItemCell *addItemWithImage(const NamedImage &image, const NamedImage &alternateImage = {},
                                        QObject *target = nullptr, CellAction action = {});
    ITSidebarItemCell *addItemWithImage(const NamedImage &image, QObject *target, CellAction action);
    void addCell(ITSidebarItemCell *cell);
    void removeRow(int rowIndex);
    /// Sets both images. An index without a cell is the caller's error and throws std::out_of_range.
    void setImage(const NamedImage &image, qint32 forCellIndex);

    SidebarMatrix *matrix() const { return m_matrix; }
    /// The position of the selected cell, -1 for none.
    qint32 selectedIndex() const;
    /// Selects and reports, even the cell that is selected already; an index without a cell is ignored.
    void setSelectedIndex(qint32 index);
    ITSidebarItemCell *selectedItem() const;
    /// As by the cell's position; a cell that is none of the sidebar's is ignored.
    void setSelectedItem(ITSidebarItemCell *cell);
    void selectNextItem() { selectNeighbourItemWithValue(1); }
    void selectPreviousItem() { selectNeighbourItemWithValue(-1); }
    /// Stepping past either end does nothing.
    void selectNeighbourItemWithValue(qint32 delta);
    /// Possible even where an empty selection is not allowed.
    void deselectAllItems();

    bool allowsEmptySelection() const;
    /// Where an empty selection is forbidden and present, the first item is selected.
    void setAllowsEmptySelection(bool allows);
    QSize cellSize() const;
    void setCellSize(QSize size);

    /// Those of the enclosing scroll view; without one, none and without effect.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);
    ScrollerKnobStyle scrollerKnobStyle() const;
    void setScrollerKnobStyle(ScrollerKnobStyle style);

    QObject *target() const { return m_targetAction.target; }
    void setTarget(QObject *target);
    void setAction(std::function<void(ITSidebar *)> action);

    /// Places the sidebar 10 points right of the rectangle it is given.
    void setFrame(const QRect &frame);
    /// Takes the size of the items, at least the height of what the scroll view shows.
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
