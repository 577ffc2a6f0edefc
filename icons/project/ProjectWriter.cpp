// SPDX-License-Identifier: MIT
#include "ProjectWriter.h"

#include "foundation/PendingFile.h"
#include "foundation/WholeFile.h"
#include "icons/today/Motifs.h"
#include "icons/today/PictureWorkshop.h"
#include "pictures/PictureReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Whether a path below the folder is really in it: every link in the path leads to a place inside the folder, and no
/// folder in the path is a file.
Outcome staysInside(const QString &root, const QString &path)
{
    const QString canonicalRoot = QFileInfo(root).canonicalFilePath();
    QString at = root;
    const QStringList steps = path.split(u'/');
    for (qsizetype step = 0; step < steps.size(); ++step) {
        at += u'/' + steps[step];
        const QFileInfo info(at);
        const bool last = step + 1 == steps.size();
        if (steps[step] == u".." || (info.isSymLink() && !info.exists()))
            return Failure{FailureCode::LeadsOutside, at, {}};
        if (!info.exists())
            return Done{};
        const QString canonical = info.canonicalFilePath();
        if (!canonical.startsWith(canonicalRoot + u'/'))
            return Failure{FailureCode::LeadsOutside, at, canonical};
        if (last && info.isDir())
            return Failure{FailureCode::IsFolder, at, {}};
        if (!last && !info.isDir())
            return Failure{FailureCode::NotAFolder, at, {}};
    }
    return Done{};
}

Result<ProjectFile> compared(const QString &root, const QString &path, const QByteArray &after)
{
    if (const Outcome inside = staysInside(root, path); !inside)
        return inside.failure();
    ProjectFile file{path, FileChange::New, after.size(), {}, after};
    const QString whole = root + u'/' + path;
    if (!QFileInfo::exists(whole))
        return file;
    const Result<QByteArray> before = readWholeFile(whole, largestPictureFile);
    if (!before)
        return before.failure();
    file.change = before.value() == after ? FileChange::Unchanged : FileChange::Replaced;
    if (file.change == FileChange::Replaced)
        file.before = before.value();
    return file;
}

/// Makes the folder and its parents, and adds the paths of the new ones, the outermost first.
bool makeFolders(const QString &path, QStringList &made)
{
    if (QFileInfo(path).isDir())
        return true;
    if (!makeFolders(QFileInfo(path).path(), made) || !QDir().mkdir(path))
        return false;
    made << path;
    return true;
}

/// Writes the files of one run. All contents are written before any file gets its name, so that a full disk does not
/// touch the old files. Files that already have their names can be taken back.
class Writing
{
public:
    explicit Writing(const QString &root) : m_root(root) {}

    /// Writes the content to a file that has no name yet.
    Outcome prepare(const ProjectFile &file)
    {
        const QString whole = m_root + u'/' + file.path;
        Prepared prepared{&file, nullptr};
        if (file.change != FileChange::Removed) {
            if (!makeFolders(QFileInfo(whole).path(), m_folders))
                return Failure{FailureCode::CannotCreateFolder, QFileInfo(whole).path(), {}};
            const QFileInfo info(whole);
            Result<PendingFile> pending =
                PendingFile::begin(QFile::encodeName(info.exists() ? info.canonicalFilePath() : whole));
            if (!pending)
                return about(whole, pending.failure());
            prepared.pending = std::make_unique<PendingFile>(std::move(pending).value());
            if (const Outcome written = prepared.pending->write(file.after); !written)
                return about(whole, written.failure());
        }
        m_prepared.push_back(std::move(prepared));
        return Done{};
    }

    /// Names every prepared file.
    Outcome publish()
    {
        for (const Prepared &prepared : m_prepared) {
            const QString whole = m_root + u'/' + prepared.file->path;
            if (prepared.pending == nullptr && !QFile::remove(whole))
                return Failure{FailureCode::CannotWrite, whole, {}};
            if (prepared.pending != nullptr) {
                if (const Outcome published = prepared.pending->publish(); !published)
                    return about(whole, published.failure());
            }
            ++m_published;
        }
        return Done{};
    }

    /// The failure to report: the first one, and the files that could not be put back.
    Failure takeBack(Failure failure)
    {
        QStringList lost;
        for (std::size_t index = m_published; index-- > 0;) {
            const ProjectFile &file = *m_prepared[index].file;
            const QString whole = m_root + u'/' + file.path;
            const bool back =
                file.change == FileChange::New ? QFile::remove(whole) : writeWholeFile(whole, file.before).ok();
            if (!back)
                lost << file.path;
        }
        m_prepared.clear();
        for (auto folder = m_folders.rbegin(); folder != m_folders.rend(); ++folder)
            QDir().rmdir(*folder);
        if (!lost.isEmpty())
            failure.detail = {"DETAIL_NOT_PUT_BACK",
                              {{"[REASON]", failure.detail.isEmpty() ? QString() : failure.detail.words() + u"; "_s},
                               {"[FILES]", lost.join(u", "_s)}}};
        return failure;
    }

private:
    static Failure about(const QString &path, Failure failure)
    {
        failure.subject = path;
        return failure;
    }

    struct Prepared
    {
        const ProjectFile *file;
        std::unique_ptr<PendingFile> pending; ///< none for a file that is removed
    };

    QString m_root;
    std::vector<Prepared> m_prepared;
    std::size_t m_published = 0;
    QStringList m_folders;
};

} // namespace

Result<QList<ProjectFile>> compareWithProject(const QString &root, const FilePlan &plan, const Motifs &motifs,
                                              const FileProgress &progress)
{
    for (const PlannedFile &file : plan.files) {
        if (const Outcome inside = staysInside(root, file.path); !inside)
            return inside.failure();
    }
    PictureWorkshop workshop(motifs);
    workshop.prepare(recipesOf(plan));
    QList<ProjectFile> files;
    for (const PlannedFile &planned : plan.files) {
        if (progress && !progress(files.size() + 1, plan.files.size(), planned.path))
            return Failure{FailureCode::Stopped, root, {}};
        const Result<QByteArray> bytes = plannedBytes(planned, workshop);
        if (!bytes)
            return bytes.failure();
        const Result<ProjectFile> file = compared(root, planned.path, bytes.value());
        if (!file)
            return file.failure();
        files << file.value();
    }
    for (const QString &path : plan.filesToRemove) {
        Result<ProjectFile> file = compared(root, path, {});
        if (!file)
            return file.failure();
        file.value().change = FileChange::Removed;
        files << file.value();
    }
    return files;
}

Outcome writeIntoProject(const QString &root, const QList<ProjectFile> &files, const FileProgress &progress)
{
    Writing writing(root);
    qsizetype number = 0;
    for (const ProjectFile &file : files) {
        ++number;
        if (file.change == FileChange::Unchanged)
            continue;
        if (progress && !progress(number, files.size(), file.path))
            return writing.takeBack({FailureCode::Stopped, root, {}});
        if (const Outcome prepared = writing.prepare(file); !prepared)
            return writing.takeBack(prepared.failure());
    }
    const Outcome published = writing.publish();
    return published ? published : Outcome(writing.takeBack(published.failure()));
}

} // namespace lumora
