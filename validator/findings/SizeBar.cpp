// SPDX-License-Identifier: MIT
#include "SizeBar.h"

#include "FindingWords.h"
#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int barHeight = 16;
constexpr int gap = 8;
constexpr int lineHeight = 20;
constexpr int swatch = 10;
constexpr int textSize = 12;
constexpr qreal radius = 4;
constexpr int preferredWidth = 400;

/// A kind keeps its color, whatever else a package holds.
QColor colorOf(const QString &kind)
{
    const QColor colors[] = {palette::validatorBorder, palette::icons,        palette::placeholders,
                             palette::resizer,         palette::color,        palette::devices,
                             palette::networkNavy,     palette::panelOutline, palette::chromeText};
    const qsizetype index = fileKinds().indexOf(kind);
    return colors[std::clamp<qsizetype>(index, 0, std::ssize(colors) - 1)];
}

} // namespace

SizeBar::SizeBar(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void SizeBar::setKinds(const QList<ReviewedKind> &kinds)
{
    QList<ReviewedKind> ordered = kinds;
    std::ranges::stable_sort(ordered, [](const ReviewedKind &one, const ReviewedKind &other) {
        return one.total.bytes > other.total.bytes;
    });
    qreal all = 0;
    for (const ReviewedKind &kind : std::as_const(ordered))
        all += static_cast<qreal>(kind.total.bytes);
    m_parts.clear();
    for (const ReviewedKind &kind : std::as_const(ordered))
        m_parts += Part{fileKindText(kind.kind) + u' ' + bytesText(kind.total.bytes), colorOf(kind.kind),
                        all > 0 ? static_cast<qreal>(kind.total.bytes) / all : 0};
    setAccessibleName(words());
    updateGeometry();
    update();
}

QString SizeBar::words() const
{
    QStringList texts;
    for (const Part &part : m_parts)
        texts += part.text;
    return texts.join(u", "_s);
}

QList<QRect> SizeBar::places(int width) const
{
    const QFontMetrics metrics(latoRegular(textSize));
    QList<QRect> places;
    int x = 0;
    int y = barHeight + gap;
    for (const Part &part : m_parts) {
        const int wanted = std::min(width, swatch + gap / 2 + metrics.horizontalAdvance(part.text) + 1);
        if (x > 0 && x + wanted > width) {
            x = 0;
            y += lineHeight;
        }
        places += QRect(x, y, wanted, lineHeight);
        x += wanted + 2 * gap;
    }
    return places;
}

int SizeBar::heightForWidth(int width) const
{
    return m_parts.isEmpty() ? barHeight : places(width).last().bottom() + 1;
}

QSize SizeBar::sizeHint() const
{
    return {preferredWidth, heightForWidth(preferredWidth)};
}

void SizeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(0, 0, width(), barHeight), radius, radius);
    painter.save();
    painter.setClipPath(outline);
    painter.fillRect(QRect(0, 0, width(), barHeight), palette::panel);
    qreal at = 0;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    for (const Part &part : std::as_const(m_parts)) {
        const qreal length = part.share * width();
        painter.fillRect(QRectF(isMirrored ? width() - at - length : at, 0, length, barHeight), part.color);
        at += length;
    }
    painter.restore();
    painter.setFont(latoRegular(textSize));
    const QList<QRect> areas = places(width());
    for (qsizetype index = 0; index < m_parts.size(); ++index) {
        const QRect area = QStyle::visualRect(layoutDirection(), rect(), areas[index]);
        const QRect mark = QStyle::visualRect(layoutDirection(), area,
                                              QRect(area.x(), area.y() + (lineHeight - swatch) / 2, swatch, swatch));
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_parts[index].color);
        painter.drawRoundedRect(mark, 2, 2);
        painter.setPen(palette::chromeText);
        const QRect words = QStyle::visualRect(layoutDirection(), area, area.adjusted(swatch + gap / 2, 0, 0, 0));
        painter.drawText(words, static_cast<int>(Qt::AlignVCenter | Qt::TextSingleLine), m_parts[index].text);
    }
}

} // namespace lumora
