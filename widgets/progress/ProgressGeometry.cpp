// SPDX-License-Identifier: MIT
#include "ProgressGeometry.h"

#include <cmath>

namespace lumora::progressgeometry
{

namespace
{

constexpr double lastOffsetBeforeWrap = 19;
constexpr qreal pitch = 20;
constexpr qreal stripeWidth = 10;
constexpr qreal stripeLean = 8;
constexpr qreal stripeBottom = 2;
constexpr qreal inset = 2;
constexpr qreal heightTakenOff = 5;

} // namespace

double nextOffset(double offset)
{
    return offset > lastOffsetBeforeWrap ? 0 : offset + 1;
}

float fraction(double value, double minimum, double maximum)
{
    if (maximum == minimum)
        return 0;
    return static_cast<float>(value) / static_cast<float>(maximum - minimum);
}

QRectF progressRect(float fraction, QSizeF frame)
{
    return {inset, inset, static_cast<qreal>(fraction) * frame.width() - 2 * inset, frame.height() - heightTakenOff};
}

qint64 stripeCount(qreal progressWidth)
{
    return static_cast<qint64>(std::floor(progressWidth / pitch + pitch)) + 1;
}

QPolygonF stripe(qint64 k, double offset, qreal progressHeight)
{
    const qreal x = pitch * static_cast<qreal>(k) + offset;
    const auto height = static_cast<qreal>(static_cast<float>(progressHeight));
    const qreal top = stripeBottom + height;
    return QPolygonF({{x, stripeBottom},
                      {x + stripeWidth, stripeBottom},
                      {x + stripeWidth - stripeLean, top},
                      {x - stripeLean, top}});
}

} // namespace lumora::progressgeometry
