// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/ExportFolder.h"
#include "foundation/Result.h"

#include <QString>

namespace lumora
{

class Declaration;

/// The absolute path of a file or folder that was named. Fails with `NotFound` where it is relative and the working
/// folder has been removed, or where its name holds bytes that are no UTF-8 and so cannot be kept.
Result<QString> absolutePath(const QString &given);

/// Where a command writes: `--to DIR` makes a fresh numbered folder in DIR, `--out DIR` writes exactly there, the same
/// tree on every run, and leaves other files alone. Either makes DIR and its parents. Every command that writes takes
/// these two, in these words:
///
///     arguments->place.declareOn(declaration, "CLI_ICONS_TO");
///     ...
///     const Result<ExportFolder> folder = arguments.place.open(u"icons"_s);
///     if (!folder) { console.complain(folder.failure()); return ExitStatus::Refused; }
struct OutputPlace
{
    QString to;
    QString out;

    /// `toKey` explains --to; `others` are further options of which exactly one has to be given ("-o").
    void declareOn(Declaration &declaration, const char *toKey, const QStringList &others = {});

    bool isExact() const { return !out.isEmpty(); }
    /// DIR itself, made where it is missing.
    Result<QString> folder() const;
    /// The folder of this run: a fresh one of that name in --to DIR, or --out DIR. Call it when the input is known to
    /// be good, so that nothing is left of a call that is refused.
    Result<ExportFolder> open(const QString &baseName) const;
};

} // namespace lumora
