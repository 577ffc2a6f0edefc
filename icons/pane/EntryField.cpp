// SPDX-License-Identifier: MIT
#include "EntryField.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

namespace
{

constexpr int fieldHeight = 28;
constexpr int fontSize = 13;
constexpr int sideMargin = 6;
constexpr int swatchSide = 16;
constexpr qreal cornerRadius = 5;
constexpr int longestText = 64;

} // namespace

EntryField::EntryField(QWidget *parent) : QLineEdit(parent)
{
    setFrame(false);
    setFont(latoBold(fontSize));
    setTextMargins(sideMargin, 0, sideMargin, 0);
    setFixedHeight(fieldHeight);
    setMaxLength(longestText);
    // A dropped file's name is no text for it; the pane takes files.
    setAcceptDrops(false);
    QPalette colors = QLineEdit::palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, palette::chromeText);
    colors.setColor(QPalette::PlaceholderText, palette::placeholderText);
    setPalette(colors);
}

void EntryField::setRefused(bool refused, const QString &reason)
{
    setAccessibleDescription(refused ? reason : QString());
    setToolTip(refused ? reason : QString());
    if (m_refused == refused)
        return;
    m_refused = refused;
    update();
}

void EntryField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor frame = m_refused ? palette::errorDark : hasFocus() ? palette::focusRing : palette::chromeText;
        const qreal width = hasFocus() || m_refused ? 2 : 1;
        painter.setPen(QPen(frame, width));
        painter.setBrush(palette::textFieldBackground);
        if (!isEnabled())
            painter.setOpacity(palette::disabledOpacity);
        painter.drawRoundedRect(QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2), cornerRadius,
                                cornerRadius);
    }
    QLineEdit::paintEvent(event);
}

ColorEntryField::ColorEntryField(QWidget *parent) : EntryField(parent)
{
    const int besideSwatch = 2 * sideMargin + swatchSide;
    setTextMargins(layoutDirection() == Qt::RightToLeft ? sideMargin : besideSwatch, 0,
                   layoutDirection() == Qt::RightToLeft ? besideSwatch : sideMargin, 0);
    connect(this, &QLineEdit::textChanged, this, &ColorEntryField::read);
}

void ColorEntryField::setDerivedColor(const QColor &color)
{
    if (color == m_derived)
        return;
    m_derived = color;
    update();
}

void ColorEntryField::read()
{
    const QString text = this->text().trimmed();
    std::optional<QColor> color;
    if (QColor::isValidColor(text) && QColor(text).alpha() == 255)
        color = QColor(text);
    setRefused(!color && !text.isEmpty(), qtTrId("ICONS_COLOR_REFUSED"));
    update();
    if (color == m_color)
        return;
    m_color = color;
    emit colorChanged();
}

void ColorEntryField::paintEvent(QPaintEvent *event)
{
    EntryField::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor shown = m_color.value_or(m_derived);
    QRectF swatch(sideMargin, (height() - swatchSide) / 2.0, swatchSide, swatchSide);
    if (layoutDirection() == Qt::RightToLeft)
        swatch.moveRight(width() - sideMargin);
    painter.setPen(QPen(palette::panelOutline, 1, shown.isValid() ? Qt::SolidLine : Qt::DashLine));
    painter.setBrush(shown.isValid() ? QBrush(shown) : Qt::NoBrush);
    painter.drawRoundedRect(swatch.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

} // namespace lumora
