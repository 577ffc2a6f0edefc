// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace lumora
{

/// The longest drawing that is read, in bytes.
inline constexpr qint64 largestSvgFile = 4LL * 1024 * 1024;

/// The most elements a drawing may come to once every "use" is followed.
inline constexpr int mostSvgElements = 20'000;

/// What a drawing asks for that is not done.
struct SvgInspection
{
    /// Names of elements and attributes that leave the drawing as if they were not there ("filter", "mask").
    QStringList notDrawn;
};

/// Reads a drawing's markup without drawing it. Refuses (`NotReadable`, `TooLarge`; `detail` says what) a file that is
/// no SVG, one that names anything outside of itself, holds scripts, text, animations or entities, or would come to
/// more than `mostSvgElements`, however few it writes down.
Result<SvgInspection> inspectSvg(const QByteArray &bytes, const QString &name);

/// Whether the bytes begin as markup does, so that they may be meant as a drawing.
bool beginsAsSvg(const QByteArray &bytes);

} // namespace lumora
