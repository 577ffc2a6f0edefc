// SPDX-License-Identifier: MIT
#include "TextFieldGeometry.h"

#include <algorithm>
#include <cmath>

namespace lumora::textfieldgeometry
{

namespace
{

int clamped(int length, int minimum, int maximum)
{
    if (minimum > 0)
        length = std::max(length, minimum);
    if (maximum > 0)
        length = std::min(length, maximum);
    return length;
}

} // namespace

qreal textOffset(qreal boundsHeight, qreal lineHeight)
{
    return std::round((boundsHeight - lineHeight) / 2);
}

QRectF textRect(QSizeF bounds, qreal lineHeight)
{
    return {textInset, textOffset(bounds.height(), lineHeight), bounds.width() - 2 * textInset, lineHeight};
}

QSize clampedSize(QSize size, QSize minimum, QSize maximum)
{
    return {clamped(size.width(), minimum.width(), maximum.width()),
            clamped(size.height(), minimum.height(), maximum.height())};
}

} // namespace lumora::textfieldgeometry
