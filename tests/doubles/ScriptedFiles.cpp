// SPDX-License-Identifier: MIT
#include "ScriptedFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

bool runScript(const QString &name, const QStringList &arguments)
{
    QProcess python;
    python.setProcessChannelMode(QProcess::ForwardedChannels);
    python.start(u"python3"_s,
                 QStringList{u"-B"_s, QStringLiteral(LUMORA_SOURCE_DIR "/tests/validator/") + name} + arguments);
    return python.waitForFinished(120'000 * std::max(qEnvironmentVariableIntValue("LUMORA_TIME_FACTOR"), 1)) &&
           python.exitStatus() == QProcess::NormalExit && python.exitCode() == 0;
}

QMap<QString, QString> treeBelow(const QString &folder)
{
    QMap<QString, QString> tree;
    QDirIterator walk(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QFileInfo info = walk.nextFileInfo();
        const QString path = QDir(folder).relativeFilePath(info.filePath());
        if (info.isSymLink()) {
            tree[path] = u"-> "_s + info.symLinkTarget();
        } else if (info.isDir()) {
            tree[path] = u"/"_s;
        } else if (info.size() > 100) {
            tree[path] = u"%1 bytes"_s.arg(info.size());
        } else {
            QFile file(info.filePath());
            tree[path] = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : u"unreadable"_s;
        }
    }
    return tree;
}
