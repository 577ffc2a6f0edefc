// SPDX-License-Identifier: MIT
#include "KeyboardFocus.h"

#include <QFocusEvent>

namespace lumora
{

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
            // The focus returns to the widget that had it before.
            break;
        default:
            m_shown = false;
        }
        break;
    case QEvent::KeyPress:
        m_shown = true;
        break;
    case QEvent::MouseButtonPress:
        m_shown = false;
        break;
    default:
        break;
    }
    return m_shown != before;
}

} // namespace lumora
