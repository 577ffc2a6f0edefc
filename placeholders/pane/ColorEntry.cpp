// SPDX-License-Identifier: MIT
#include "ColorEntry.h"

#include "tool/style/FieldStyle.h"
#include "widgets/style/Palette.h"

#include <QPainter>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int swatchEdge = 20;
constexpr int swatchMargin = 8;
constexpr qreal swatchCorner = 4;

} // namespace

std::optional<QColor> colorFromText(const QString &text)
{
    static const QRegularExpression code(u"^#?([0-9a-f]{3}|[0-9a-f]{6}|[0-9a-f]{8})$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const QString trimmed = text.trimmed();
    const auto match = code.match(trimmed);
    if (!match.hasMatch()) {
        const bool isNamed = !trimmed.startsWith(u'#') && QColor::isValidColor(trimmed);
        return isNamed ? std::optional(QColor(trimmed)) : std::nullopt;
    }
    const QString digits = match.captured(1);
    // The platform's own codes have the opacity in front.
    return digits.size() == 8 ? QColor(u'#' + digits.last(2) + digits.first(6)) : QColor(u'#' + digits);
}

ColorEntry::ColorEntry(const QColor &color, QWidget *parent) : QLineEdit(color.name(), parent), m_color(color)
{
    styleField(this, palette::placeholders);
    const int room = swatchEdge + swatchMargin;
    setTextMargins(isRightToLeft() ? room : 0, 0, isRightToLeft() ? 0 : room, 0);
    connect(this, &QLineEdit::textChanged, this, &ColorEntry::read);
}

void ColorEntry::read()
{
    const std::optional<QColor> color = colorFromText(text());
    m_isRefused = !color;
    m_color = color.value_or(m_color);
    update();
    emit changed();
}

void ColorEntry::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int left = isRightToLeft() ? swatchMargin : width() - swatchEdge - swatchMargin;
    const QRectF swatch(left, (height() - swatchEdge) / 2.0, swatchEdge, swatchEdge);
    painter.setPen(m_isRefused ? QPen(palette::errorDark, 2) : QPen(palette::swatchOutline));
    painter.setBrush(m_isRefused ? QBrush(Qt::NoBrush) : QBrush(m_color));
    painter.drawRoundedRect(swatch, swatchCorner, swatchCorner);
    if (m_isRefused)
        painter.drawLine(swatch.topRight(), swatch.bottomLeft());
}

} // namespace lumora
