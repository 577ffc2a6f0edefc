// SPDX-License-Identifier: MIT
#include "SidebarMatrix.h"

#include <QAccessible>

namespace lumora
{

SidebarMatrix::SidebarMatrix(QWidget *parent) : QWidget(parent) {}

void SidebarMatrix::setCellSize(QSize size)
{
    if (m_cellSize == size)
        return;
    m_cellSize = size;
    layOutCells();
}

ITSidebarItemCell *SidebarMatrix::selectedCell() const
{
    const auto selected =
        std::find_if(m_cells.cbegin(), m_cells.cend(), [](const auto *cell) { return cell->state(); });
    return selected == m_cells.cend() ? nullptr : *selected;
}

void SidebarMatrix::addRow(ITSidebarItemCell *cell)
{
    cell->setParent(this);
    connect(cell, &QAbstractButton::clicked, this, [this, cell] { cellClicked(cell); });
    m_cells << cell;
    layOutCells();
    cell->show();
}

void SidebarMatrix::removeRow(int row)
{
    m_cells.takeAt(row)->deleteLater();
    layOutCells();
}

void SidebarMatrix::selectCell(ITSidebarItemCell *cell)
{
    for (ITSidebarItemCell *other : std::as_const(m_cells))
        other->setChecked(other == cell);
    QAccessibleEvent event(cell, QAccessible::Selection);
    QAccessible::updateAccessibility(&event);
}

void SidebarMatrix::deselectSelectedCell()
{
    if (ITSidebarItemCell *cell = selectedCell())
        cell->setChecked(false);
}

void SidebarMatrix::sizeToCells()
{
    resize(m_cellSize.width(), m_cellSize.height() * static_cast<int>(m_cells.size()));
}

void SidebarMatrix::cellClicked(ITSidebarItemCell *cell)
{
    selectCell(cell);
    if (cell->targetAction().responds())
        cell->targetAction().action(cell);
    else if (m_targetAction.responds())
        m_targetAction.action(this);
}

void SidebarMatrix::layOutCells()
{
    int y = 0;
    for (ITSidebarItemCell *cell : std::as_const(m_cells)) {
        cell->setGeometry(QRect(QPoint(0, y), m_cellSize));
        y += m_cellSize.height();
    }
}

} // namespace lumora
