// SPDX-License-Identifier: MIT
// The look of a text field, and the place of its editor, so that the field looks the same while it is edited.
#include "TextFieldGeometry.h"
#include "ZKFieldEditor.h"
#include "ZKTextField.h"
#include "widgets/style/Palette.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

namespace lumora
{

using namespace textfieldgeometry;

namespace
{

constexpr int hintWidth = 120;
constexpr int hintHeight = 28;
constexpr qreal ringWidth = 2;
/// The margin of a QLineEdit without a frame around its text; it has no function that returns it.
constexpr int editorMarginX = 2;
constexpr int editorMarginY = 1;

/// A rounded rectangle whose line of that width is inside the bounds.
void strokeInside(QPainter &painter, const QRectF &bounds, qreal radius, qreal width, const QColor &color)
{
    const qreal inset = width / 2;
    const qreal inner = qMax(0.0, radius - inset);
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(bounds.adjusted(inset, inset, -inset, -inset), inner, inner);
}

} // namespace

QSize ZKTextField::sizeHint() const
{
    return {hintWidth, hintHeight};
}

QRect ZKTextField::letterRect(const QFont &font) const
{
    const QFontMetricsF metrics(font);
    // Lato's metrics count the space above its capitals as leading, so the leading goes on top of the line.
    const QRectF line = textRect(size(), metrics.lineSpacing());
    const qreal top = height() - line.bottom() + metrics.leading();
    return {qRound(line.left()), qRound(top), qRound(line.width()), qCeil(metrics.height())};
}

void ZKTextField::placeFieldEditor()
{
    if (m_currentFieldEditor == nullptr)
        return;
    m_currentFieldEditor->setGeometry(
        letterRect(m_stringAttributes.font).adjusted(-editorMarginX, -editorMarginY, editorMarginX, editorMarginY));
}

void ZKTextField::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(palette::disabledOpacity);
    const QRectF bounds = rect();
    if (m_drawsBackground)
        drawBackgroundWithRect(painter, bounds);
    if (m_drawsBorder)
        drawFrameWithRect(painter, bounds);
    if (!isEditing())
        drawInteriorWithRect(painter, bounds);
    if (m_shouldShowFocus && (isEditing() || hasFocus()))
        drawFocusRing(painter, bounds);
}

void ZKTextField::drawBackgroundWithRect(QPainter &painter, const QRectF &rect) const
{
    const qreal radius = m_shouldClipContent ? clippingRadius : 0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_backgroundColor);
    painter.drawRoundedRect(rect, radius, radius);
}

void ZKTextField::drawFrameWithRect(QPainter &painter, const QRectF &rect) const
{
    // The line is on the clipping path, which cuts off the outer half of its width. Drawing only the inner half gives
    // the same result with smooth corners.
    strokeInside(painter, rect, m_shouldClipContent ? clippingRadius : 0, borderWidth / 2, palette::chromeText);
}

void ZKTextField::drawInteriorWithRect(QPainter &painter, const QRectF &rect) const
{
    if (m_string.isEmpty())
        drawTextWithRect(painter, rect, attributedPlaceholderString());
    else
        drawTextWithRect(painter, rect, {m_secure ? m_bullets : m_string, m_stringAttributes});
}

void ZKTextField::drawTextWithRect(QPainter &painter, const QRectF &rect, const AttributedString &string) const
{
    const QRect letters = letterRect(string.attributes.font);
    const auto side = QStyle::visualAlignment(layoutDirection(), string.attributes.alignment);
    painter.save();
    painter.setClipRect(rect);
    painter.setFont(string.attributes.font);
    painter.setPen(string.attributes.color);
    painter.drawText(letters,
                     static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignTop) | Qt::TextSingleLine | Qt::TextDontClip,
                     QFontMetricsF(string.attributes.font)
                         .elidedText(string.string, string.attributes.lineBreakMode, letters.width()));
    painter.restore();
}

void ZKTextField::drawFocusRing(QPainter &painter, const QRectF &rect) const
{
    strokeInside(painter, rect, m_shouldClipContent ? clippingRadius : 0, ringWidth, palette::focusRing);
}

} // namespace lumora
