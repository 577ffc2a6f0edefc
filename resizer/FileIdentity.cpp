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
    // Folders that do not exist yet contain no links.
    const QString folder = file.path();
    return (file.fileName().isEmpty() || folder == path ? folder : fileIdentity(folder)) + u'/' + file.fileName();
}

} // namespace lumora
