// SPDX-License-Identifier: MIT
#include "IconButton.h"

#include "ButtonGeometry.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QImage>
#include <QPainter>

namespace lumora
{

namespace
{

/// The smallest rectangle that holds everything drawn in the picture, in fractions of its size; empty for an empty
/// picture.
QRectF inkOf(const NamedImage &icon)
{
    const QImage image = icon.pixmap(icon.size(), 1).toImage().convertToFormat(QImage::Format_Alpha8);
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        const uchar *row = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            if (row[x] != 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    if (ink.isEmpty())
        return {};
    return {ink.x() / static_cast<qreal>(image.width()), ink.y() / static_cast<qreal>(image.height()),
            ink.width() / static_cast<qreal>(image.width()), ink.height() / static_cast<qreal>(image.height())};
}

} // namespace

IconButton::IconButton(QWidget *parent)
    : FilledButton(latoRegular(13), parent), m_hoverColor(palette::buttonHover), m_activeColor(palette::buttonHover)
{
}

void IconButton::setIcon(const NamedImage &icon)
{
    if (icon == m_icon)
        return;
    m_icon = icon;
    m_ink = inkOf(icon);
    updateGeometry();
    update();
}

QRectF IconButton::iconInk(QSizeF bounds) const
{
    if (m_icon.isNull())
        return {};
    Qt::LayoutDirection direction = layoutDirection();
    if (bounds.width() == 0) {
        bounds.setWidth(m_icon.size().width() * bounds.height() / m_icon.size().height());
        direction = Qt::LeftToRight;
    }
    const QRectF icon = buttongeometry::iconRect(bounds, m_icon.size(), m_ink, direction);
    return {icon.x() + m_ink.x() * icon.width(), icon.y() + m_ink.y() * icon.height(), m_ink.width() * icon.width(),
            m_ink.height() * icon.height()};
}

void IconButton::drawIcon(QPainter &painter)
{
    if (m_icon.isNull())
        return;
    painter.save();
    painter.setClipRect(rect());
    drawImage(painter, m_icon, buttongeometry::iconRect(size(), m_icon.size(), m_ink, layoutDirection()));
    painter.restore();
}

} // namespace lumora
