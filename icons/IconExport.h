// SPDX-License-Identifier: MIT
#pragma once

#include "IconCatalogue.h"
#include "foundation/ExportFolder.h"
#include "foundation/Result.h"
#include "pictures/RoundedCorners.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace lumora
{

class IconsetPacker;

/// One picture file of an export: its size, or the failure.
struct IconFile
{
    QString path;
    int size = 0;     ///< edge length in pixels
    qint64 bytes = 0; ///< length of the file, 0 if it was not written
    std::optional<Failure> failure;
};

/// The result of an export. A folder or file that could not be made does not stop it: the failure is recorded, and the
/// export continues.
struct IconExport
{
    ExportFolder folder;
    std::optional<Failure> folderFailure; ///< the export folder could not be made
    QList<IconFile> files;                ///< every file of every chosen platform, in order
    QString icns;                         ///< the Mac icon file, empty if none was made
    std::optional<Failure> icnsFailure;
    bool isStopped = false; ///< the run was stopped: only the files that were begun are listed

    /// All failures, in the order of events.
    QList<Failure> failures() const;
};

/// The progress of an export: file number `file`, counted from 1, of `count` is about to be written at `path`. The
/// count changes when platforms are chosen or dropped while the export runs.
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
    std::optional<ExportFolder> folder;    ///< an existing folder to write into instead of a new one
    PlatformChoice isChosen;               ///< none chooses nothing
    QList<IconPlatform> expected;          ///< platforms that will probably be chosen: their pictures are begun early
    IconProgressReport progress;           ///< may be empty
    const IconsetPacker *packer = nullptr; ///< null means the system's
    std::function<bool()> isStopped;       ///< called before each file; an empty one never stops
};

/// Writes the sets of all chosen platforms into a new folder "icons". Blocks until done, works on all cores, logs each
/// step; callable on any thread.
IconExport generatePlatformIcons(const PlatformIconsRequest &request);

struct CustomIconRequest
{
    QImage icon;
    QString savePath;
    int customIconSize = 0; ///< edge length in pixels, 1 to 1024
    CornerMode cornerMode = CornerMode::None;
};

/// One icon as a PNG file; its size and corners as in `CustomIconRequest`. `name` is the subject of a failure.
Result<QByteArray> customIconFile(const QImage &icon, int customIconSize, CornerMode cornerMode, const QString &name);

/// Writes that file to `path`.
IconFile writeCustomIcon(const QImage &icon, int customIconSize, CornerMode cornerMode, const QString &path);

/// Writes one icon of a custom size into the folder "Custom" of a new folder "icons". If that folder cannot be made,
/// the file's failure is `CannotCreateFolder`.
IconExport generateCustomIcon(const CustomIconRequest &request);

} // namespace lumora
