// SPDX-License-Identifier: MIT
#include "Segment.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

constexpr int hintHeight = 28;
constexpr int sideMargin = 12;
constexpr int fontSize = 13;
constexpr qreal radius = 5;
constexpr qreal ringWidth = 2;
constexpr qreal innerRingWidth = 1.5;

} // namespace

Segment::Segment(const QString &text, Ends ends, QWidget *parent)
    : PaintedButton(QAccessible::Button, parent), m_ends(ends), m_font(latoBold(fontSize))
{
    setCheckable(true);
    setText(text);
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void Segment::setActive(bool active)
{
    if (active == isChecked())
        return;
    setChecked(active);
    setFocusPolicy(active ? Qt::StrongFocus : Qt::ClickFocus);
    update();
}

QSize Segment::sizeHint() const
{
    return {static_cast<int>(std::ceil(QFontMetricsF(m_font).horizontalAdvance(text()))) + 2 * sideMargin, hintHeight};
}

QSize Segment::minimumSizeHint() const
{
    return sizeHint();
}

void Segment::keyPressEvent(QKeyEvent *event)
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    switch (event->key()) {
    case Qt::Key_Left:
        emit moved(mirrored ? 1 : -1);
        break;
    case Qt::Key_Right:
        emit moved(mirrored ? -1 : 1);
        break;
    case Qt::Key_Up:
        emit moved(-1);
        break;
    case Qt::Key_Down:
        emit moved(1);
        break;
    default:
        PaintedButton::keyPressEvent(event);
    }
}

/// The segment's area without the inset; an inner end keeps its edge, because the neighbor continues the row there.
QRectF Segment::shape(qreal inset) const
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const bool endsLeft = mirrored ? m_ends.isLast : m_ends.isFirst;
    const bool endsRight = mirrored ? m_ends.isFirst : m_ends.isLast;
    return QRectF(rect()).adjusted(endsLeft ? inset : 0, inset, endsRight ? -inset : 0, -inset);
}

QPainterPath Segment::outline(qreal inset) const
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const qreal corner = std::max(0.0, radius - inset);
    // A row without an outer end reaches beyond the bounds, so that the rounded corners are cut off.
    QRectF area = shape(inset);
    if (!(mirrored ? m_ends.isLast : m_ends.isFirst))
        area.setLeft(area.left() - 2 * radius);
    if (!(mirrored ? m_ends.isFirst : m_ends.isLast))
        area.setRight(area.right() + 2 * radius);
    QPainterPath path;
    path.addRoundedRect(area, corner, corner);
    return path;
}

void Segment::drawRect(QPainter &painter)
{
    // A line of whole device pixels is sharp at every scale.
    const qreal ratio = devicePixelRatioF();
    const qreal line = std::max(1.0, std::floor(ratio)) / ratio;
    painter.fillPath(outline(0), palette::chromeText);
    if (!isChecked()) {
        painter.fillPath(outline(line), palette::window);
        if (isHovered() || isDown())
            painter.fillPath(outline(line), palette::tabHover);
    }
    if (!isChecked() && !m_ends.isLast) {
        const qreal x = layoutDirection() == Qt::RightToLeft ? 0 : width() - line;
        painter.fillRect(QRectF(x, line, line, height() - 2 * line), palette::panelOutline);
    }
    painter.setFont(m_font);
    painter.setPen(isChecked() ? palette::buttonText : palette::chromeText);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine,
                     QFontMetricsF(m_font).elidedText(text(), Qt::ElideRight, width()));
}

void Segment::drawFocusRing(QPainter &painter)
{
    const QRectF area = rect();
    const auto stroke = [&](qreal offset, qreal width, const QColor &color) {
        const qreal inset = offset + width / 2;
        painter.setPen(QPen(color, width));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
    };
    stroke(0, ringWidth, palette::focusRing);
    stroke(ringWidth, innerRingWidth, palette::focusRingInner);
}

} // namespace lumora
