// SPDX-License-Identifier: MIT
#include "FolderSource.h"

#include "EntryName.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

/// True for the folder itself and everything in it; every path is in "".
bool liesIn(const QString &path, const QString &folder)
{
    return folder.isEmpty() || path == folder || path.startsWith(folder + u'/');
}

/// The path with its folder replaced by another.
QString moved(const QString &path, const QString &from, const QString &to)
{
    const QString rest = from.isEmpty() ? path : path.sliced(std::min(from.size() + 1, path.size()));
    if (to.isEmpty() || rest.isEmpty())
        return to + rest;
    return to + u'/' + rest;
}

QString linkTarget(int folder, const char *name)
{
    QByteArray target(longestEntryPath, '\0');
    const ssize_t length = ::readlinkat(folder, name, target.data(), static_cast<std::size_t>(target.size()));
    return length < 0 ? QString() : QString::fromUtf8(target.first(length));
}

/// Reads an open file.
class FileStream final : public EntryStream
{
public:
    explicit FileStream(FileDescriptor file) : m_file(std::move(file)) {}

    Result<qsizetype> read(char *buffer, qsizetype size) override
    {
        const auto count = readAt(m_file, m_position, std::span(buffer, static_cast<std::size_t>(size)));
        if (!count)
            return count.failure();
        m_position += count.value();
        return static_cast<qsizetype>(count.value());
    }

private:
    FileDescriptor m_file;
    std::uint64_t m_position = 0;
};

/// Reads a link's target.
class TextStream final : public EntryStream
{
public:
    explicit TextStream(QByteArray text) : m_text(std::move(text)) {}

    Result<qsizetype> read(char *buffer, qsizetype size) override
    {
        const qsizetype count = std::min(size, m_text.size());
        std::copy_n(m_text.constData(), count, buffer);
        m_text.remove(0, count);
        return count;
    }

private:
    QByteArray m_text;
};

} // namespace

FolderSource::FolderSource(QString path, FolderLayout layout, const ExtractionLimits &limits, FileDescriptor root)
    : PackageSource(std::move(path), limits), m_root(std::move(root))
{
    if (layout == FolderLayout::App)
        m_payload =
            u"Payload/"_s + QFileInfo(QDir::cleanPath(QFileInfo(PackageSource::path()).absoluteFilePath())).fileName();
    if (layout == FolderLayout::XcodeArchive) {
        m_onDisk = u"Products/Applications"_s;
        m_payload = u"Payload"_s;
    }
}

Result<std::unique_ptr<PackageSource>> FolderSource::open(const QString &path, FolderLayout layout,
                                                          const ExtractionLimits &limits)
{
    FileDescriptor root(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root.valid()) {
        if (errno == ENOENT)
            return Failure{FailureCode::NotFound, path, {}};
        return systemFailure(errno == EACCES ? FailureCode::NoPermission : FailureCode::NotAFolder, path);
    }
    // Not std::make_unique, since the constructor is private.
    std::unique_ptr<FolderSource> source(new FolderSource(path, layout, limits, std::move(root)));
    source->listAll();
    return std::unique_ptr<PackageSource>(std::move(source));
}

void FolderSource::listAll()
{
    QList<PackageEntry> entries;
    FileDescriptor root(::openat(m_root.number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!list(std::move(root), {}, 0, entries))
        setFailure(
            {FailureCode::TooLarge, path(), {"DETAIL_MORE_FILES", {{"[COUNT]", QString::number(limits().entries)}}}});
    setEntries(std::move(entries));
}

bool FolderSource::list(FileDescriptor folder, const QString &relative, qsizetype depth, QList<PackageEntry> &entries)
{
    if (!folder.valid() || depth > deepestEntryPath)
        return true;
    const std::unique_ptr<DIR, CloseFolder> open(::fdopendir(folder.number()));
    if (!open)
        return true;
    const int number = folder.release();
    while (const dirent *found = ::readdir(open.get())) {
        const QString name = QString::fromUtf8(found->d_name);
        struct stat status = {};
        if (name == u"." || name == u".." || ::fstatat(number, found->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        if (static_cast<std::uint64_t>(entries.size()) >= limits().entries)
            return false;
        PackageEntry entry;
        const QString path = relative.isEmpty() ? name : QString(relative + u'/' + name);
        entry.path = shown(path);
        entry.mode = status.st_mode & 07777;
        entry.number = entries.size();
        if (S_ISDIR(status.st_mode)) {
            entry.kind = EntryKind::Folder;
            entries += entry;
            FileDescriptor next(::openat(number, found->d_name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
            if (!list(std::move(next), path, depth + 1, entries))
                return false;
        } else if (S_ISLNK(status.st_mode) || S_ISREG(status.st_mode)) {
            if (S_ISLNK(status.st_mode)) {
                entry.kind = EntryKind::Link;
                entry.linkTarget = linkTarget(number, found->d_name);
            }
            entry.size = entry.packedSize = static_cast<std::uint64_t>(status.st_size);
            entries += entry;
        }
    }
    return true;
}

QString FolderSource::shown(const QString &relative) const
{
    return liesIn(relative, m_onDisk) ? moved(relative, m_onDisk, m_payload) : relative;
}

QString FolderSource::relative(const QString &shown) const
{
    return liesIn(shown, m_payload) ? moved(shown, m_payload, m_onDisk) : shown;
}

Result<std::unique_ptr<EntryStream>> FolderSource::open(const PackageEntry &entry) const
{
    if (entry.kind == EntryKind::Folder)
        return Failure{FailureCode::IsFolder, entry.path, {}};
    const QList<QByteArray> steps = QFile::encodeName(relative(entry.path)).split('/');
    FileDescriptor folder;
    for (const QByteArray &step : steps.first(steps.size() - 1)) {
        const int parent = folder.valid() ? folder.number() : m_root.number();
        folder = FileDescriptor(::openat(parent, step.constData(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!folder.valid())
            return systemFailure(FailureCode::NotReadable, entry.path);
    }
    const int parent = folder.valid() ? folder.number() : m_root.number();
    if (entry.kind == EntryKind::Link)
        return std::unique_ptr<EntryStream>(
            std::make_unique<TextStream>(linkTarget(parent, steps.last().constData()).toUtf8()));
    // Must not block if the file has become a pipe since it was listed.
    FileDescriptor file(::openat(parent, steps.last().constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!file.valid() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return systemFailure(FailureCode::NotReadable, entry.path);
    return std::unique_ptr<EntryStream>(std::make_unique<FileStream>(std::move(file)));
}

QString FolderSource::pathOnDisk(const PackageEntry &entry) const
{
    return path() + u'/' + relative(entry.path);
}

} // namespace lumora
