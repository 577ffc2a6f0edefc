// SPDX-License-Identifier: MIT
#include "FileIdentity.h"

#include <QFileInfo>

namespace lumora
{

QString fileIdentity(const QString &path)
{
    const QFileInfo file(path);
    const QString canonical = file.canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    return QFileInfo(file.path()).canonicalFilePath() + u'/' + file.fileName();
}

} // namespace lumora
