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
constexpr int linePadding = 4;
constexpr int lineHeight = 16;
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
    m_nameWidth = QFontMetrics(latoBold(nameSize)).horizontalAdvance(text());
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

QStringList ModelTile::nameLines(int width) const
{
    const QString name = text();
    const qsizetype additions = name.lastIndexOf(u" ("_s);
    if (m_nameWidth <= width - 2 * padding || additions <= 0)
        return {name};
    return {name.first(additions), name.sliced(additions + 1)};
}

int ModelTile::heightFor(int width) const
{
    const auto lines = static_cast<int>(nameLines(width).size()) + static_cast<int>(m_detail.count(u'\n')) + 1;
    return lines * lineHeight + 2 * linePadding;
}

QRect ModelTile::markPlace() const
{
    const int x = layoutDirection() == Qt::RightToLeft ? padding : width() - padding - markSide;
    return {x, height() - padding - markSide, markSide, markSide};
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
    const QRect area = rect().adjusted(padding, linePadding, -padding, -linePadding);
    painter.setPen(palette::chromeText);
    int line = 0;
    const auto draw = [&](const QFont &font, const QString &text) {
        const QRect place(area.x(), area.y() + line * lineHeight, area.width(), lineHeight);
        painter.setFont(font);
        painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter),
                         QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
        ++line;
    };
    for (const QString &part : nameLines(width()))
        draw(latoBold(nameSize), part);
    for (const QString &detail : m_detail.split(u'\n'))
        draw(latoRegular(detailSize), detail);
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
