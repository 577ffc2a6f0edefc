// SPDX-License-Identifier: MIT
#include "ITSidebarItemCell.h"

#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

namespace
{

constexpr qreal selectionInset = 10;
constexpr qreal selectionRadius = 5;
constexpr qreal selectionLineWidth = 2;
constexpr qreal badgeRadius = 5;
constexpr qreal badgeOutline = 2;

} // namespace

ITSidebarItemCell::ITSidebarItemCell(QWidget *parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::toggled, this, [this] { setBadge(false); });
}

void ITSidebarItemCell::setBadge(bool badge)
{
    if (m_badge == badge)
        return;
    m_badge = badge;
    setAccessibleDescription(badge ? qtTrId("ACCESSIBLE_JOB_ENDED") : QString());
    update();
}

void ITSidebarItemCell::setDropTarget(bool dropTarget)
{
    if (m_dropTarget == dropTarget)
        return;
    m_dropTarget = dropTarget;
    update();
}

void ITSidebarItemCell::setImage(const NamedImage &image)
{
    if (m_image == image)
        return;
    m_image = image;
    update();
}

void ITSidebarItemCell::setAlternateImage(const NamedImage &image)
{
    if (m_alternateImage == image)
        return;
    m_alternateImage = image;
    update();
}

const NamedImage &ITSidebarItemCell::shownImage() const
{
    return (isHighlighted() || state()) && !m_alternateImage.isNull() ? m_alternateImage : m_image;
}

ITSidebarItemCell::Shadow ITSidebarItemCell::shadow()
{
    return {QPointF(0, -1), Qt::black, 3};
}

QRectF ITSidebarItemCell::imageRect(const QRectF &frame, const QSizeF &imageSize)
{
    const qreal horizontally = (frame.width() - imageSize.width()) / 2;
    const qreal vertically = (frame.height() - imageSize.height()) / 2;
    return frame.adjusted(horizontally, vertically, -horizontally, -vertically);
}

QRectF ITSidebarItemCell::selectionRect(const QRectF &frame)
{
    return frame.adjusted(selectionInset, selectionInset, -selectionInset, -selectionInset);
}

QSize ITSidebarItemCell::sizeHint() const
{
    return m_image.size().toSize();
}

void ITSidebarItemCell::enterEvent(QEnterEvent *event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void ITSidebarItemCell::leaveEvent(QEvent *event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

void ITSidebarItemCell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = rect();
    drawBackgroundWithFrame(&painter, frame);
    drawInteriorWithFrame(&painter, frame);
    if (state() || isHighlighted())
        drawSelectionWithFrame(&painter, frame);
    if (m_badge)
        drawBadgeWithFrame(&painter, frame);
}

void ITSidebarItemCell::drawBackgroundWithFrame(QPainter *painter, const QRectF &frame) const
{
    if ((!underMouse() && !m_dropTarget) || state())
        return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette::sidebarHover);
    painter->drawRoundedRect(selectionRect(frame), selectionRadius, selectionRadius);
}

void ITSidebarItemCell::drawInteriorWithFrame(QPainter *painter, const QRectF &frame) const
{
    if (!text().isEmpty()) {
        painter->setPen(palette::sidebarSelection);
        painter->drawText(frame, Qt::AlignCenter, text());
    }
    drawImageWithFrame(painter, frame);
}

void ITSidebarItemCell::drawImageWithFrame(QPainter *painter, const QRectF &frame) const
{
    drawImage(painter, shownImage(), frame);
}

void ITSidebarItemCell::drawImage(QPainter *painter, const NamedImage &image, const QRectF &withFrame) const
{
    image.paint(painter, imageRect(withFrame, image.size()), isEnabled() ? 1.0 : palette::disabledOpacity);
}

void ITSidebarItemCell::drawBadgeWithFrame(QPainter *painter, const QRectF &frame) const
{
    const QRectF square = selectionRect(frame);
    painter->setPen(QPen(palette::chromeText, badgeOutline));
    painter->setBrush(palette::sidebarSelection);
    painter->drawEllipse(square.topRight() + QPointF(-badgeRadius, badgeRadius), badgeRadius, badgeRadius);
}

void ITSidebarItemCell::drawSelectionWithFrame(QPainter *painter, const QRectF &frame) const
{
    QColor color = palette::sidebarSelection;
    color.setAlphaF(state() ? 1.0F : 0.0F);
    painter->setPen(QPen(color, selectionLineWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(selectionRect(frame), selectionRadius, selectionRadius);
}

} // namespace lumora
