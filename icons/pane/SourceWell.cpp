// SPDX-License-Identifier: MIT
#include "SourceWell.h"

#include "widgets/buttons/ImageButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int leastWidth = 76;
constexpr int gap = 2;
constexpr int nameHeight = 15;
constexpr int stateHeight = 13;
constexpr int nameSize = 11;
constexpr int stateSize = 10;
constexpr int checkSide = 6;
constexpr int removeSide = 16;
constexpr qreal cornerRadius = 8;
constexpr qreal frameWidth = 1.5;

QString nameOf(FurtherSource source)
{
    switch (source) {
    case FurtherSource::Dark:
        return qtTrId("ICONS_SOURCE_DARK");
    case FurtherSource::Tinted:
        return qtTrId("ICONS_SOURCE_TINTED");
    case FurtherSource::Monochrome:
        return qtTrId("ICONS_SOURCE_MONOCHROME");
    case FurtherSource::Foreground:
        return qtTrId("ICONS_SOURCE_FOREGROUND");
    case FurtherSource::Background:
        break;
    }
    return qtTrId("ICONS_SOURCE_BACKGROUND");
}

/// Below what lets something through.
void drawCheckers(QPainter &painter, const QRectF &area)
{
    painter.fillRect(area, palette::transparencyLight);
    for (int y = 0; y * checkSide < area.height(); ++y) {
        for (int x = y % 2; x * checkSide < area.width(); x += 2)
            painter.fillRect(QRectF(area.x() + x * checkSide, area.y() + y * checkSide, checkSide, checkSide),
                             palette::transparencyDark);
    }
}

} // namespace

SourceWell::SourceWell(FurtherSource source, QWidget *parent)
    : PaintedButton(QAccessible::Button, parent), m_dropView(new DropView(this)), m_remove(new ImageButton(this))
{
    m_preview.source = source;
    setText(nameOf(source));
    m_dropView->setDelegate(this);
    m_dropView->setTakesColors(source == FurtherSource::Background);
    m_dropView->hide();
    setAcceptDrops(true);
    m_remove->setImageName(u"window_close_active"_s);
    m_remove->setFixedSize(removeSide, removeSide);
    m_remove->setAccessibleName(qtTrId("ICONS_SOURCE_REMOVE").replace("[SOURCE]"_L1, text()));
    m_remove->setToolTip(m_remove->accessibleName());
    m_remove->hide();
    connect(m_dropView, &DropView::targetedChanged, this, qOverload<>(&QWidget::update));
    connect(m_remove, &ImageButton::clicked, this, &SourceWell::removalWanted);
    describe();
}

void SourceWell::setPreview(const SourcePreview &preview)
{
    m_preview = preview;
    m_remove->setVisible(preview.isGiven);
    describe();
    update();
}

void SourceWell::setFileName(const QString &name)
{
    m_fileName = name;
    describe();
}

void SourceWell::describe()
{
    QString state = qtTrId("ICONS_SOURCE_DERIVED");
    if (m_preview.isGiven)
        state = m_fileName.isEmpty() ? qtTrId("ICONS_SOURCE_GIVEN") : m_fileName;
    else if (m_preview.picture.isNull())
        state = qtTrId("ICONS_SOURCE_NONE");
    setAccessibleDescription(state);
    setToolTip(text() + u": "_s + state + u'\n' + qtTrId("ICONS_SOURCE_TIP"));
}

void SourceWell::dropViewReceivedFiles(const QStringList &files)
{
    if (!files.isEmpty())
        emit fileDropped(files.first());
}

QSize SourceWell::sizeHint() const
{
    return {leastWidth, side + gap + nameHeight + stateHeight};
}

QRectF SourceWell::pictureArea() const
{
    return QRect((width() - side) / 2, 0, side, side);
}

void SourceWell::resizeEvent(QResizeEvent *)
{
    const QRect area = pictureArea().toRect();
    m_remove->move(layoutDirection() == Qt::RightToLeft ? area.left() - removeSide / 2 : area.right() - removeSide / 2,
                   0);
    m_remove->raise();
}

void SourceWell::keyPressEvent(QKeyEvent *event)
{
    const bool removes = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    if (removes && m_preview.isGiven)
        emit removalWanted();
    else
        PaintedButton::keyPressEvent(event);
}

void SourceWell::dragEnterEvent(QDragEnterEvent *event)
{
    m_dropView->judge(event);
}

void SourceWell::dragMoveEvent(QDragMoveEvent *event)
{
    m_dropView->judge(event);
}

void SourceWell::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dropView->forget();
}

void SourceWell::dropEvent(QDropEvent *event)
{
    m_dropView->receive(event);
}

void SourceWell::drawRect(QPainter &painter)
{
    const QRectF area = pictureArea();
    const QRectF frame = area.adjusted(frameWidth / 2, frameWidth / 2, -frameWidth / 2, -frameWidth / 2);
    QPainterPath outline;
    outline.addRoundedRect(area, cornerRadius, cornerRadius);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(outline);
    drawCheckers(painter, area);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_preview.picture.isNull())
        painter.drawImage(area, m_preview.picture);
    painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    // A solid frame is what was given, a dashed one what is derived.
    const bool isLit = m_dropView->isTargeted() || isHovered();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(isLit ? palette::icons : palette::chromeText, frameWidth,
                        m_preview.isGiven ? Qt::SolidLine : Qt::DashLine));
    painter.drawRoundedRect(frame, cornerRadius, cornerRadius);

    painter.setPen(palette::chromeText);
    painter.setFont(latoBold(nameSize));
    const QRectF name(0, side + gap, width(), nameHeight);
    painter.drawText(name, Qt::AlignCenter, painter.fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    painter.setFont(latoRegular(stateSize));
    const QRectF state(0, name.bottom(), width(), stateHeight);
    painter.drawText(state, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(accessibleDescription(), Qt::ElideMiddle, width()));
}

void SourceWell::drawFocusRing(QPainter &painter)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette::focusRing, 2));
    painter.drawRoundedRect(pictureArea().adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
}

} // namespace lumora
