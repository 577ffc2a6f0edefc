// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QSize>
#include <QString>

#include <vector>

namespace lumora
{

/// A custom size.
struct ListedSize
{
    QSize points;
    int scale = 1; ///< pixels per point, 1 to 4

    QSize pixels() const { return points * scale; }
    bool operator==(const ListedSize &) const = default;
};

/// The most sizes in a list.
inline constexpr std::size_t mostListedSizes = 500;

/// Reads "1200x600 800x800@2x": sizes in points, separated by white space, commas or semicolons, with edges from 1 to
/// 9999 pixels, without duplicates. Fails with InvalidValue; the subject is the part that is not a size.
Result<std::vector<ListedSize>> sizesFromList(const QString &text);

/// "800x800@2x".
QString sizeText(const ListedSize &size);

} // namespace lumora
