// SPDX-License-Identifier: MIT
#pragma once

class QEvent;

namespace lumora
{

/// Tells whether a focus ring is called for: it is when the focus came by key or a key was pressed since, not when it
/// came by a click. Feed it every event of the widget.
class KeyboardFocus
{
public:
    /// Answers whether isShown() changed.
    bool follow(const QEvent *event);
    /// Whether to draw the ring while the widget has the focus.
    bool isShown() const { return m_shown; }

private:
    bool m_shown = false;
};

} // namespace lumora
