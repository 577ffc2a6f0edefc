// SPDX-License-Identifier: MIT
#include "ShownIcon.h"

#include "pictures/PictureOperations.h"

namespace lumora
{

ShownIcon shownIcon(const QImage &icon, const QList<int> &sides, int cornerMode)
{
    ShownIcon shown{icon, {}, cornerMode};
    for (const int side : sides)
        shown.pictures << resizeImage(icon, side, shown.pictures.isEmpty() ? 0 : cornerMode);
    return shown;
}

} // namespace lumora
