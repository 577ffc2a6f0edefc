// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/ExportFolder.h"
#include "foundation/Result.h"

#include <QString>

namespace lumora
{

class Declaration;

/// The absolute path of a given file or folder. Fails with `NotFound` if it is relative and the working folder has been
/// removed, or if its name has bytes that are not UTF-8.
Result<QString> absolutePath(const QString &given);

/// The destination of a command: `--to DIR` makes a new numbered folder in DIR; `--out DIR` writes exactly there, the
/// same tree on every run, and keeps other files. Both make DIR and its parents. Every command that writes takes these
/// two, as follows:
///
///     arguments->place.declareOn(declaration, "CLI_ICONS_TO");
///     ...
///     const Result<ExportFolder> folder = arguments.place.open(u"icons"_s);
///     if (!folder) { console.complain(folder.failure()); return ExitStatus::Refused; }
struct OutputPlace
{
    QString to;
    QString out;

    /// `toKey` explains --to; exactly one of --to, --out and the options in `others` ("-o") must be given.
    void declareOn(Declaration &declaration, const char *toKey, const QStringList &others = {});
    /// The same if one of `others` needs no place: each may be given with --to or --out or alone.
    void declareBeside(Declaration &declaration, const char *toKey, const QStringList &others);

    bool isExact() const { return !out.isEmpty(); }
    /// DIR itself, made if it is missing.
    Result<QString> folder() const;
    /// The folder of this run: a new one of that name in --to DIR, or --out DIR. Call it after checking the input, so
    /// that a refused call leaves nothing behind.
    Result<ExportFolder> open(const QString &baseName) const;

private:
    void declareOptions(Declaration &declaration, const char *toKey);
};

} // namespace lumora
