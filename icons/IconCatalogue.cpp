// SPDX-License-Identifier: MIT
#include "IconCatalogue.h"

#include "pictures/RoundedCorners.h"

namespace lumora
{

QString customIconName(int size, int cornerMode)
{
    QString format = QStringLiteral("/icon_%1x%1.png");
    if (cornerMode == static_cast<int>(CornerMode::Ios6))
        format = QStringLiteral("/icon_%1x%1_iOS6.png");
    else if (cornerMode == static_cast<int>(CornerMode::Ios7))
        format = QStringLiteral("/icon_%1x%1_iOS7.png");
    return format.arg(size);
}

} // namespace lumora
