// SPDX-License-Identifier: MIT
#include "MiniatureView.h"

#include "LabelFont.h"
#include "MiniatureLayout.h"
#include "Placeholder.h"
#include "PlaceholderLabel.h"
#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Palette.h"

#include <QPainter>

#include <algorithm>

namespace lumora
{

namespace
{

constexpr double gap = 6;
constexpr double frameWidth = 1.5;
constexpr double frameRadius = 6;

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
    m_rectangles = miniatureRectangles(m_pictures, QRectF(rect()), gap);
}

void MiniatureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_rectangles.isEmpty()) {
        painter.setPen(QPen(palette::separator, frameWidth, Qt::DashLine));
        painter.drawRoundedRect(QRectF(rect()).adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth), frameRadius,
                                frameRadius);
        return;
    }
    const QColor gray(Placeholder::gray, Placeholder::gray, Placeholder::gray);
    for (qsizetype i = 0; i < m_rectangles.size(); ++i) {
        const QRectF &rectangle = m_rectangles.at(i);
        // A very thin picture stays visible as a strip.
        const QRectF visible(rectangle.topLeft(),
                             QSizeF(std::max(rectangle.width(), 1.0), std::max(rectangle.height(), 1.0)));
        painter.save();
        painter.fillRect(visible, gray);
        painter.setClipRect(visible);
        painter.translate(rectangle.topLeft());
        const double scale = rectangle.width() / m_pictures.at(i).width();
        painter.scale(scale, scale);
        painter.fillPath(m_labels.at(i), Qt::white);
        painter.restore();
    }
}

} // namespace lumora
