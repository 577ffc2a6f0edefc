// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QEvent;

namespace lumora
{

/// Decides whether a widget shows a focus ring: it does when the focus came by key or a key was pressed since, not when
/// the focus came by a click. Pass it every event of the widget.
class KeyboardFocus
{
public:
    /// Returns whether isShown() changed.
    bool follow(const QEvent *event);
    /// Whether to draw the ring while the widget has the focus.
    bool isShown() const { return m_shown; }

    /// The reason for moving the focus by the program: after a key, as by Tab, so that the ring shows.
    static Qt::FocusReason reasonOfProgram();

private:
    /// The last input of any of the widgets.
    inline static bool s_lastInputWasKey = false;

    bool m_shown = false;
};

} // namespace lumora
