// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <vector>

namespace lumora
{

/// What a picture file says of itself.
struct ScreenshotFacts
{
    QString path;      ///< relative to the folder that was looked through
    QByteArray format; ///< "png", "jpeg", ...; empty for no picture that is known
    QSize size;        ///< in pixels; empty where it could not be read
    bool hasAlpha = false;
    /// False for four inks and for shades of gray alone.
    bool isRgb = true;
};

/// The most files that are looked at.
inline constexpr std::size_t mostScreenshots = 5000;

/// Reads one file's bytes.
ScreenshotFacts screenshotFacts(const QByteArray &bytes, const QString &path);

/// Reads every picture file in the folder and below, known by its extension, hidden entries and links to folders left
/// out, in the order of their paths. What can't be read has no format.
Result<std::vector<ScreenshotFacts>> readScreenshots(const QString &folder);

} // namespace lumora
