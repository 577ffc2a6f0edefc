// SPDX-License-Identifier: MIT
#include "KBButton.h"

#include "widgets/style/Palette.h"

#include <QFontMetrics>
#include <QPainter>

namespace lumora
{

namespace
{

constexpr int hintHeight = 26;
constexpr int hintMargin = 14;
constexpr qreal ringWidth = 2;
constexpr qreal ringRadius = 3;

} // namespace

KBButton::KBButton(QWidget *parent) : PaintedButton(QAccessible::Button, parent)
{
    setSizePolicy({QSizePolicy::Minimum, QSizePolicy::Fixed, QSizePolicy::PushButton});
}

void KBButton::setKBButtonType(KBButtonType type)
{
    if (type == kbButtonType())
        return;
    m_cell.setKBButtonType(type);
    update();
}

QSize KBButton::sizeHint() const
{
    return {QFontMetrics(m_cell.font()).horizontalAdvance(text()) + 2 * hintMargin, hintHeight};
}

void KBButton::drawRect(QPainter &painter)
{
    KBButtonCell cell = m_cell;
    cell.setHighlighted(isDown());
    cell.setHovered(isHovered());
    cell.drawBezelWithFrame(painter, rect());
    cell.drawTitle(painter, text(), rect());
}

void KBButton::drawFocusRing(QPainter &painter)
{
    const qreal inset = ringWidth / 2;
    painter.setPen(QPen(isLightColor(m_cell.baseColor()) ? palette::focusRing : palette::chromeText, ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), ringRadius, ringRadius);
    if (isLightColor(m_cell.baseColor()))
        return;
    const qreal inner = ringWidth + inset;
    painter.setPen(QPen(palette::focusRingInner, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(inner, inner, -inner, -inner), ringRadius - 1, ringRadius - 1);
}

} // namespace lumora
