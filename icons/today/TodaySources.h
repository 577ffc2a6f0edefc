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

/// What today's sets are made from. Only the icon is required.
struct TodaySources
{
    Artwork icon;
    Artwork dark;
    Artwork tinted;
    Artwork foreground;    ///< the size of an adaptive icon's layer
    Artwork background;    ///< the same size; takes precedence over the color
    Artwork monochrome;    ///< only its transparency counts
    QList<Artwork> layers; ///< from the back to the front
    std::optional<QColor> backgroundColor;
    std::optional<QColor> flatten; ///< the color behind a transparent icon if a store forbids transparency
};

/// Whether a picture of another size than 1024 x 1024 is accepted.
enum class SourceFit {
    Exact,
    AnySquare, ///< square and at least `smallestFittedSource` pixels wide; scaled once
};

inline constexpr int smallestFittedSource = 512;

/// A source that was read.
struct ReadSource
{
    Artwork artwork;
    QList<Derived> derived; ///< notes on how it was read, such as that it was scaled
};

/// The picture or SVG drawing in these bytes; `name` names them in failures. Fails with `WrongSize` for a picture whose
/// size is not accepted.
Result<ReadSource> readTodaySource(const QByteArray &bytes, const QString &name, SourceFit fit);
Result<ReadSource> readTodaySource(const QString &path, SourceFit fit);

/// The same from a picture that is decoded already.
Result<ReadSource> todaySource(const QImage &picture, const QString &name, SourceFit fit);

} // namespace lumora
