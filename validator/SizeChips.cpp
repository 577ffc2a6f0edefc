// SPDX-License-Identifier: MIT
#include "SizeChips.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

constexpr int textSize = 12;
constexpr int sideMargin = 8;
constexpr qreal radius = 4;
constexpr int hintWidth = 240;

} // namespace

SizeChips::SizeChips(QWidget *parent) : QWidget(parent), m_font(latoRegular(textSize))
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void SizeChips::setTexts(const QStringList &texts)
{
    if (texts == m_texts)
        return;
    m_texts = texts;
    updateGeometry();
    update();
}

QList<QRect> SizeChips::placed(const QList<int> &widths, int rowWidth, Qt::LayoutDirection direction)
{
    QList<QRect> rectangles;
    int x = 0;
    int y = 0;
    for (const int wanted : widths) {
        const int width = std::min(wanted, rowWidth);
        if (x > 0 && x + width > rowWidth) {
            x = 0;
            y += height + gap;
        }
        rectangles += QRect(direction == Qt::RightToLeft ? rowWidth - x - width : x, y, width, height);
        x += width + gap;
    }
    return rectangles;
}

QList<int> SizeChips::widths() const
{
    const QFontMetricsF metrics(m_font);
    QList<int> widths;
    for (const QString &text : m_texts)
        widths += static_cast<int>(std::ceil(metrics.horizontalAdvance(text))) + 2 * sideMargin;
    return widths;
}

int SizeChips::heightForWidth(int width) const
{
    const QList<QRect> rectangles = placed(widths(), width, Qt::LeftToRight);
    return rectangles.isEmpty() ? 0 : rectangles.last().bottom() + 1;
}

QSize SizeChips::sizeHint() const
{
    return {hintWidth, heightForWidth(hintWidth)};
}

QSize SizeChips::minimumSizeHint() const
{
    const QList<int> all = widths();
    return {all.isEmpty() ? 0 : *std::max_element(all.begin(), all.end()), all.isEmpty() ? 0 : height};
}

void SizeChips::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(m_font);
    // The order of width and height is part of a size.
    painter.setLayoutDirection(Qt::LeftToRight);
    const QList<QRect> rectangles = placed(widths(), width(), layoutDirection());
    for (qsizetype i = 0; i < rectangles.size(); ++i) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette::panel);
        painter.drawRoundedRect(rectangles[i], radius, radius);
        painter.setPen(palette::chromeText);
        painter.drawText(rectangles[i], Qt::AlignCenter | Qt::TextSingleLine, m_texts[i]);
    }
}

} // namespace lumora
