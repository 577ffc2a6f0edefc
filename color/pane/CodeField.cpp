// SPDX-License-Identifier: MIT
#include "CodeField.h"

#include "color/forms/ColorReader.h"
#include "color/forms/FormList.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QPainter>

#include <utility>

namespace lumora
{

namespace
{

constexpr int fieldHeight = 44;
constexpr int fontSize = 17;
constexpr int sideMargin = 8;
constexpr qreal cornerRadius = 6;

} // namespace

CodeField::CodeField(QWidget *parent) : QLineEdit(parent)
{
    setFrame(false);
    setFont(latoBold(fontSize));
    setTextMargins(sideMargin, 0, sideMargin, 0);
    setFixedHeight(fieldHeight);
    setMaxLength(static_cast<int>(longestColorText));
    // A dropped file's name is no text for it; the pane takes colors.
    setAcceptDrops(false);
    QPalette colors = QLineEdit::palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, palette::chromeText);
    setPalette(colors);
    connect(this, &QLineEdit::textChanged, this, &CodeField::read);
    connect(this, &QLineEdit::returnPressed, this, &CodeField::confirm);
}

QSize CodeField::sizeHint() const
{
    return {160, fieldHeight};
}

void CodeField::setColor(const WideColor &color)
{
    const Result<ColorReading> shown = readColor(text());
    m_color = color;
    if (shown && shown.value().color == color)
        return;
    const bool before = std::exchange(m_setsText, true);
    setText(fieldText(color));
    setCursorPosition(0);
    m_setsText = before;
    setRefused(false);
}

void CodeField::read()
{
    if (m_setsText)
        return;
    const Result<ColorReading> reading = readColor(text());
    setRefused(!reading && !text().trimmed().isEmpty());
    if (!reading || reading.value().color == m_color)
        return;
    m_color = reading.value().color;
    emit colorTyped(m_color);
}

void CodeField::confirm()
{
    if (isRefused() || text().trimmed().isEmpty())
        return;
    selectAll();
    emit colorConfirmed();
}

void CodeField::setRefused(bool isRefused)
{
    if (m_isRefused == isRefused)
        return;
    m_isRefused = isRefused;
    update();
    emit refusedChanged(isRefused);
}

void CodeField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(palette::textFieldBackground);
        const qreal width = hasFocus() || m_isRefused ? 2 : 1;
        painter.setPen(QPen(m_isRefused  ? palette::errorDark
                            : hasFocus() ? palette::color
                                         : palette::panelOutline,
                            width));
        const qreal inset = width / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    }
    QLineEdit::paintEvent(event);
}

} // namespace lumora
