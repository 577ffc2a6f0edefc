// SPDX-License-Identifier: MIT
#include "ExistingFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace lumora
{

Result<QString> existingFolder(const std::string &argument)
{
    const QString given = QFile::decodeName(argument.c_str());
    const QFileInfo info(given);
    if (given.isEmpty() || !info.exists())
        return Failure{FailureCode::NotFound, given.isEmpty() ? QStringLiteral("--to") : given, {}};
    if (!info.isDir())
        return Failure{FailureCode::NotAFolder, given, {}};
    return QDir(given).absolutePath();
}

} // namespace lumora
