// SPDX-License-Identifier: MIT
#include "KeyboardFocus.h"

#include <QFocusEvent>

namespace lumora
{

Qt::FocusReason KeyboardFocus::reasonOfProgram()
{
    return s_lastInputWasKey ? Qt::TabFocusReason : Qt::OtherFocusReason;
}

bool KeyboardFocus::follow(const QEvent *event)
{
    const bool before = m_shown;
    switch (event->type()) {
    case QEvent::FocusIn:
        switch (static_cast<const QFocusEvent *>(event)->reason()) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            m_shown = true;
            break;
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            // The focus returns to the widget that had it before, or enters a window that a key has opened.
            m_shown = m_shown || s_lastInputWasKey;
            break;
        default:
            m_shown = false;
        }
        break;
    case QEvent::KeyPress:
        s_lastInputWasKey = true;
        m_shown = true;
        break;
    case QEvent::MouseButtonPress:
        s_lastInputWasKey = false;
        m_shown = false;
        break;
    default:
        break;
    }
    return m_shown != before;
}

} // namespace lumora
