// SPDX-License-Identifier: MIT
#include "ITSidebar.h"

#include "ITSidebarItemCell.h"
#include "SidebarAccessible.h"
#include "SidebarMatrix.h"
#include "widgets/style/Palette.h"

#include <QKeyEvent>
#include <QPainter>

#include <stdexcept>

namespace lumora
{

namespace
{

constexpr int frameShift = 10;
/// The ring is between the selected item's frame and the edge of its cell.
constexpr int focusRingInset = 6;
constexpr qreal focusRingRadius = 8;

} // namespace

ITSidebar::ITSidebar(QWidget *parent) : QWidget(parent)
{
    installSidebarAccessible();
    setFocusPolicy(Qt::StrongFocus);
    initialise();
}

void ITSidebar::initialise()
{
    addMatrix();
}

void ITSidebar::addMatrix()
{
    m_matrix = new SidebarMatrix(this);
    m_matrix->setGeometry(rect());
    m_matrix->setAllowsEmptySelection(true);
    m_matrix->setCellSize(defaultCellSize());
    resizeMatrix();
}

void ITSidebar::awakeFromNib()
{
    resizeMatrix();
    initialiseScrollView();
}

void ITSidebar::initialiseScrollView()
{
    setBackgroundColor(palette::sidebar);
    setScrollerKnobStyle(ScrollerKnobStyle::Light);
}

ITSidebar::CellClass ITSidebar::sidebarItemCellClass() const
{
    return [](QWidget *parent) { return new ITSidebarItemCell(parent); };
}

ITSidebarItemCell *ITSidebar::addItemWithImage(const NamedImage &image, const NamedImage &alternateImage,
                                               QObject *target, CellAction action)
{
    ITSidebarItemCell *cell = sidebarItemCellClass()(m_matrix);
    cell->setImage(image);
    cell->setAlternateImage(alternateImage);
    cell->targetAction() = {target, std::move(action)};
    addCell(cell);
    return cell;
}

ITSidebarItemCell *ITSidebar::addItemWithImage(const NamedImage &image, QObject *target, CellAction action)
{
    return addItemWithImage(image, {}, target, std::move(action));
}

void ITSidebar::addCell(ITSidebarItemCell *cell)
{
    m_matrix->addRow(cell);
    resizeMatrix();
}

void ITSidebar::removeRow(int rowIndex)
{
    m_matrix->removeRow(rowIndex);
    resizeMatrix();
}

void ITSidebar::setImage(const NamedImage &image, qint32 forCellIndex)
{
    if (forCellIndex < 0 || forCellIndex >= m_matrix->cells().size())
        throw std::out_of_range("sidebar cell");
    ITSidebarItemCell *cell = m_matrix->cells().at(forCellIndex);
    cell->setImage(image);
    cell->setAlternateImage(image);
}

qint32 ITSidebar::selectedIndex() const
{
    ITSidebarItemCell *cell = m_matrix->selectedCell();
    return cell == nullptr ? -1 : static_cast<qint32>(m_matrix->cells().indexOf(cell));
}

void ITSidebar::setSelectedIndex(qint32 index)
{
    if (index < 0 || index >= m_matrix->cells().size())
        return;
    m_matrix->selectCell(m_matrix->cells().at(index));
    if (SidebarScrollView *scrollView = enclosingScrollView())
        scrollView->scrollTo(m_matrix->selectedCell()->geometry());
    update();
    matrixCallback();
}

ITSidebarItemCell *ITSidebar::selectedItem() const
{
    return m_matrix->selectedCell();
}

void ITSidebar::setSelectedItem(ITSidebarItemCell *cell)
{
    setSelectedIndex(static_cast<qint32>(m_matrix->cells().indexOf(cell)));
}

void ITSidebar::selectNeighbourItemWithValue(qint32 delta)
{
    setSelectedIndex(selectedIndex() + delta);
}

void ITSidebar::deselectAllItems()
{
    m_matrix->deselectSelectedCell();
    update();
    matrixCallback();
}

bool ITSidebar::allowsEmptySelection() const
{
    return m_matrix->allowsEmptySelection();
}

void ITSidebar::setAllowsEmptySelection(bool allows)
{
    m_matrix->setAllowsEmptySelection(allows);
    if (!allows && m_matrix->selectedCell() == nullptr)
        setSelectedIndex(0);
}

QSize ITSidebar::cellSize() const
{
    return m_matrix->cellSize();
}

void ITSidebar::setCellSize(QSize size)
{
    m_matrix->setCellSize(size);
}

QColor ITSidebar::backgroundColor() const
{
    const SidebarScrollView *scrollView = enclosingScrollView();
    return scrollView == nullptr ? QColor() : scrollView->backgroundColor();
}

void ITSidebar::setBackgroundColor(const QColor &color)
{
    if (SidebarScrollView *scrollView = enclosingScrollView())
        scrollView->setBackgroundColor(color);
}

ScrollerKnobStyle ITSidebar::scrollerKnobStyle() const
{
    const SidebarScrollView *scrollView = enclosingScrollView();
    return scrollView == nullptr ? ScrollerKnobStyle::Default : scrollView->scrollerKnobStyle();
}

void ITSidebar::setScrollerKnobStyle(ScrollerKnobStyle style)
{
    if (SidebarScrollView *scrollView = enclosingScrollView())
        scrollView->setScrollerKnobStyle(style);
}

void ITSidebar::setTarget(QObject *target)
{
    m_targetAction.target = target;
    m_matrix->targetAction().target = this;
}

void ITSidebar::setAction(std::function<void(ITSidebar *)> action)
{
    m_matrix->targetAction().action = [this](SidebarMatrix *) { matrixCallback(); };
    m_targetAction.action = std::move(action);
}

void ITSidebar::setFrame(const QRect &frame)
{
    setGeometry(frame.translated(frameShift, 0));
    resizeMatrix();
}

void ITSidebar::resizeMatrix()
{
    m_matrix->sizeToCells();
    SidebarScrollView *scrollView = enclosingScrollView();
    const int visibleHeight = scrollView == nullptr ? 0 : scrollView->clipViewSize().height();
    const QSize size(m_matrix->width(), std::max(m_matrix->height(), visibleHeight));
    m_matrix->resize(size);
    resize(size);
    if (scrollView != nullptr)
        scrollView->updateScrollRange();
}

void ITSidebar::matrixCallback()
{
    if (m_targetAction.responds()) {
        m_targetAction.action(this);
        return;
    }
    ITSidebarItemCell *cell = m_matrix->selectedCell();
    if (cell != nullptr && cell->targetAction().responds())
        cell->targetAction().action(cell);
}

bool ITSidebar::event(QEvent *event)
{
    if (m_keyboardFocus.follow(event))
        update();
    return QWidget::event(event);
}

void ITSidebar::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        deselectAllItems();
        break;
    case Qt::Key_Down:
        selectNextItem();
        break;
    case Qt::Key_Up:
        selectPreviousItem();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ITSidebar::paintEvent(QPaintEvent *)
{
    if (!hasFocus() || !m_keyboardFocus.isShown())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette::sidebarFocus, 2));
    const ITSidebarItemCell *cell = m_matrix->selectedCell();
    const QRectF ringed = cell == nullptr ? QRectF(rect()) : QRectF(cell->geometry());
    painter.drawRoundedRect(ringed.adjusted(focusRingInset, focusRingInset, -focusRingInset, -focusRingInset),
                            focusRingRadius, focusRingRadius);
}

SidebarScrollView *ITSidebar::enclosingScrollView() const
{
    return parentWidget() == nullptr ? nullptr : qobject_cast<SidebarScrollView *>(parentWidget()->parentWidget());
}

} // namespace lumora
