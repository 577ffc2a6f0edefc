// SPDX-License-Identifier: MIT
#include "PaneFocus.h"

#include <QApplication>
#include <QEvent>

namespace lumora
{

namespace
{

bool canTakeFocus(const QWidget *control)
{
    return control->isVisible() && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0;
}

} // namespace

PaneFocus::PaneFocus(QWidget *pane) : QObject(pane), m_pane(pane)
{
    connect(qApp, &QApplication::focusChanged, this, &PaneFocus::focusChanged);
}

void PaneFocus::take()
{
    controlAfter(m_pane)->setFocus(Qt::TabFocusReason);
}

QWidget *PaneFocus::controlAfter(QWidget *start) const
{
    // A widget that is being destroyed is no longer in the focus chain.
    for (QWidget *next = start->nextInFocusChain(); next != nullptr && next != start; next = next->nextInFocusChain()) {
        if (m_pane->isAncestorOf(next) && canTakeFocus(next))
            return next;
    }
    return m_pane;
}

void PaneFocus::focusChanged(QWidget *old, QWidget *now)
{
    rest(nullptr);
    if (isLost(old) && (now == nullptr || now->window() == m_pane->window())) {
        pass(old, now);
        return;
    }
    if (old != nullptr && m_pane->isAncestorOf(old) && m_pane->window()->focusWidget() == old)
        rest(old);
    // The user has moved the focus elsewhere.
    if (now != nullptr && now != m_standIn)
        forget();
}

bool PaneFocus::isLost(const QWidget *control) const
{
    return control != nullptr && control != m_pane && m_pane->isVisible() && m_pane->isAncestorOf(control) &&
           !canTakeFocus(control);
}

void PaneFocus::pass(QWidget *old, QWidget *now)
{
    // When the substitute disappears as well, the first control still gets the focus back.
    if (!m_left || old != m_standIn) {
        forget();
        m_left = old;
        old->installEventFilter(this);
    }
    m_standIn = now != nullptr && m_pane->isAncestorOf(now) ? now : controlAfter(old);
    m_standIn->setFocus(Qt::OtherFocusReason);
}

void PaneFocus::rest(QWidget *control)
{
    if (m_resting && m_resting != m_left)
        m_resting->removeEventFilter(this);
    m_resting = control;
    if (m_resting)
        m_resting->installEventFilter(this);
}

void PaneFocus::forget()
{
    if (m_left && m_left != m_resting)
        m_left->removeEventFilter(this);
    m_left = nullptr;
    m_standIn = nullptr;
}

bool PaneFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_resting && (event->type() == QEvent::Hide || event->type() == QEvent::EnabledChange) &&
        isLost(m_resting)) {
        QWidget *lost = m_resting;
        rest(nullptr);
        pass(lost, nullptr);
        rest(m_standIn);
    } else if (watched == m_left && (event->type() == QEvent::Show || event->type() == QEvent::EnabledChange))
        QMetaObject::invokeMethod(this, &PaneFocus::giveBack, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void PaneFocus::giveBack()
{
    if (!m_left || !canTakeFocus(m_left) || m_pane->window()->focusWidget() != m_standIn)
        return;
    QWidget *left = m_left;
    left->setFocus(Qt::OtherFocusReason);
}

} // namespace lumora
