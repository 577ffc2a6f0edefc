// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace lumora
{

/// The keys of the texts that count what a job has written.
struct CountedThings
{
    const char *one;     ///< "1 icon in [FOLDER]"
    const char *several; ///< "[COUNT] icons in [FOLDER]"
    const char *partly;  ///< "[DONE] of [COUNT] icons in [FOLDER]"
};

inline constexpr CountedThings countedIcons{"RESULT_ONE_ICON", "RESULT_ICONS", "RESULT_ICONS_PARTLY"};
inline constexpr CountedThings countedFiles{"RESULT_ONE_FILE", "RESULT_FILES", "RESULT_FILES_PARTLY"};
inline constexpr CountedThings countedPictures{"RESULT_ONE_PICTURE", "RESULT_PICTURES", "RESULT_PICTURES_PARTLY"};

/// The result of a job, as texts for the user.
struct JobResult
{
    QString summary;        ///< "51 icons in out/icons_1"
    QString folder;         ///< absolute path of the written files; empty if nothing was written
    QStringList failures;   ///< a line for each reason
    QStringList notes = {}; ///< what else is to be said, a line each

    bool isEmpty() const { return summary.isEmpty(); }
    bool operator==(const JobResult &) const = default;
};

/// The result of a job that wanted to write `wanted` files to the folder and has written `written` of them.
JobResult jobResult(const CountedThings &things, qsizetype written, qsizetype wanted, const QString &folder,
                    const std::vector<Failure> &failures);

/// The last two components of a folder's path.
QString shortFolder(const QString &folder);

} // namespace lumora
