// SPDX-License-Identifier: MIT
#include "FindingHeader.h"

#include "FindingWords.h"
#include "validator/rules/Wording.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int lineHeight = 36;
constexpr int titleSize = 14;
constexpr int detailSize = 12;
constexpr int padding = 10;
constexpr int symbolSide = 18;
constexpr int arrowSide = 10;
constexpr int smallestWidth = 200;
constexpr qreal radius = 6;
constexpr qreal ringWidth = 2;

QColor colorOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return palette::errorDark;
    case Severity::Warning:
        return palette::validatorBorder;
    case Severity::Note:
        break;
    }
    return palette::infoDark;
}

} // namespace

FindingHeader::FindingHeader(const Rule &rule, qsizetype count, QWidget *parent)
    : PaintedButton(QAccessible::Button, parent), m_severity(rule.severity)
{
    setText(worded(rule.title));
    QStringList details;
    if (count > 1)
        details << qtTrId("FINDINGS_TIMES").replace("[COUNT]"_L1, QLocale().toString(count));
    if (*rule.code != '\0')
        details << QString::fromLatin1(rule.code);
    m_detail = details.join(u"  "_s);
    const QStringList spoken = QStringList{text()} + details;
    setAccessibleName(severityText(m_severity) + u": "_s + spoken.join(u", "_s));
    setAccessibleDescription(qtTrId("ACCESSIBLE_FINDING_CLOSED"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void FindingHeader::setOpen(bool isOpen)
{
    if (isOpen == m_isOpen)
        return;
    m_isOpen = isOpen;
    setAccessibleDescription(isOpen ? qtTrId("ACCESSIBLE_FINDING_OPEN") : qtTrId("ACCESSIBLE_FINDING_CLOSED"));
    update();
}

QSize FindingHeader::sizeHint() const
{
    return {2 * smallestWidth, lineHeight};
}

QSize FindingHeader::minimumSizeHint() const
{
    return {smallestWidth, lineHeight};
}

void FindingHeader::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        emit moved(event->key());
        break;
    default:
        PaintedButton::keyPressEvent(event);
    }
}

QRectF FindingHeader::placed(const QRectF &area) const
{
    return QStyle::visualRect(layoutDirection(), rect(), area.toRect());
}

void FindingHeader::drawSymbol(QPainter &painter, const QRectF &area) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colorOf(m_severity));
    const QPointF middle = area.center();
    if (m_severity == Severity::Warning) {
        QPainterPath triangle(QPointF(middle.x(), area.top()));
        triangle.lineTo(area.bottomRight());
        triangle.lineTo(area.bottomLeft());
        triangle.closeSubpath();
        painter.drawPath(triangle);
    } else {
        painter.drawEllipse(area);
    }
    // A cross, an exclamation mark, an i: the shapes differ where the colors do not.
    painter.setPen(QPen(palette::window, 2, Qt::SolidLine, Qt::RoundCap));
    if (m_severity == Severity::Error) {
        constexpr qreal arm = symbolSide / 5.0;
        painter.drawLine(middle + QPointF(-arm, -arm), middle + QPointF(arm, arm));
        painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, -arm));
        return;
    }
    const bool isWarning = m_severity == Severity::Warning;
    const qreal line = isWarning ? 1.5 : -1;
    const qreal dot = isWarning ? 6 : -4.5;
    painter.drawLine(middle + QPointF(0, line - (isWarning ? 3.5 : 0)),
                     middle + QPointF(0, line + (isWarning ? 0 : 5)));
    painter.drawPoint(middle + QPointF(0, dot));
}

void FindingHeader::drawArrow(QPainter &painter, const QRectF &area) const
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const QPointF middle = area.center();
    constexpr qreal reach = arrowSide / 3.0;
    const qreal side = isMirrored ? -reach : reach;
    QPainterPath arrow;
    if (m_isOpen) {
        arrow.moveTo(middle + QPointF(-reach, -reach / 2));
        arrow.lineTo(middle + QPointF(0, reach / 2));
        arrow.lineTo(middle + QPointF(reach, -reach / 2));
    } else {
        arrow.moveTo(middle + QPointF(-side / 2, -reach));
        arrow.lineTo(middle + QPointF(side / 2, 0));
        arrow.lineTo(middle + QPointF(-side / 2, reach));
    }
    painter.setPen(QPen(palette::chromeText, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(arrow);
}

void FindingHeader::drawRect(QPainter &painter)
{
    if (isHovered() || m_isOpen) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette::tabHover);
        painter.drawRoundedRect(rect(), radius, radius);
    }
    const qreal middle = lineHeight / 2.0;
    drawArrow(painter, placed({padding, middle - arrowSide / 2.0, arrowSide, arrowSide}));
    constexpr qreal symbolLeft = padding + arrowSide + padding;
    drawSymbol(painter, placed({symbolLeft, middle - symbolSide / 2.0, symbolSide, symbolSide}));

    const QFont detailFont = latoRegular(detailSize);
    const int detailWidth = m_detail.isEmpty() ? 0 : QFontMetrics(detailFont).horizontalAdvance(m_detail) + padding;
    const auto edge = Qt::AlignVCenter | Qt::AlignAbsolute | Qt::TextSingleLine;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    painter.setPen(palette::chromeText);
    painter.setFont(detailFont);
    painter.drawText(placed(QRectF(width() - detailWidth - padding, 0, detailWidth, lineHeight)),
                     static_cast<int>(edge | (isMirrored ? Qt::AlignLeft : Qt::AlignRight)), m_detail);
    constexpr qreal titleLeft = symbolLeft + symbolSide + padding;
    const QRectF title = placed(QRectF(titleLeft, 0, width() - titleLeft - detailWidth - 2 * padding, lineHeight));
    const QFont titleFont = latoBold(titleSize);
    painter.setFont(titleFont);
    painter.drawText(title, static_cast<int>(edge | (isMirrored ? Qt::AlignRight : Qt::AlignLeft)),
                     QFontMetrics(titleFont).elidedText(text(), Qt::ElideRight, static_cast<int>(title.width())));
}

void FindingHeader::drawFocusRing(QPainter &painter)
{
    const qreal inset = ringWidth / 2;
    painter.setPen(QPen(palette::focusRing, ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}

} // namespace lumora
