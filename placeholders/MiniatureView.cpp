// SPDX-License-Identifier: MIT
#include "MiniatureView.h"

#include "LabelFont.h"
#include "Placeholder.h"
#include "PlaceholderLabel.h"
#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumora
{

namespace
{

constexpr double gap = 6;
constexpr double frameWidth = 1.5;
constexpr double frameRadius = 6;
constexpr double readableWidth = 90; ///< The label is a tenth of this high.

QFont captionFont()
{
    return latoRegular(10);
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

} // namespace

MiniatureView::MiniatureView(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
}

void MiniatureView::setPictures(const QList<QSize> &pictures)
{
    if (pictures == m_pictures)
        return;
    m_pictures = pictures;
    m_labels.clear();
    const LabelFont font;
    for (const QSize &picture : pictures)
        m_labels << labelOutline(picture, font);
    layOut();
    update();
}

void MiniatureView::resizeEvent(QResizeEvent *)
{
    layOut();
}

void MiniatureView::layOut()
{
    double widest = 0;
    const QFontMetricsF metrics(captionFont());
    for (const QSize &picture : std::as_const(m_pictures))
        widest = std::max(widest, metrics.horizontalAdvance(sizeText(picture)));
    const CaptionRule rule{readableWidth, QSizeF(std::ceil(widest), std::ceil(metrics.height()))};
    m_miniatures = captionedMiniatures(m_pictures, QRectF(rect()), gap, rule);
}

void MiniatureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The order of width and height is part of a size.
    painter.setLayoutDirection(Qt::LeftToRight);
    if (m_miniatures.isEmpty()) {
        painter.setPen(QPen(palette::separator, frameWidth, Qt::DashLine));
        painter.drawRoundedRect(QRectF(rect()).adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth), frameRadius,
                                frameRadius);
        return;
    }
    const QColor gray(Placeholder::gray, Placeholder::gray, Placeholder::gray);
    painter.setFont(captionFont());
    for (qsizetype i = 0; i < m_miniatures.size(); ++i) {
        const Miniature &miniature = m_miniatures.at(i);
        const QRectF rectangle = onPixels(miniature.picture, devicePixelRatioF());
        painter.fillRect(rectangle, gray);
        if (!miniature.caption.isNull()) {
            painter.setPen(palette::chromeText);
            painter.drawText(miniature.caption, Qt::AlignCenter, sizeText(m_pictures.at(i)));
            continue;
        }
        painter.save();
        painter.setClipRect(rectangle);
        painter.translate(rectangle.topLeft());
        const double scale = miniature.picture.width() / m_pictures.at(i).width();
        painter.scale(scale, scale);
        painter.fillPath(m_labels.at(i), Qt::white);
        painter.restore();
    }
}

} // namespace lumora
