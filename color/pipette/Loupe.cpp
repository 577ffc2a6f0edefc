// SPDX-License-Identifier: MIT
#include "Loupe.h"

#include "color/ColorCode.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QPainter>

namespace lumora
{

namespace
{

constexpr int pixelSide = 10;
constexpr int border = 1;
constexpr int codeHeight = 26;
constexpr int codeSize = 13;

} // namespace

Loupe::Loupe(QWidget *parent)
    : QWidget(parent,
              Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus),
      m_font(latoBold(codeSize))
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const int side = pixelsAcross * pixelSide + 2 * border;
    setFixedSize(side, side + codeHeight);
}

QPoint Loupe::placeBeside(const QPoint &pointer, const QSize &size, const QRect &screen)
{
    const auto along = [](int at, int length, int begin, int end) {
        const int behind = at + distance;
        return behind + length <= end ? behind : std::max(begin, at - distance - length);
    };
    return {along(pointer.x(), size.width(), screen.left(), screen.left() + screen.width()),
            along(pointer.y(), size.height(), screen.top(), screen.top() + screen.height())};
}

void Loupe::showPixels(const QImage &pixels, const QPoint &pointer, const QRect &screen)
{
    m_pixels = pixels;
    m_code = stringFromColor(rgbaFrom(pixels.pixelColor(pixels.width() / 2, pixels.height() / 2)));
    setAccessibleName(m_code);
    move(placeBeside(pointer, size(), screen));
    if (isHidden())
        show();
    update();
}

void Loupe::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette::chromeText);
    const QRect picture(border, border, pixelsAcross * pixelSide, pixelsAcross * pixelSide);
    painter.drawImage(picture, m_pixels);
    const int middle = border + (pixelsAcross / 2) * pixelSide;
    const QRect ring(middle, middle, pixelSide, pixelSide);
    painter.setPen(palette::markerEdge);
    painter.drawRect(ring.adjusted(-2, -2, 1, 1));
    painter.setPen(palette::marker);
    painter.drawRect(ring.adjusted(-1, -1, 0, 0));
    painter.setFont(m_font);
    painter.setPen(palette::buttonText);
    painter.drawText(QRect(0, picture.bottom() + 1, width(), codeHeight), Qt::AlignCenter, m_code);
}

} // namespace lumora
