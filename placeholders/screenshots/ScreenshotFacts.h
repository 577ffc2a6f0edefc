// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "foundation/StoppableRead.h"
#include "foundation/WholeFile.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>

#include <stop_token>
#include <vector>

namespace lumora
{

/// The facts of a picture file.
struct ScreenshotFacts
{
    QString path;      ///< relative to the searched folder
    QByteArray format; ///< "png", "jpeg", ...; empty for an unknown format
    QSize size;        ///< in pixels; empty if it could not be read
    bool hasAlpha = false;
    /// False for four inks and for shades of gray only.
    bool isRgb = true;
    bool hasPalette = false;
    bool isDeep = false; ///< 16 bits a channel
};

/// The most files that are read.
inline constexpr std::size_t mostScreenshots = 5000;

/// Reads one file's bytes.
ScreenshotFacts screenshotFacts(const QByteArray &bytes, const QString &path);

/// Reads all picture files in the folder and below, known by their extension and sorted by path. Skips hidden entries
/// and links to folders. A file that cannot be read has no format.
Result<std::vector<ScreenshotFacts>> readScreenshots(const QString &folder);

/// The same for folders and files; a file is known by its folder's name and its own. If it is stopped, the rest is left
/// out.
Result<std::vector<ScreenshotFacts>> readScreenshots(const QStringList &dropped, const std::stop_token &stop = {},
                                                     const ReadFile &read = readWholeFile);

} // namespace lumora
