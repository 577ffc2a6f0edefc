// SPDX-License-Identifier: MIT
#include "WorkFolder.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <cerrno>

#include <fcntl.h>
#include <pthread.h>
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
    // A package may unpack to gigabytes, and /tmp is in memory on many systems.
    return QFileInfo(u"/var/tmp"_s).isWritable() ? u"/var/tmp"_s : u"/tmp"_s;
}

/// The folder's descriptor with an exclusive lock on it; invalid when it is no folder of this user's or in use.
FileDescriptor lockedFolder(const QString &path)
{
    FileDescriptor folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status = {};
    if (!folder.valid() || ::fstat(folder.number(), &status) != 0 || status.st_uid != ::geteuid() ||
        ::flock(folder.number(), LOCK_EX | LOCK_NB) != 0)
        return {};
    return folder;
}

/// False when the folder was removed between its making and its locking.
bool stillThere(const FileDescriptor &folder)
{
    struct stat status = {};
    return ::fstat(folder.number(), &status) == 0 && status.st_nlink > 0;
}

/// Where programs that are started begin, -1 for where the process is. Forked children read it before anything else
/// runs in them, so it is no more than a number.
std::atomic<int> childrensFolder{-1};

void enterChildrensFolder()
{
    // A child that cannot go there stays; there is nobody to tell.
    const int folder = childrensFolder;
    if (folder >= 0)
        std::ignore = ::fchdir(folder);
}

void letChildrenBeginIn(const FileDescriptor &folder)
{
    static const int registered = ::pthread_atfork(nullptr, nullptr, enterChildrensFolder);
    if (registered == 0)
        childrensFolder = folder.number();
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

Result<std::unique_ptr<WorkFolder>> WorkFolder::makeCurrent()
{
    const QString before = QDir::currentPath();
    FileDescriptor start(::open(".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    auto folder = make();
    if (!folder)
        return folder;
    if (!QDir::setCurrent(folder.value()->path()))
        return Failure{FailureCode::CannotCreateFolder, folder.value()->path(), qt_error_string(errno)};
    folder.value()->m_before = before;
    folder.value()->m_start = std::move(start);
    letChildrenBeginIn(folder.value()->m_start);
    return folder;
}

WorkFolder::~WorkFolder()
{
    if (m_start.valid())
        childrensFolder = -1;
    // A process must not be left in a folder that is gone. The one it came from may be gone by now, too.
    if (QDir::currentPath() == QDir(m_path).canonicalPath() && (m_before.isEmpty() || !QDir::setCurrent(m_before)))
        QDir::setCurrent(u"/"_s);
    QDir(m_path).removeRecursively();
}

} // namespace lumora
