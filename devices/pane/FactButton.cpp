// SPDX-License-Identifier: MIT
#include "FactButton.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QPainter>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int fontSize = 13;
constexpr int margin = 4;
constexpr int smallestWidth = 60;
constexpr qreal ringWidth = 2;
constexpr qreal ringRadius = 4;
constexpr std::chrono::milliseconds copiedDuration{2000};
constexpr int textFlags = Qt::TextWordWrap | Qt::AlignTop;

} // namespace

FactButton::FactButton(const QString &name, const QString &value, bool isBold, QWidget *parent)
    : PaintedButton(QAccessible::Button, parent), m_value(value),
      m_font(isBold ? latoBold(fontSize) : latoRegular(fontSize))
{
    setText(value);
    setAccessibleName(name + u": "_s + value);
    setToolTip(qtTrId("DEVICES_CLICK_COPIES"));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    m_copied.setSingleShot(true);
    m_copied.setInterval(copiedDuration);
    connect(&m_copied, &QTimer::timeout, this, [this] { setText(m_value); });
    connect(this, &FactButton::clicked, this, [this] {
        emit copied(m_value);
        setText(qtTrId("COPIED"));
        m_copied.start();
    });
}

int FactButton::heightForWidth(int width) const
{
    const QRect area(0, 0, std::max(width - 2 * margin, 1), 10000);
    return QFontMetrics(m_font).boundingRect(area, textFlags, m_value).height() + 2 * margin;
}

QSize FactButton::sizeHint() const
{
    return {2 * smallestWidth, heightForWidth(2 * smallestWidth)};
}

QSize FactButton::minimumSizeHint() const
{
    return {smallestWidth, QFontMetrics(m_font).height() + 2 * margin};
}

void FactButton::drawRect(QPainter &painter)
{
    QFont font = m_font;
    font.setUnderline(isHovered());
    painter.setFont(font);
    painter.setPen(palette::chromeText);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const auto side = (mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin), textFlags | static_cast<int>(side), text());
}

void FactButton::drawFocusRing(QPainter &painter)
{
    const qreal inset = ringWidth / 2;
    painter.setPen(QPen(palette::focusRing, ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), ringRadius, ringRadius);
}

} // namespace lumora
