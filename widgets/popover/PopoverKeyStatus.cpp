// SPDX-License-Identifier: MIT
#include "PopoverKeyStatus.h"

#include "SFBPopoverWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

#include <algorithm>

namespace lumora
{

namespace
{

bool isTypedInto(const QWidget *widget)
{
    return widget && widget->isEnabled() && widget->testAttribute(Qt::WA_InputMethodEnabled);
}

} // namespace

bool wantsKeyboard(const QWidget *content, const QWidget *parentWindow)
{
    if (!content)
        return false;
    auto widgets = content->findChildren<QWidget *>();
    widgets.append(const_cast<QWidget *>(content));
    const auto operable = [content](const QWidget *widget) {
        return (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() &&
               (widget == content || widget->isVisibleTo(content));
    };
    if (std::any_of(widgets.cbegin(), widgets.cend(),
                    [&](const QWidget *widget) { return operable(widget) && isTypedInto(widget); }))
        return true;
    const bool parentIsTypedInto = parentWindow && isTypedInto(parentWindow->focusWidget());
    return !parentIsTypedInto && std::any_of(widgets.cbegin(), widgets.cend(), operable);
}

PopoverKeyStatus::PopoverKeyStatus(SFBPopoverWindow *popover) : QObject(popover), m_popover(popover) {}

void PopoverKeyStatus::begin(QWidget *parentWindow, bool wantsKeyboard)
{
    m_parentWindow = parentWindow;
    m_wantsKeyboard = wantsKeyboard;
    m_hadFocus = false;
    qApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &PopoverKeyStatus::focusWindowChanged,
            Qt::UniqueConnection);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &PopoverKeyStatus::applicationStateChanged,
            Qt::UniqueConnection);
    become();
}

void PopoverKeyStatus::end()
{
    qApp->removeEventFilter(this);
    disconnect(qGuiApp, nullptr, this, nullptr);
    const bool hadKeyboard = m_isKey && QApplication::activeWindow() == m_popover;
    const bool borrowed = m_borrowsKeys;
    m_isKey = false;
    m_borrowsKeys = false;
    if (!hadKeyboard || !m_parentWindow)
        return;
    if (borrowed)
        QApplication::setActiveWindow(m_parentWindow);
    else
        m_parentWindow->activateWindow();
}

void PopoverKeyStatus::become()
{
    m_isKey = true;
    if (!m_wantsKeyboard || m_popover->platform().takesKeyboard || !m_parentWindow || m_borrowsKeys ||
        !m_parentWindow->isActiveWindow())
        return;
    m_borrowsKeys = true;
    QApplication::setActiveWindow(m_popover);
}

void PopoverKeyStatus::resign()
{
    if (m_borrowsKeys) {
        m_borrowsKeys = false;
        if (m_parentWindow && QApplication::activeWindow() == m_popover)
            QApplication::setActiveWindow(m_parentWindow);
    }
    if (!m_isKey)
        return;
    m_isKey = false;
    emit resignedKey();
}

bool PopoverKeyStatus::belongsToPopover(QWindow *window) const
{
    const QWindow *popover = m_popover->windowHandle();
    for (; window; window = window->transientParent()) {
        if (window == popover)
            return true;
    }
    return false;
}

bool PopoverKeyStatus::belongsToParent(const QObject *receiver) const
{
    if (!m_parentWindow)
        return false;
    if (receiver->isWindowType())
        return receiver == m_parentWindow->windowHandle();
    return receiver->isWidgetType() && static_cast<const QWidget *>(receiver)->window() == m_parentWindow;
}

void PopoverKeyStatus::focusWindowChanged(QWindow *window)
{
    if (!window)
        return; // between two windows; or the application became inactive, which sends its own event
    if (belongsToPopover(window)) {
        m_hadFocus = true;
        become();
        return;
    }
    // When the parent becomes active just after the popover was shown, that does not take the keyboard from the
    // popover.
    if (m_hadFocus || !belongsToParent(window))
        resign();
}

void PopoverKeyStatus::applicationStateChanged(Qt::ApplicationState state)
{
    if (state != Qt::ApplicationActive)
        resign();
}

void PopoverKeyStatus::pressedIn(QWindow *window)
{
    if (belongsToPopover(window)) {
        become();
        return;
    }
    if (m_isKey && belongsToParent(window) && m_parentWindow && m_popover->isActiveWindow() && !m_borrowsKeys)
        m_parentWindow->activateWindow();
    resign();
}

bool PopoverKeyStatus::takesKey(QObject *receiver, QKeyEvent *event)
{
    if (!belongsToParent(receiver))
        return false;
    const bool escape = event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier;
    if (event->type() == QEvent::ShortcutOverride) {
        // The popover gets the key before any shortcut of the parent window.
        if (escape)
            event->accept();
        return escape || handsOnToFocus(receiver, event);
    }
    if (!receiver->isWindowType())
        return false;
    if (m_borrowsKeys) {
        QCoreApplication::sendEvent(m_popover->windowHandle(), event);
        return true;
    }
    if (escape && event->type() == QEvent::KeyPress)
        emit canceled();
    return escape;
}

bool PopoverKeyStatus::handsOnToFocus(QObject *receiver, QEvent *event)
{
    if (!m_borrowsKeys || !belongsToParent(receiver))
        return false;
    QWidget *focus = m_popover->focusWidget();
    QCoreApplication::sendEvent(focus ? focus : m_popover, event);
    return true;
}

bool PopoverKeyStatus::eventFilter(QObject *receiver, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        if (receiver->isWindowType())
            pressedIn(static_cast<QWindow *>(receiver));
        return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return takesKey(receiver, static_cast<QKeyEvent *>(event));
    case QEvent::InputMethod:
    case QEvent::InputMethodQuery:
        return handsOnToFocus(receiver, event);
    default:
        return false;
    }
}

} // namespace lumora
