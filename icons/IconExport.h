// SPDX-License-Identifier: MIT
#pragma once

#include "IconCatalogue.h"
#include "foundation/ExportFolder.h"
#include "foundation/Result.h"

#include <QImage>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace lumora
{

class IconsetPacker;

/// One picture file of an export: written, or why not.
struct IconFile
{
    QString path;
    int size = 0;     ///< edge length in pixels
    qint64 bytes = 0; ///< length of the file, 0 where it was not written
    std::optional<Failure> failure;
};

/// What an export did. Nothing here stops it: a folder or file that could not be made is recorded and the rest follows.
struct IconExport
{
    ExportFolder folder;
    std::optional<Failure> folderFailure; ///< the export folder could not be made
    QList<IconFile> files;                ///< every file of every chosen platform, in order
    QString icns;                         ///< the Mac icon file, empty where none was made
    std::optional<Failure> icnsFailure;
    bool isStopped = false; ///< the run was stopped: what is listed is all that was begun

    /// Every failure, in the order of events.
    QList<Failure> failures() const;
};

/// How far an export is: file number `file`, counted from 1, of `count` is about to be written at `path`. The count
/// follows when platforms are chosen or dropped while the export runs.
struct IconProgress
{
    int file = 0;
    int count = 0;
    QString path;
};

/// Called for each platform, in order, just before it would be exported; returns whether it is.
using PlatformChoice = std::function<bool(const PlatformIcons &)>;
/// Called for each picture file, in order, on the thread that exports.
using IconProgressReport = std::function<void(const IconProgress &)>;

struct PlatformIconsRequest
{
    QImage icon;
    QString savePath;                      ///< the folder in which the export folder is made
    std::optional<ExportFolder> folder;    ///< one that is there, to be written into in place of a fresh one
    PlatformChoice isChosen;               ///< none chooses nothing
    QList<IconPlatform> expected;          ///< platforms likely to be chosen: their pictures are begun ahead
    IconProgressReport progress;           ///< may be empty
    const IconsetPacker *packer = nullptr; ///< none means the system's
    std::function<bool()> isStopped;       ///< asked before each file; none never stops
};

/// Writes the sets of all chosen platforms into a fresh folder "icons". Blocks until done; works on all cores; callable
/// on any thread. Writes the log lines of each step.
IconExport generatePlatformIcons(const PlatformIconsRequest &request);

struct CustomIconRequest
{
    QImage icon;
    QString savePath;
    int customIconSize = 0; ///< edge length in pixels, 1 to 1024
    int cornerMode = 0;     ///< see `CornerMode`
};

/// Writes one icon to `path`; its size and corners as in `CustomIconRequest`.
IconFile writeCustomIcon(const QImage &icon, int customIconSize, int cornerMode, const QString &path);

/// Writes one icon of a custom size into the folder "Custom" of a fresh folder "icons". Where that folder cannot be
/// made the file's failure tells so (`CannotCreateFolder`).
IconExport generateCustomIcon(const CustomIconRequest &request);

} // namespace lumora
