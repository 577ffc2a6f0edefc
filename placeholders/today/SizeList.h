// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QSize>
#include <QString>

#include <vector>

namespace lumora
{

/// A size of somebody's own.
struct ListedSize
{
    QSize points;
    int scale = 1; ///< 1 to 4; the picture has so many pixels a point

    QSize pixels() const { return points * scale; }
    bool operator==(const ListedSize &) const = default;
};

/// The most sizes in a list.
inline constexpr std::size_t mostListedSizes = 500;

/// Reads "1200x600 800x800@2x": sizes in points, apart by white space, commas or semicolons, each edge of the picture
/// from 1 to 9999 pixels, each size once. Refused with InvalidValue and the part that is no size as subject.
Result<std::vector<ListedSize>> sizesFromList(const QString &text);

/// "800x800@2x".
QString sizeText(const ListedSize &size);

} // namespace lumora
