// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace lumora
{

/// The view with a window's title bar view and buttons; dragging it anywhere moves the window. The window system moves
/// the window if it can; otherwise the window follows the mouse by itself. A window in full screen does not move. A
/// double-click does what the user prefers, whatever the title bar view is.
class INTitlebarContainer : public QWidget
{
    Q_OBJECT

public:
    explicit INTitlebarContainer(QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    enum class Drag { None, Pressed, Moves };

    Drag m_drag = Drag::None;
    bool m_isDoubleClick = false;
    QPoint m_dragStart;
    QPoint m_windowOrigin;
};

} // namespace lumora
