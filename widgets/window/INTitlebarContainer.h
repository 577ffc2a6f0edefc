// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace lumora
{

/// The view that holds a window's title bar view and buttons and drags the window by its whole height. The window
/// system moves the window where it can; elsewhere the window follows the mouse itself. A window in full screen stays.
class INTitlebarContainer : public QWidget
{
    Q_OBJECT

public:
    explicit INTitlebarContainer(QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    enum class Drag { None, Pressed, Moves };

    Drag m_drag = Drag::None;
    QPoint m_dragStart;
    QPoint m_windowOrigin;
};

} // namespace lumora
