// SPDX-License-Identifier: MIT
#pragma once

#include "ITSidebarItemCell.h"

#include <QList>
#include <QWidget>

namespace lumora
{

/// A column of cells of one size, at most one of which is on.
class SidebarMatrix final : public QWidget
{
    Q_OBJECT

public:
    explicit SidebarMatrix(QWidget *parent = nullptr);

    /// Sent when a click selects a cell that sends no action of its own.
    TargetAction<SidebarMatrix> &targetAction() { return m_targetAction; }

    QSize cellSize() const { return m_cellSize; }
    void setCellSize(QSize size);
    bool allowsEmptySelection() const { return m_allowsEmptySelection; }
    void setAllowsEmptySelection(bool allows) { m_allowsEmptySelection = allows; }

    const QList<ITSidebarItemCell *> &cells() const { return m_cells; }
    ITSidebarItemCell *selectedCell() const;
    /// Takes ownership.
    void addRow(ITSidebarItemCell *cell);
    /// Removes and deletes the cell; the row must exist.
    void removeRow(int row);

    /// Turns the cell on and all others off, and sends nothing. The cell must be in the matrix.
    void selectCell(ITSidebarItemCell *cell);
    void deselectSelectedCell();
    /// Resizes to its cells.
    void sizeToCells();

private:
    void cellClicked(ITSidebarItemCell *cell);
    void layOutCells();

    QList<ITSidebarItemCell *> m_cells;
    QSize m_cellSize;
    TargetAction<SidebarMatrix> m_targetAction;
    bool m_allowsEmptySelection = false;
};

} // namespace lumora
