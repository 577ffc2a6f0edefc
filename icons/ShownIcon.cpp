// SPDX-License-Identifier: MIT
#include "ShownIcon.h"

#include "pictures/PictureOperations.h"

namespace lumora
{

ShownIcon shownIcon(const QImage &icon, const QList<int> &sides, CornerMode cornerMode)
{
    ShownIcon shown{icon, {}, cornerMode};
    for (const int side : sides)
        shown.pictures << resizeImage(icon, side,
                                      static_cast<int>(shown.pictures.isEmpty() ? CornerMode::None : cornerMode));
    return shown;
}

} // namespace lumora
