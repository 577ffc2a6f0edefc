// SPDX-License-Identifier: MIT
#include "SFBPopoverWindowFrame.h"

#include "PopoverPath.h"
#include "widgets/style/Palette.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace lumora
{

namespace
{

const DropShadow shadow{palette::popoverShadow, 18, 4};
/// In a balloon that is also movable, a press this near to the outline resizes; in points.
constexpr qreal resizeGrip = 6;

QColor opaque(QColor color)
{
    color.setAlpha(255);
    return color;
}

} // namespace

SFBPopoverWindowFrame::SFBPopoverWindowFrame(QWidget *parent) : QWidget(parent) {}

QRectF SFBPopoverWindowFrame::frameRectForContentRect(const QRectF &contentRect) const
{
    return lumora::frameRectForContentRect(contentRect, m_metrics);
}

QRectF SFBPopoverWindowFrame::contentRectForFrameRect(const QRectF &frameRect) const
{
    return lumora::contentRectForFrameRect(frameRect, m_metrics);
}

QRectF SFBPopoverWindowFrame::bounds() const
{
    return {0, 0, static_cast<qreal>(width() - 2 * shadowMargin), static_cast<qreal>(height() - 2 * shadowMargin)};
}

QRectF SFBPopoverWindowFrame::contentArea() const
{
    return placedContentRect(bounds(), m_metrics);
}

QPointF SFBPopoverWindowFrame::attachmentPoint() const
{
    return attachmentPointForRect(bounds());
}

QPointF SFBPopoverWindowFrame::attachmentPointForRect(const QRectF &rect) const
{
    return lumora::attachmentPointForRect(rect, m_metrics);
}

QPainterPath SFBPopoverWindowFrame::popoverFramePathForContentRect(const QRectF &contentRect) const
{
    return popoverPath(contentRect, attachmentPoint(), m_metrics);
}

void SFBPopoverWindowFrame::appendArrowToPath(QPainterPath *path) const
{
    const qreal margin = viewMargin();
    appendArrow(path, contentArea().adjusted(-margin, -margin, margin, margin), attachmentPoint(), m_metrics);
}

QTransform SFBPopoverWindowFrame::yDown() const
{
    return {1, 0, 0, -1, shadowMargin, static_cast<qreal>(height() - shadowMargin)};
}

QPainterPath SFBPopoverWindowFrame::outline() const
{
    return yDown().map(popoverFramePathForContentRect(contentArea()));
}

template <typename Value> void SFBPopoverWindowFrame::change(Value &value, const Value &to)
{
    if (value == to)
        return;
    value = to;
    m_drawn = {};
    emit outlineChanged();
    update();
}

void SFBPopoverWindowFrame::setPopoverPosition(PopoverPosition position)
{
    change(m_metrics.position, position);
}

void SFBPopoverWindowFrame::setDistance(qreal distance)
{
    change(m_metrics.distance, distance);
}

void SFBPopoverWindowFrame::setBorderColor(const QColor &color)
{
    change(m_borderColor, color);
}

void SFBPopoverWindowFrame::setBorderWidth(qreal width)
{
    change(m_metrics.borderWidth, width);
}

void SFBPopoverWindowFrame::setCornerRadius(qreal radius)
{
    change(m_metrics.cornerRadius, radius);
}

void SFBPopoverWindowFrame::setDrawsArrow(bool draws)
{
    change(m_metrics.drawsArrow, draws);
}

void SFBPopoverWindowFrame::setArrowWidth(qreal width)
{
    change(m_metrics.arrowWidth, width);
}

void SFBPopoverWindowFrame::setArrowHeight(qreal height)
{
    change(m_metrics.arrowHeight, height);
}

void SFBPopoverWindowFrame::setDrawRoundCornerBesideArrow(bool round)
{
    change(m_metrics.drawRoundCornerBesideArrow, round);
}

void SFBPopoverWindowFrame::setViewMargin(qreal margin)
{
    change(m_metrics.viewMargin, margin);
}

void SFBPopoverWindowFrame::setBackgroundColor(const QColor &color)
{
    change(m_backgroundColor, color);
}

void SFBPopoverWindowFrame::setBlends(bool blends)
{
    if (blends == m_blends)
        return;
    m_blends = blends;
    m_drawn = {};
    update();
}

void SFBPopoverWindowFrame::setBackdrop(const QPixmap &backdrop)
{
    m_backdrop = backdrop;
    m_drawn = {};
    update();
}

QPixmap SFBPopoverWindowFrame::drawn(qreal devicePixelRatio) const
{
    QImage image((QSizeF(size()) * devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    const qreal margin = viewMargin();
    const QRectF balloon = yDown().mapRect(contentArea().adjusted(-margin, -margin, margin, margin));
    const qreal borderPixels =
        std::max(m_metrics.borderWidth > 0 ? 1.0 : 0.0, std::round(m_metrics.borderWidth * devicePixelRatio));
    const QPainterPath path = onWholePixels(outline(), balloon, borderPixels, devicePixelRatio);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (m_blends) {
        painter.drawImage(QRectF(rect()), shadowOf(path, size(), shadow));
        // A translucent balloon shows the window behind it, but not its own shadow.
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillPath(path, Qt::black);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    } else {
        painter.fillRect(rect(), m_metrics.borderWidth > 0 ? m_borderColor : opaque(m_backgroundColor));
        painter.drawPixmap(0, 0, m_backdrop);
    }
    painter.fillPath(path, m_blends ? m_backgroundColor : opaque(m_backgroundColor));
    if (m_metrics.borderWidth > 0)
        painter.strokePath(
            path, QPen(m_borderColor, borderPixels / devicePixelRatio, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.end();
    return QPixmap::fromImage(std::move(image), Qt::NoFormatConversion);
}

void SFBPopoverWindowFrame::keepDrawing(qreal devicePixelRatio)
{
    if (m_drawn.isNull() || m_drawn.devicePixelRatio() != devicePixelRatio)
        m_drawn = drawn(devicePixelRatio);
}

void SFBPopoverWindowFrame::prepareDrawing()
{
    keepDrawing(devicePixelRatioF());
}

void SFBPopoverWindowFrame::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    keepDrawing(painter.deviceTransform().m11());
    painter.setClipRect(event->rect());
    painter.drawPixmap(0, 0, m_drawn);
}

void SFBPopoverWindowFrame::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_drawn = {};
    emit outlineChanged();
}

void SFBPopoverWindowFrame::mousePressEvent(QMouseEvent *event)
{
    const QPainterPath path = outline();
    if (event->button() != Qt::LeftButton || !(m_movable || m_resizable) || !path.contains(event->position())) {
        QWidget::mousePressEvent(event);
        return;
    }
    const QRectF inner = path.boundingRect().adjusted(resizeGrip, resizeGrip, -resizeGrip, -resizeGrip);
    const bool resizes = m_resizable && (!m_movable || !inner.contains(event->position()));
    m_drag = resizes ? Drag::Resizes : Drag::Moves;
    m_dragStart = event->globalPosition();
    const QPointF middle = path.boundingRect().center();
    m_dragCorner = {event->position().x() < middle.x() ? -1.0 : 1.0, event->position().y() > middle.y() ? -1.0 : 1.0};
    emit dragStarted();
    event->accept();
}

void SFBPopoverWindowFrame::mouseMoveEvent(QMouseEvent *event)
{
    if (m_drag == Drag::None) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    const QPointF travelDown = event->globalPosition() - m_dragStart;
    const QPointF travel(travelDown.x(), -travelDown.y());
    if (m_drag == Drag::Moves)
        emit moveDragged(travel);
    else
        emit resizeDragged(travel, m_dragCorner);
}

void SFBPopoverWindowFrame::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && std::exchange(m_drag, Drag::None) != Drag::None)
        emit dragEnded();
}

} // namespace lumora
