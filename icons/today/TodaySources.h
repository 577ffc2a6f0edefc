// SPDX-License-Identifier: MIT
#pragma once

#include "Artwork.h"
#include "Derivation.h"
#include "foundation/Result.h"

#include <QColor>
#include <QList>
#include <QString>

#include <optional>

namespace lumora
{

/// What today's sets are made from. Only the icon has to be there.
struct TodaySources
{
    Artwork icon;
    Artwork dark;
    Artwork tinted;
    Artwork foreground;    ///< as large as an adaptive icon's layer
    Artwork background;    ///< the same; takes precedence over the color
    Artwork monochrome;    ///< only its transparency counts
    QList<Artwork> layers; ///< from the back to the front
    std::optional<QColor> backgroundColor;
    std::optional<QColor> flatten; ///< what transparency is put on where a store forbids it
};

/// Whether a picture of another size than 1024 x 1024 is taken.
enum class SourceFit {
    Exact,
    AnySquare, ///< square and at least `smallestFittedSource` pixels wide; scaled once
};

inline constexpr int smallestFittedSource = 512;

/// A source as it was read.
struct ReadSource
{
    Artwork artwork;
    QList<Derived> derived; ///< what had to be said of it
};

/// The picture or SVG drawing in these bytes; `name` is what a failure calls them. A picture of a size that is not
/// taken fails with `WrongSize`.
Result<ReadSource> readTodaySource(const QByteArray &bytes, const QString &name, SourceFit fit);
Result<ReadSource> readTodaySource(const QString &path, SourceFit fit);

} // namespace lumora
