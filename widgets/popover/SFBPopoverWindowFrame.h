// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverGeometry.h"
#include "widgets/style/DropShadow.h"

#include <QColor>
#include <QPainterPath>
#include <QPixmap>
#include <QWidget>

namespace lumora
{

/// The view that draws a popover's balloon with its arrow and shadow, and holds all settings of its look. It fills the
/// popover's window. In all geometry the frame is `bounds()`; on every side of it the view has `shadowMargin` points
/// for the shadow and the tip's stroke. Y counts upwards in rectangles and points.
class SFBPopoverWindowFrame : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qreal distance READ distance WRITE setDistance)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
    Q_PROPERTY(qreal borderWidth READ borderWidth WRITE setBorderWidth)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius)
    Q_PROPERTY(bool drawsArrow READ drawsArrow WRITE setDrawsArrow)
    Q_PROPERTY(qreal arrowWidth READ arrowWidth WRITE setArrowWidth)
    Q_PROPERTY(qreal arrowHeight READ arrowHeight WRITE setArrowHeight)
    Q_PROPERTY(bool drawRoundCornerBesideArrow READ drawRoundCornerBesideArrow WRITE setDrawRoundCornerBesideArrow)
    Q_PROPERTY(qreal viewMargin READ viewMargin WRITE setViewMargin)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(bool movable READ movable WRITE setMovable)
    Q_PROPERTY(bool resizable READ resizable WRITE setResizable)

public:
    /// The width of the band around the frame that belongs to the window but not to the popover, in points.
    static constexpr int shadowMargin = 24;

    explicit SFBPopoverWindowFrame(QWidget *parent = nullptr);

    QRectF frameRectForContentRect(const QRectF &contentRect) const;
    QRectF contentRectForFrameRect(const QRectF &frameRect) const;
    /// The frame in its own coordinates: its size at the origin (0, 0).
    QRectF bounds() const;
    /// The content view's rectangle inside the bounds.
    QRectF contentArea() const;
    QPointF attachmentPoint() const;
    QPointF attachmentPointForRect(const QRectF &rect) const;
    QPainterPath popoverFramePathForContentRect(const QRectF &contentRect) const;
    /// Appends the arrow to an outline drawn counter-clockwise along the arrow's side of this view's balloon.
    void appendArrowToPath(QPainterPath *path) const;
    /// The balloon's outline in this widget's own coordinates, y down.
    QPainterPath outline() const;

    /// The settings below change only this view; SFBPopoverWindow's setters also keep the window around its content.
    const PopoverMetrics &metrics() const { return m_metrics; }
    PopoverPosition popoverPosition() const { return m_metrics.position; }
    void setPopoverPosition(PopoverPosition position);
    /// The distance from the arrow's tip to the point that it points at.
    qreal distance() const { return m_metrics.distance; }
    void setDistance(qreal distance);
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color);
    qreal borderWidth() const { return m_metrics.borderWidth; }
    void setBorderWidth(qreal width);
    qreal cornerRadius() const { return m_metrics.cornerRadius; }
    void setCornerRadius(qreal radius);
    bool drawsArrow() const { return m_metrics.drawsArrow; }
    void setDrawsArrow(bool draws);
    qreal arrowWidth() const { return m_metrics.arrowWidth; }
    void setArrowWidth(qreal width);
    qreal arrowHeight() const { return m_metrics.arrowHeight; }
    void setArrowHeight(qreal height);
    bool drawRoundCornerBesideArrow() const { return m_metrics.drawRoundCornerBesideArrow; }
    void setDrawRoundCornerBesideArrow(bool round);
    /// Padding between the border and the content.
    qreal viewMargin() const { return m_metrics.viewMargin; }
    void setViewMargin(qreal margin);
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    /// A press inside the balloon drags the window.
    bool movable() const { return m_movable; }
    void setMovable(bool movable) { m_movable = movable; }
    /// A press inside the balloon drags the nearest corner. If the balloon is also movable, only a press on its border
    /// does.
    bool resizable() const { return m_resizable; }
    void setResizable(bool resizable) { m_resizable = resizable; }

    /// Whether the system blends the window with what is behind it. If not, there is no shadow, and everything is
    /// opaque up to the edge of the window's shape.
    void setBlends(bool blends);
    /// A picture of what is below the frame, for its smooth edge when the system does not blend windows.
    void setBackdrop(const QPixmap &backdrop);

    /// Makes the drawing that the next paint needs.
    void prepareDrawing();

signals:
    /// The balloon's outline changed, by a setting or with the size.
    void outlineChanged();
    /// The mouse moved while dragging the balloon: points since the press, y upwards.
    void moveDragged(const QPointF &travel);
    /// The same for a resizing drag. The signs of `corner` give the dragged corner's direction from the middle.
    void resizeDragged(const QPointF &travel, const QPointF &corner);
    /// A press began a drag.
    void dragStarted();
    /// The mouse button was released after a drag.
    void dragEnded();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    enum class Drag { None, Moves, Resizes };

    template <typename Value> void change(Value &value, const Value &to);
    /// From the frame's coordinates, which count upwards, to the widget's.
    QTransform yDown() const;
    QPixmap drawn(qreal devicePixelRatio) const;
    void keepDrawing(qreal devicePixelRatio);

    PopoverMetrics m_metrics;
    QColor m_borderColor = Qt::white;
    QColor m_backgroundColor = QColor::fromRgbF(0.1F, 0.1F, 0.1F, 0.75F);
    bool m_movable = false;
    bool m_resizable = false;
    bool m_blends = true;
    Drag m_drag = Drag::None;
    QPointF m_dragStart;
    QPointF m_dragCorner;
    /// The whole drawing, made at the first paint after a change: the shadow is too slow for every repaint.
    QPixmap m_drawn;
    QPixmap m_backdrop;
};

} // namespace lumora
