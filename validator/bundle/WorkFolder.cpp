// SPDX-License-Identifier: MIT
#include "WorkFolder.h"

#include <QDir>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString prefix = u"lumora-work-"_s;

QString defaultParent()
{
    const QString chosen = qEnvironmentVariable("TMPDIR");
    if (!chosen.isEmpty())
        return chosen;
    // A package may unpack to gigabytes, and on many systems /tmp is in memory.
    return QFileInfo(u"/var/tmp"_s).isWritable() ? u"/var/tmp"_s : u"/tmp"_s;
}

/// The folder's descriptor with an exclusive lock; invalid when it is not this user's folder or is in use.
FileDescriptor lockedFolder(const QString &path)
{
    FileDescriptor folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status = {};
    if (!folder.valid() || ::fstat(folder.number(), &status) != 0 || status.st_uid != ::geteuid() ||
        ::flock(folder.number(), LOCK_EX | LOCK_NB) != 0)
        return {};
    return folder;
}

/// False when the folder was removed after it was made and before it was locked.
bool stillThere(const FileDescriptor &folder)
{
    struct stat status = {};
    return ::fstat(folder.number(), &status) == 0 && status.st_nlink > 0;
}

void removeLeftBehind(const QString &parent)
{
    const QStringList names = QDir(parent).entryList({prefix + u'*'}, QDir::Dirs | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QString path = parent + u'/' + name;
        if (lockedFolder(path).valid())
            QDir(path).removeRecursively();
    }
}

} // namespace

Result<std::unique_ptr<WorkFolder>> WorkFolder::make()
{
    return make(defaultParent());
}

Result<std::unique_ptr<WorkFolder>> WorkFolder::make(const QString &parent)
{
    removeLeftBehind(parent);
    constexpr int attempts = 5;
    int error = 0;
    for (int i = 0; i < attempts; ++i) {
        QByteArray path = QFile::encodeName(QDir(parent).absoluteFilePath(prefix + u"XXXXXX"));
        if (::mkdtemp(path.data()) == nullptr) {
            error = errno;
            break;
        }
        const QString made = QFile::decodeName(path);
        FileDescriptor lock = lockedFolder(made);
        if (lock.valid() && stillThere(lock))
            return std::unique_ptr<WorkFolder>(new WorkFolder(made, std::move(lock)));
    }
    return Failure{FailureCode::CannotCreateFolder, parent, error == 0 ? QString() : qt_error_string(error)};
}

WorkFolder::~WorkFolder()
{
    QDir(m_path).removeRecursively();
}

} // namespace lumora
