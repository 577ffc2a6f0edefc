// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace lumora
{

/// A strip along one edge of a frameless window, above everything in it: it draws the line that sets the window off
/// from its background, and resizes the window when it is dragged.
class WindowEdge : public QWidget
{
    Q_OBJECT

public:
    /// The width of the strip inside the window, in points.
    static constexpr int thickness = 4;

    WindowEdge(Qt::Edge edge, QWidget *window);

    /// Puts the strip along its edge of the window.
    void follow();
    /// Whether dragging it resizes; the line is always drawn.
    void setResizes(bool resizes);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Qt::Edges edgesAt(const QPoint &position) const;

    Qt::Edge m_edge;
    Qt::Edges m_dragged;
    QPoint m_dragStart;
    QRect m_frameBeforeDrag;
};

} // namespace lumora
