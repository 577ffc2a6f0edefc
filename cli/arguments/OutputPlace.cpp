// SPDX-License-Identifier: MIT
#include "OutputPlace.h"

#include "Declaration.h"
#include "cli/console/CommandText.h"

#include <QDir>
#include <QFileInfo>

#include <array>

#include <climits>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

bool isWorkingFolderThere()
{
    std::array<char, PATH_MAX> path = {};
    return ::getcwd(path.data(), path.size()) != nullptr;
}

} // namespace

Result<QString> absolutePath(const QString &given)
{
    if (QDir::isRelativePath(given) && !isWorkingFolderThere())
        return Failure{FailureCode::NotFound, given, commandText("CLI_NO_WORKING_FOLDER")};
    const QFileInfo info(given);
    if (given.contains(QChar::ReplacementCharacter) && !info.exists())
        return Failure{FailureCode::NotFound, given, {}};
    return QDir::cleanPath(info.absoluteFilePath());
}

void OutputPlace::declareOptions(Declaration &declaration, const char *toKey)
{
    declaration.option("--to", &to, "DIR", toKey).in(ArgumentGroup::Output);
    declaration.option("--out", &out, "DIR", "CLI_OUT").in(ArgumentGroup::Output);
}

void OutputPlace::declareBeside(Declaration &declaration, const char *toKey, const QStringList &others)
{
    declareOptions(declaration, toKey);
    declaration.atMostOne({u"--to"_s, u"--out"_s});
    declaration.atLeastOne(QStringList{u"--to"_s, u"--out"_s} + others);
}

void OutputPlace::declareOn(Declaration &declaration, const char *toKey, const QStringList &others)
{
    declareOptions(declaration, toKey);
    declaration.exactlyOne(QStringList{u"--to"_s, u"--out"_s} + others);
}

Result<QString> OutputPlace::folder() const
{
    const QString &given = isExact() ? out : to;
    const Result<QString> path = absolutePath(given);
    if (!path)
        return path.failure();
    const QFileInfo info(path.value());
    if (info.exists() && !info.isDir())
        return Failure{FailureCode::NotAFolder, given, {}};
    const Outcome made = createFolderWithParents(path.value());
    if (!made)
        return Failure{made.failure().code, given, made.failure().detail};
    return path;
}

Result<ExportFolder> OutputPlace::open(const QString &baseName) const
{
    const Result<QString> path = folder();
    if (!path)
        return path.failure();
    if (isExact())
        return ExportFolder{path.value(), false};
    return makeExportFolder(path.value(), baseName);
}

} // namespace lumora
