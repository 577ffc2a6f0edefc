// SPDX-License-Identifier: MIT
#include "BFIconTabBar.h"

#include "BFIconTabBarAccessible.h"
#include "foundation/Log.h"
#include "widgets/style/InstallAccessible.h"
#include "widgets/style/Palette.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>

#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int hintHeight = 34;
constexpr qreal iconSide = 20;
constexpr qreal markInset = 2;
constexpr qreal markRadius = 5;
constexpr qreal ringWidth = 2;

} // namespace

BFIconTabBar::BFIconTabBar(QWidget *parent) : QWidget(parent)
{
    installAccessible<BFIconTabBar, BFIconTabBarAccessible>();
    installAccessible<BFIconTabBarItem, BFIconTabBarItemAccessible>();
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

BFIconTabBar::~BFIconTabBar()
{
    // The base class would destroy the items after the list of them.
    disconnectItems();
}

void BFIconTabBar::setItems(const QList<BFIconTabBarItem *> &items)
{
    if (items == m_items)
        return;
    disconnectItems();
    m_items = items;
    m_draggedOver = nullptr;
    m_hovered = nullptr;
    for (BFIconTabBarItem *item : items) {
        item->setTabBar(this);
        if (item->parent() == nullptr)
            item->setParent(this);
        connect(item, &QObject::destroyed, this, &BFIconTabBar::forgetItem);
    }
    if (m_selection.isEmpty())
        selectIndex(0);
    updateGeometry();
    update();
}

void BFIconTabBar::disconnectItems()
{
    for (BFIconTabBarItem *item : std::as_const(m_items))
        disconnect(item, &QObject::destroyed, this, &BFIconTabBar::forgetItem);
}

void BFIconTabBar::forgetItem(QObject *gone)
{
    // Only the address of a destroyed item may be used.
    m_items.removeIf([gone](const BFIconTabBarItem *item) { return item == gone; });
    m_draggedOver = nullptr;
    m_hovered = nullptr;
    updateGeometry();
    update();
}

void BFIconTabBar::setItemWidth(double width)
{
    if (width == m_itemWidth || !(width > 0))
        return;
    m_itemWidth = width;
    updateGeometry();
    update();
}

void BFIconTabBar::setMultipleSelection(bool multiple)
{
    if (multiple == m_selection.isMultiple())
        return;
    m_selection.setMultiple(multiple);
    selectionChanged();
}

BFIconTabBarItem *BFIconTabBar::selectedItem() const
{
    return m_items.value(selectedIndex(), nullptr);
}

QList<BFIconTabBarItem *> BFIconTabBar::selectedItems() const
{
    QList<BFIconTabBarItem *> selected;
    for (const int index : m_selection.indexes()) {
        if (index < m_items.size())
            selected << m_items[index];
    }
    return selected;
}

void BFIconTabBar::selectIndexes(const IndexSet &indexes, bool byExtendingSelection)
{
    if (indexes.empty()) {
        logLine(u"Selection indexset empty."_s);
        return;
    }
    m_selection.select(indexes, byExtendingSelection);
    selectionChanged();
}

void BFIconTabBar::selectIndex(int index)
{
    selectIndexes({index}, true);
}

void BFIconTabBar::selectItem(const BFIconTabBarItem *item)
{
    const auto index = m_items.indexOf(item);
    if (index >= 0)
        selectIndex(static_cast<int>(index));
}

void BFIconTabBar::selectAll()
{
    m_selection.selectAllOf(static_cast<int>(m_items.size()));
    selectionChanged();
}

void BFIconTabBar::deselectIndexes(const IndexSet &indexes)
{
    if (indexes.empty()) {
        logLine(u"Deselection indexset empty."_s);
        return;
    }
    m_selection.deselect(indexes);
    selectionChanged();
}

void BFIconTabBar::deselectIndex(int index)
{
    deselectIndexes({index});
}

void BFIconTabBar::deselectItem(const BFIconTabBarItem *item)
{
    const auto index = m_items.indexOf(item);
    if (index >= 0)
        deselectIndex(static_cast<int>(index));
}

void BFIconTabBar::deselectAll()
{
    m_selection.clear();
    selectionChanged();
}

void BFIconTabBar::selectionChanged()
{
    update();
    QAccessibleEvent changed(this, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&changed);
    // Screen readers on this platform get events of single items only.
    const QList<BFIconTabBarItem *> before = std::exchange(m_announced, selectedItems());
    for (BFIconTabBarItem *item : std::as_const(m_items)) {
        const bool isSelected = m_announced.contains(item);
        if (isSelected == before.contains(item))
            continue;
        QAccessibleEvent itemChanged(item, isSelected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
        QAccessible::updateAccessibility(&itemChanged);
    }
}

BFIconTabBarItem *BFIconTabBar::itemAtX(double x) const
{
    return m_items.value(slotAtX(x, startX, m_itemWidth), nullptr);
}

BFIconTabBarItem *BFIconTabBar::itemAt(QPointF position) const
{
    return itemAtX(layoutDirection() == Qt::RightToLeft ? width() - position.x() : position.x());
}

QRectF BFIconTabBar::slotRect(int index) const
{
    const qreal x = startX + index * m_itemWidth;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    return {mirrored ? width() - x - m_itemWidth : x, 0, m_itemWidth, static_cast<qreal>(height())};
}

void BFIconTabBar::notify()
{
    const QPointer<BFIconTabBar> alive(this);
    emit action(this);
    if (alive && m_delegate != nullptr)
        m_delegate->tabBarChangedSelection(this);
}

QSize BFIconTabBar::sizeHint() const
{
    return {static_cast<int>(std::ceil(2 * startX + static_cast<double>(m_items.size()) * m_itemWidth)), hintHeight};
}

QSize BFIconTabBar::minimumSizeHint() const
{
    return sizeHint();
}

bool BFIconTabBar::event(QEvent *event)
{
    if (m_keyboardFocus.follow(event))
        update();
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const BFIconTabBarItem *item = itemAt(help->pos());
        if (item != nullptr && !item->tooltip().isEmpty()) {
            QToolTip::showText(help->globalPos(), item->tooltip(), this);
        } else {
            QToolTip::hideText();
            event->ignore();
        }
        return true;
    }
    return QWidget::event(event);
}

void BFIconTabBar::applyPressTo(BFIconTabBarItem *item)
{
    m_current = static_cast<int>(m_items.indexOf(item));
    if (!multipleSelection() || m_firstItemWasSelected)
        selectItem(item);
    else
        deselectItem(item);
    notify();
}

void BFIconTabBar::mousePressEvent(QMouseEvent *event)
{
    BFIconTabBarItem *item = itemAt(event->position());
    if (item == nullptr || event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    if (multipleSelection())
        m_firstItemWasSelected = !m_selection.contains(static_cast<int>(m_items.indexOf(item)));
    m_draggedOver = item;
    m_dragging = true;
    applyPressTo(item);
}

void BFIconTabBar::mouseMoveEvent(QMouseEvent *event)
{
    BFIconTabBarItem *item = itemAt(event->position());
    if (!m_dragging) {
        setHovered(item);
        QWidget::mouseMoveEvent(event);
        return;
    }
    if (item == m_draggedOver)
        return;
    m_draggedOver = item;
    if (item != nullptr)
        applyPressTo(item);
}

void BFIconTabBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_dragging || event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    m_dragging = false;
    m_draggedOver = nullptr;
    setHovered(rect().contains(event->position().toPoint()) ? itemAt(event->position()) : nullptr);
    update();
}

void BFIconTabBar::leaveEvent(QEvent *event)
{
    setHovered(nullptr);
    QWidget::leaveEvent(event);
}

void BFIconTabBar::setHovered(BFIconTabBarItem *item)
{
    if (item == m_hovered)
        return;
    m_hovered = item;
    update();
}

void BFIconTabBar::keyPressEvent(QKeyEvent *event)
{
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    const int current = multipleSelection() ? m_current : selectedIndex();
    const int last = static_cast<int>(m_items.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Right:
        moveCurrent(current + forward);
        return;
    case Qt::Key_Left:
        moveCurrent(current - forward);
        return;
    case Qt::Key_Home:
        moveCurrent(0);
        return;
    case Qt::Key_End:
        moveCurrent(last);
        return;
    case Qt::Key_Space:
        if (multipleSelection() && m_current <= last) {
            m_firstItemWasSelected = !m_selection.contains(m_current);
            applyPressTo(m_items[m_current]);
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void BFIconTabBar::moveCurrent(int index)
{
    if (index < 0 || index >= m_items.size())
        return;
    if (multipleSelection()) {
        m_current = index;
        update();
    } else if (index != selectedIndex()) {
        applyPressTo(m_items[index]);
    }
}

void BFIconTabBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(palette::disabledOpacity);
    for (int index = 0; index < m_items.size(); ++index)
        drawItem(painter, index);
}

void BFIconTabBar::drawItem(QPainter &painter, int index) const
{
    const QRectF slot = slotRect(index);
    const QRectF mark = slot.adjusted(markInset, markInset, -markInset, -markInset);
    const bool selected = m_selection.contains(index);
    const bool hovered = m_items[index] == m_hovered && isEnabled();
    if (selected || hovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(selected ? palette::tabSelected : palette::tabHover);
        painter.drawRoundedRect(mark, markRadius, markRadius);
    }
    QRectF icon(0, 0, iconSide, iconSide);
    icon.moveCenter(slot.center());
    m_items[index]->icon().paint(&painter, icon.toAlignedRect());
    const int current = multipleSelection() ? m_current : selectedIndex();
    if (index == current && hasFocus() && m_keyboardFocus.isShown()) {
        const qreal inset = ringWidth / 2;
        painter.setPen(QPen(palette::focusRing, ringWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(mark.adjusted(inset, inset, -inset, -inset), markRadius, markRadius);
    }
}

} // namespace lumora
