// SPDX-License-Identifier: MIT
#include "ModelTile.h"

#include "ModelTexts.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int nameSize = 13;
constexpr int detailSize = 12;
constexpr int padding = 8;
constexpr int markSide = 16;
constexpr qreal radius = 6;
constexpr qreal ringWidth = 2;

QString detailOf(const ModelGroup &group)
{
    const DeviceModel &model = group.first();
    const QString chip = cardText(group, CardFact::Chip);
    const QString first = versionText(model.minOs);
    const QString last = versionText(model.maxOs);
    const QString versions = u"iOS "_s + (first == last ? first : QString(first + u'–' + last));
    return chip + u"\n"_s + versions;
}

} // namespace

ModelTile::ModelTile(const ModelGroup &group, QWidget *parent)
    : PaintedButton(QAccessible::Button, parent), m_detail(detailOf(group))
{
    setText(modelName(group));
    setFocusPolicy(Qt::ClickFocus);
    describe();
}

void ModelTile::setVerdict(const GroupVerdict &verdict)
{
    if (verdict == m_verdict)
        return;
    m_verdict = verdict;
    describe();
}

void ModelTile::setCompared(bool isCompared)
{
    if (isCompared == m_isCompared)
        return;
    m_isCompared = isCompared;
    describe();
    update();
}

void ModelTile::setAlpha(float alpha)
{
    if (alpha == m_alpha)
        return;
    m_alpha = alpha;
    update();
}

void ModelTile::describe()
{
    const QString why = m_verdict.fits ? qtTrId("DEVICES_FITS") : reasonWords(m_verdict.reasons);
    setAccessibleDescription(m_isCompared ? QString(why + u"; "_s + qtTrId("DEVICES_COMPARED")) : why);
    setToolTip(m_verdict.fits ? qtTrId("DEVICES_TILE_TIP") : why);
}

QRect ModelTile::markPlace() const
{
    const int x = layoutDirection() == Qt::RightToLeft ? padding : width() - padding - markSide;
    return {x, padding, markSide, markSide};
}

void ModelTile::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Insert:
        emit comparisonToggled();
        break;
    case Qt::Key_Left:
    case Qt::Key_Right:
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

void ModelTile::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isOnMark = markPlace().contains(event->position().toPoint());
    if (!isDown() || event->button() != Qt::LeftButton ||
        (!isOnMark && !event->modifiers().testFlag(Qt::ControlModifier))) {
        PaintedButton::mouseReleaseEvent(event);
        return;
    }
    setDown(false);
    emit comparisonToggled();
}

void ModelTile::drawRect(QPainter &painter)
{
    painter.setOpacity(static_cast<qreal>(m_alpha));
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::window);
    painter.drawRoundedRect(rect(), radius, radius);
    if (isHovered() || m_isCompared) {
        painter.setPen(QPen(palette::devices, 1));
        painter.setBrush(m_isCompared ? QBrush(palette::devices) : QBrush(Qt::NoBrush));
        const QRectF mark = QRectF(markPlace()).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.drawRoundedRect(mark, 3, 3);
        // A plus; a minus takes the model out again.
        painter.setPen(QPen(m_isCompared ? palette::window : palette::devices, 2));
        const QPointF middle = mark.center();
        painter.drawLine(middle - QPointF(4, 0), middle + QPointF(4, 0));
        if (!m_isCompared)
            painter.drawLine(middle - QPointF(0, 4), middle + QPointF(0, 4));
    }
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const auto side = (mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::TextSingleLine;
    const QRect area = rect().adjusted(padding, 4, -padding, -4);
    const int lineHeight = area.height() / 3;
    painter.setPen(palette::chromeText);
    const auto draw = [&](int line, const QFont &font, const QString &text, int reserved) {
        QRect place(area.x(), area.y() + line * lineHeight, area.width() - reserved, lineHeight);
        if (mirrored)
            place.translate(reserved, 0);
        painter.setFont(font);
        painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter),
                         QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
    };
    draw(0, latoBold(nameSize), text(), isHovered() || m_isCompared ? markSide + padding : 0);
    draw(1, latoRegular(detailSize), m_detail.section(u'\n', 0, 0), 0);
    draw(2, latoRegular(detailSize), m_detail.section(u'\n', 1), 0);
}

void ModelTile::drawFocusRing(QPainter &painter)
{
    painter.setOpacity(1);
    const qreal inset = ringWidth / 2;
    painter.setPen(QPen(palette::focusRing, ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}

} // namespace lumora
