// SPDX-License-Identifier: MIT
#include "IconCatalogue.h"

namespace lumora
{

QString customIconName(int size, CornerMode corners)
{
    QString format = QStringLiteral("/icon_%1x%1.png");
    if (corners == CornerMode::Ios6)
        format = QStringLiteral("/icon_%1x%1_iOS6.png");
    else if (corners == CornerMode::Ios7)
        format = QStringLiteral("/icon_%1x%1_iOS7.png");
    return format.arg(size);
}

} // namespace lumora
