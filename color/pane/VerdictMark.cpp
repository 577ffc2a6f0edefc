// SPDX-License-Identifier: MIT
#include "VerdictMark.h"

#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QPainter>
#include <QPolygonF>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int fontSize = 12;
constexpr QSize markSize(56, 24);
constexpr int glyphArea = 20;
constexpr qreal radius = 4;
constexpr qreal penWidth = 2;

} // namespace

VerdictMark::VerdictMark(const QString &level, QWidget *parent) : QWidget(parent), m_level(level)
{
    setAccessibleRole(this, QAccessible::StaticText);
    setFont(latoBold(fontSize));
    setFixedSize(markSize);
    describe();
}

QSize VerdictMark::sizeHint() const
{
    return markSize;
}

void VerdictMark::setPasses(bool passes)
{
    if (m_passes == passes)
        return;
    m_passes = passes;
    describe();
    update();
}

void VerdictMark::describe()
{
    const QString text = m_passes ? qtTrId("COLOR_PASSES") : qtTrId("COLOR_FAILS");
    setAccessibleName(QString(text).replace("[LEVEL]"_L1, m_level));
    setToolTip(accessibleName());
}

void VerdictMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::window);
    painter.drawRoundedRect(rect(), radius, radius);
    const QColor color = m_passes ? palette::successDark : palette::errorDark;
    const QRectF glyph(6, (markSize.height() - 10) / 2.0, 10, 10);
    painter.setPen(QPen(color, penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (m_passes) {
        painter.drawPolyline(QPolygonF(
            {glyph.topLeft() + QPointF(0, 5), glyph.topLeft() + QPointF(4, 9), glyph.topLeft() + QPointF(10, 1)}));
    } else {
        painter.drawLine(glyph.topLeft() + QPointF(1, 1), glyph.bottomRight() - QPointF(1, 1));
        painter.drawLine(glyph.topRight() + QPointF(-1, 1), glyph.bottomLeft() + QPointF(1, -1));
    }
    painter.setPen(palette::chromeText);
    painter.drawText(rect().adjusted(glyphArea, 0, 0, 0), Qt::AlignCenter, m_level);
}

} // namespace lumora
