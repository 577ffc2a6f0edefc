// SPDX-License-Identifier: MIT
#include "LocalFiles.h"

#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

QStringList localFiles(const QList<QUrl> &urls)
{
    QStringList paths;
    for (QUrl url : urls) {
        if (!url.isLocalFile())
            continue;
        const QString host = url.host();
        if (host == u"localhost"_s || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0)
            url.setHost(QString());
        paths << url.toLocalFile();
    }
    return paths;
}

} // namespace lumora
