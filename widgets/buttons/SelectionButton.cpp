// SPDX-License-Identifier: MIT
#include "SelectionButton.h"

#include "ButtonGeometry.h"
#include "widgets/style/Palette.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

constexpr int hintHeight = 24;
constexpr qreal ringWidth = 2;
constexpr qreal ringRadius = 4;
/// The distance from both ends of the text to the outer edge of the focus ring.
constexpr qreal leadingMargin = 6;
constexpr int trailingMargin = 6;

} // namespace

SelectionButton::SelectionButton(QAccessible::Role role, const QString &imageStem, QWidget *parent)
    : PaintedButton(role, parent), m_idleImage(imageStem + u"_idle"), m_hoverImage(imageStem + u"_hover"),
      m_activeImage(imageStem + u"_active"), m_currentImage(m_idleImage)
{
    setSizePolicy({QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::CheckBox});
}

void SelectionButton::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    // The last press left the active image, but the button may no longer be active.
    if (!active && !isFrozen())
        setCurrentImage(isHovered() ? m_hoverImage : m_idleImage);
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

QSize SelectionButton::sizeHint() const
{
    int width = static_cast<int>(buttongeometry::selectionImageSide);
    if (!text().isEmpty()) {
        const qreal textWidth = QFontMetricsF(m_font).horizontalAdvance(text());
        width = static_cast<int>(std::ceil(buttongeometry::selectionTextX + textWidth)) + trailingMargin;
    }
    return {width, hintHeight};
}

QSize SelectionButton::minimumSizeHint() const
{
    return {static_cast<int>(buttongeometry::selectionImageSide), hintHeight};
}

void SelectionButton::setCurrentImage(const NamedImage &image)
{
    m_currentImage = image;
    update();
}

void SelectionButton::mouseEntered()
{
    setCurrentImage(m_hoverImage);
}

void SelectionButton::mouseExited()
{
    setCurrentImage(m_idleImage);
}

void SelectionButton::mouseDown()
{
    setCurrentImage(m_active ? m_activeImage : m_hoverImage);
}

void SelectionButton::drawRect(QPainter &painter)
{
    const QSizeF bounds = size();
    drawImage(painter, m_active ? m_activeImage : m_currentImage,
              buttongeometry::selectionImageRect(bounds, layoutDirection()));
    if (text().isEmpty())
        return;
    const QFontMetricsF metrics(m_font);
    QRectF area = buttongeometry::selectionTextArea(bounds, layoutDirection());
    // Lato's metrics count the space above its capitals as leading, so the leading goes on top of the line.
    area.setTop(buttongeometry::selectionTextTop(bounds.height(), metrics.lineSpacing()) + metrics.leading());
    area.setHeight(metrics.height());
    QFont font = m_font;
    // Its image shows a verdict and does not follow the pointer; the text shows that it can be clicked.
    font.setUnderline(isFrozen() && isHovered() && isEnabled());
    painter.setFont(font);
    painter.setPen(palette::chromeText);
    const auto side = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(area, side | Qt::AlignAbsolute | Qt::AlignTop | Qt::TextSingleLine,
                     metrics.elidedText(text(), Qt::ElideRight, area.width()));
}

void SelectionButton::drawFocusRing(QPainter &painter)
{
    // The image reaches to the button's edge, so the ring is drawn around the text if there is one.
    QRectF ring = rect();
    if (!text().isEmpty()) {
        ring = buttongeometry::selectionTextArea(size(), layoutDirection());
        const qreal textWidth = QFontMetricsF(m_font).horizontalAdvance(text());
        const qreal unused = std::max(0.0, ring.width() - textWidth - trailingMargin);
        if (layoutDirection() == Qt::RightToLeft)
            ring.adjust(unused, 0, leadingMargin, 0);
        else
            ring.adjust(-leadingMargin, 0, -unused, 0);
    }
    const qreal inset = ringWidth / 2;
    painter.setPen(QPen(palette::focusRing, ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ring.adjusted(inset, inset, -inset, -inset), ringRadius, ringRadius);
}

} // namespace lumora
