// SPDX-License-Identifier: MIT
#include "FilledButton.h"

#include "ButtonGeometry.h"
#include "widgets/style/Palette.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace lumora
{

namespace
{

constexpr int hintHeight = 36;
constexpr int hintMargin = 20;
constexpr int iconGap = 8;
/// The focus ring is a dark line along the edge and a light one inside it, so that one of the two shows on any color.
constexpr qreal outerRingWidth = 2;
constexpr qreal innerRingWidth = 1.5;
/// Above this relative luminance, white text has less than two thirds of the contrast that large text needs.
constexpr double tooLightForWhite = 0.5;

/// Relative luminance as WCAG 2 defines it: 0 for black, 1 for white.
double relativeLuminance(const QColor &color)
{
    const auto linear = [](float component) {
        const auto value = static_cast<double>(component);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

void strokeInside(QPainter &painter, const QRectF &bounds, qreal offset, qreal width, const QColor &color)
{
    const qreal inset = offset + width / 2;
    const qreal radius = std::max(0.0, buttongeometry::cornerRadius - inset);
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(bounds.adjusted(inset, inset, -inset, -inset), radius, radius);
}

} // namespace

FilledButton::FilledButton(const QFont &font, QWidget *parent)
    : PaintedButton(QAccessible::Button, parent), m_font(font), m_normalColor(palette::button), m_color(m_normalColor)
{
    setSizePolicy({QSizePolicy::Minimum, QSizePolicy::Fixed, QSizePolicy::PushButton});
}

void FilledButton::setNormalColor(const QColor &color)
{
    m_normalColor = color;
    setColor(color);
}

void FilledButton::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
}

QSize FilledButton::sizeHint() const
{
    const int textWidth = static_cast<int>(std::ceil(QFontMetricsF(m_font).horizontalAdvance(text())));
    const int margin = std::max(hintMargin, static_cast<int>(std::ceil(iconInk({0, hintHeight}).right())) + iconGap);
    return {textWidth + 2 * margin, hintHeight};
}

QSize FilledButton::minimumSizeHint() const
{
    return {hintHeight, QFontMetrics(m_font).height()};
}

void FilledButton::mouseEntered()
{
    setColor(colorUnderPointer());
    touchIn();
}

void FilledButton::mouseExited()
{
    setColor(m_normalColor);
    touchOut();
}

void FilledButton::mouseDown()
{
    setColor(colorPressed());
}

void FilledButton::keyDown()
{
    setColor(colorPressed());
    touchIn();
}

void FilledButton::keyUp()
{
    setColor(isHovered() ? colorUnderPointer() : m_normalColor);
    if (!isHovered())
        touchOut();
}

void FilledButton::drawRect(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.drawRoundedRect(rect(), buttongeometry::cornerRadius, buttongeometry::cornerRadius);
    if (isDown()) {
        painter.setBrush(palette::pressedShade);
        painter.drawRoundedRect(rect(), buttongeometry::cornerRadius, buttongeometry::cornerRadius);
    }
    drawIcon(painter);
    drawText(painter);
}

void FilledButton::drawText(QPainter &painter)
{
    if (text().isEmpty())
        return;
    const QFontMetricsF metrics(m_font);
    QRectF area =
        buttongeometry::filledTextArea(size(), iconInk(size()), metrics.horizontalAdvance(text()), layoutDirection());
    int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    QString shown = text();
    // Lato's metrics count the space above its capitals as leading, so the leading goes on top of each line.
    qreal height = metrics.leading() + metrics.boundingRect(area, flags, shown).height();
    if (height > size().height()) {
        flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine;
        shown = metrics.elidedText(shown, Qt::ElideRight, area.width());
        height = metrics.lineSpacing();
    }
    area.setTop(buttongeometry::filledTextTop(size().height(), height) + metrics.leading());
    area.setHeight(height);
    painter.setFont(m_font);
    // The owner may set any color; white text is not readable on a light one.
    painter.setPen(relativeLuminance(m_color) > tooLightForWhite ? palette::chromeText : palette::buttonText);
    painter.drawText(area, flags, shown);
}

void FilledButton::drawFocusRing(QPainter &painter)
{
    painter.setBrush(Qt::NoBrush);
    strokeInside(painter, rect(), 0, outerRingWidth, palette::chromeText);
    strokeInside(painter, rect(), outerRingWidth, innerRingWidth, palette::focusRingInner);
}

} // namespace lumora
