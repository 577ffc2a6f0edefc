// SPDX-License-Identifier: MIT
#include "PaneSides.h"

#include "style/ToolTip.h"
#include "widgets/buttons/Segment.h"
#include "widgets/buttons/SegmentedControl.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QShortcut>

#include <utility>

namespace lumora
{

namespace
{

/// From the pane's edges: in the padding of its first panel, in line with the panel's content.
constexpr int topMargin = 24;
constexpr int sideMargin = 40;

} // namespace

PaneSides::PaneSides(QWidget *pane, MakeToday makeToday)
    : QObject(pane), m_pane(pane), m_makeToday(std::move(makeToday)),
      m_control(new SegmentedControl({qtTrId("SIDE_CLASSIC"), qtTrId("SIDE_TODAY")}, pane))
{
    const QKeySequence keys(Qt::CTRL | Qt::Key_T);
    m_control->setAccessibleName(qtTrId("ACCESSIBLE_SIDES"));
    for (Segment *segment : m_control->segments())
        segment->setToolTip(tipWithKeys(qtTrId("SIDE_TIP"), keys));
    connect(m_control, &SegmentedControl::chosen, this, [this](int index) {
        const QScopedValueRollback used(m_isUsed, true);
        show(static_cast<ToolSide>(index));
    });
    auto *shortcut = new QShortcut(keys, pane);
    connect(shortcut, &QShortcut::activated, this,
            [this] { show(m_side == ToolSide::Classic ? ToolSide::Today : ToolSide::Classic); });
    pane->installEventFilter(this);
    arrange();
}

void PaneSides::show(ToolSide side)
{
    m_side = side;
    m_control->setCurrentIndex(static_cast<int>(side));
    // Today's side costs time and memory that a start with another tool does not need.
    if (m_pane->isVisible())
        apply();
}

void PaneSides::apply()
{
    if (m_side == m_inView)
        return;
    m_inView = m_side;
    if (m_side == ToolSide::Today) {
        if (m_today == nullptr)
            makeToday();
        arrange();
        m_today->show();
        for (QWidget *child : m_pane->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            if (child == m_today || child == m_control || child->isWindow() || child->isHidden())
                continue;
            m_hidden.emplace_back(child);
            child->hide();
        }
    } else {
        for (const QPointer<QWidget> &child : std::exchange(m_hidden, {})) {
            if (child)
                child->show();
        }
        m_today->hide();
    }
    m_control->raise();
    emit shown(m_side);
}

void PaneSides::makeToday()
{
    m_today = m_makeToday(m_pane);
    m_today->hide();
    // Tab reaches the switch after everything else, on both sides.
    QWidget *last = m_today;
    for (QWidget *next = last->nextInFocusChain(); next != m_today; next = next->nextInFocusChain()) {
        if (m_today->isAncestorOf(next) && next->focusPolicy() != Qt::NoFocus)
            last = next;
    }
    for (Segment *segment : m_control->segments()) {
        QWidget::setTabOrder(last, segment);
        last = segment;
    }
}

void PaneSides::arrange()
{
    QRect place(QPoint(), m_control->sizeHint());
    const bool mirrored = m_pane->layoutDirection() == Qt::RightToLeft;
    place.moveTopLeft({mirrored ? sideMargin : m_pane->width() - sideMargin - place.width(), topMargin});
    m_control->setGeometry(place);
    if (m_today != nullptr)
        m_today->setGeometry(m_pane->rect());
}

bool PaneSides::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::LayoutDirectionChange:
        arrange();
        break;
    case QEvent::Show:
        apply();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace lumora
