// SPDX-License-Identifier: MIT
#include "KBButtonCell.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>

namespace lumora
{

namespace
{

constexpr qreal bezelRadius = 3;
constexpr qreal outlineWidth = 1;
constexpr qreal titleMargin = 6;
constexpr float bezelContrast = 0.12F;
constexpr float hoverContrast = 0.05F;

} // namespace

KBButtonCell::KBButtonCell() : m_baseColor(getColorForButtonType(m_type)), m_font(latoBold(13)) {}

void KBButtonCell::setKBButtonType(KBButtonType type)
{
    m_type = type;
    m_baseColor = getColorForButtonType(type);
}

RgbaColor KBButtonCell::getColorForButtonType(KBButtonType type)
{
    switch (type) {
    case KBButtonType::Primary:
        return rgbaFrom(palette::icons);
    case KBButtonType::Information:
        return rgbaFrom(palette::socialBlueDark);
    case KBButtonType::Success:
        return rgbaFrom(palette::successDark);
    case KBButtonType::Warning:
        return rgbaFrom(palette::devices);
    case KBButtonType::Danger:
        return rgbaFrom(palette::errorDark);
    case KBButtonType::Inverse:
        return rgbaFrom(palette::chromeText);
    case KBButtonType::Default:
        break;
    }
    return rgbaFrom(palette::panel);
}

void KBButtonCell::drawBezelWithFrame(QPainter &painter, const QRectF &frame) const
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(platformColor(darkenColorByValue(m_baseColor, bezelContrast)));
    painter.drawRoundedRect(frame, bezelRadius, bezelRadius);

    const QRectF inner = frame.adjusted(outlineWidth, outlineWidth, -outlineWidth, -outlineWidth);
    const RgbaColor base = m_hovered ? lightenColorByValue(m_baseColor, hoverContrast) : m_baseColor;
    const RgbaColor begin =
        m_highlighted ? darkenColorByValue(base, bezelContrast) : lightenColorByValue(base, bezelContrast);
    QLinearGradient gradient(inner.topLeft(), inner.bottomLeft());
    gradient.setColorAt(0, platformColor(begin));
    gradient.setColorAt(1, platformColor(base));
    painter.setBrush(gradient);
    painter.drawRoundedRect(inner, bezelRadius, bezelRadius);
    painter.restore();
}

void KBButtonCell::drawTitle(QPainter &painter, const QString &title, const QRectF &frame) const
{
    painter.save();
    painter.setFont(m_font);
    painter.setPen(isLightColor(m_baseColor) ? palette::chromeText : palette::buttonText);
    const QRectF area = frame.adjusted(titleMargin, 0, -titleMargin, 0);
    painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine,
                     QFontMetricsF(m_font).elidedText(title, Qt::ElideRight, area.width()));
    painter.restore();
}

} // namespace lumora
