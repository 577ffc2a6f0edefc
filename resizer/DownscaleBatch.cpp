// SPDX-License-Identifier: MIT
#include "DownscaleBatch.h"

#include "FileIdentity.h"
#include "MemoryBudget.h"
#include "RetinaName.h"
#include "RetinaPicture.h"
#include "foundation/ExportFolder.h"
#include "foundation/MemoryLimit.h"
#include "foundation/ThreadGroup.h"
#include "foundation/WholeFile.h"
#include "pictures/PictureReader.h"

#include <QFileInfo>
#include <QHash>
#include <QThread>

#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <vector>

namespace lumora
{

namespace
{

/// The memory that all pictures in work may take together.
constexpr qint64 memoryForPictures = 768LL * 1024 * 1024;

/// How far the workers may be ahead of the writing, in files and in bytes of finished ones: enough that no worker waits
/// while another has a large picture.
constexpr qsizetype filesAhead = 256;
constexpr qint64 bytesAhead = 64LL * 1024 * 1024;

Result<QByteArray> readSource(const QString &path)
{
    const QFileInfo file(path);
    // A pipe without a writer would block the whole batch.
    if (file.exists() && !file.isFile() && !file.isDir())
        return Failure{FailureCode::NotReadable, path, "DETAIL_NO_REGULAR_FILE"};
    return readWholeFile(path, largestPictureFile);
}

Result<HalvedPicture> halve(const Result<QByteArray> &bytes, const QString &path, MemoryBudget &budget)
{
    if (!bytes)
        return bytes.failure();
    const Result<QSize> stored = storedPixelSize(bytes.value(), path);
    if (!stored)
        return stored.failure();
    const Result<QSize> half = halvedSize(stored.value(), path);
    if (!half)
        return half.failure();
    const MemoryBudget::Share share(budget, halvingMemory(stored.value()));
    return withinMemory(path, [&] { return halvedPicture(bytes.value(), path); });
}

enum class MissingFolders { Refuse, Make };

/// The running batch: workers halve pictures, the calling thread writes them in order.
class Batch
{
public:
    Batch(const QList<DownscaleJob> &jobs, MissingFolders missing, const BatchSource &source = {})
        : m_jobs(jobs), m_missingFolders(missing), m_read(source.read ? source.read : readSource), m_stop(source.stop)
    {
        findDependencies();
    }

    void run(const FileDownscaled &downscaled)
    {
        const auto workers = std::min<qsizetype>(std::max(QThread::idealThreadCount(), 1), m_jobs.size());
        ThreadGroup threads;
        threads.start(static_cast<std::size_t>(workers), [this] {
            while (workOnNext()) {
            }
        });
        for (qsizetype index = 0; index < m_jobs.size(); ++index) {
            if (threads.isEmpty())
                workOnNext();
            const std::optional<Result<HalvedPicture>> picture = take(index);
            if (!picture || !downscaled(index, write(index, *picture)))
                break;
        }
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        m_mayRead.notify_all();
    }

private:
    /// For each file, the number of files that must be written before it may be read.
    void findDependencies()
    {
        QHash<QString, qsizetype> writtenBy;
        m_readableAfter.reserve(static_cast<std::size_t>(m_jobs.size()));
        for (qsizetype index = 0; index < m_jobs.size(); ++index) {
            const DownscaleJob &job = m_jobs.at(index);
            m_readableAfter.push_back(writtenBy.value(fileIdentity(job.source), -1) + 1);
            writtenBy.insert(fileIdentity(job.target), index);
        }
    }

    /// Halves the next picture; returns whether there was one to halve.
    bool workOnNext()
    {
        std::unique_lock lock(m_mutex);
        const qsizetype index = m_next++;
        if (index >= m_jobs.size())
            return false;
        m_mayRead.wait(lock, [this, index] { return m_stopped || mayRead(index); });
        if (m_stopped)
            return false;
        lock.unlock();
        std::optional<Result<HalvedPicture>> picture = readAndHalve(m_jobs.at(index).source);
        lock.lock();
        m_bytesWaiting += bytesOf(picture);
        m_halved.emplace(index, std::move(picture));
        m_finished.notify_one();
        return true;
    }

    /// Empty if the batch was stopped and the file does not answer.
    std::optional<Result<HalvedPicture>> readAndHalve(const QString &path)
    {
        const std::optional<Result<QByteArray>> bytes = readUnlessStopped(m_read, path, m_stop);
        if (!bytes)
            return std::nullopt;
        return halve(*bytes, path, m_budget);
    }

    bool mayRead(qsizetype index) const
    {
        // The file that the writer waits for is never held back, or the batch would stop.
        const bool near = index < m_written + filesAhead && m_bytesWaiting < bytesAhead;
        return (near || index == m_written) && m_written >= m_readableAfter[static_cast<std::size_t>(index)];
    }

    static qint64 bytesOf(const std::optional<Result<HalvedPicture>> &picture)
    {
        return picture && *picture ? picture->value().png.size() : 0;
    }

    std::optional<Result<HalvedPicture>> take(qsizetype index)
    {
        std::unique_lock lock(m_mutex);
        m_finished.wait(lock, [this, index] { return m_halved.contains(index); });
        std::optional<Result<HalvedPicture>> picture = std::move(m_halved.at(index));
        m_halved.erase(index);
        m_bytesWaiting -= bytesOf(picture);
        return picture;
    }

    DownscaledFile write(qsizetype index, const Result<HalvedPicture> &picture)
    {
        const DownscaleJob &job = m_jobs.at(index);
        DownscaledFile file{job.source, job.target, {}, 0, Done{}};
        if (picture) {
            file.size = picture.value().size;
            file.bytes = picture.value().png.size();
            file.outcome = writeHalf(file.target, picture.value().png);
        } else {
            file.outcome = picture.failure();
        }
        const std::lock_guard lock(m_mutex);
        m_written = index + 1;
        m_mayRead.notify_all();
        return file;
    }

    Outcome writeHalf(const QString &path, const QByteArray &png) const
    {
        if (m_missingFolders == MissingFolders::Make) {
            const QString folder = QFileInfo(path).path();
            Outcome made = createFolderWithParents(folder);
            if (!made)
                return made;
        }
        return writeWholeFile(path, png);
    }

    const QList<DownscaleJob> m_jobs;
    const MissingFolders m_missingFolders;
    const ReadSource m_read;
    const std::stop_token m_stop;
    std::vector<qsizetype> m_readableAfter;
    MemoryBudget m_budget{memoryForPictures};

    std::mutex m_mutex;                 ///< guards everything below
    std::condition_variable m_finished; ///< a picture is halved
    std::condition_variable m_mayRead;  ///< a file is written, or the batch must stop
    std::map<qsizetype, std::optional<Result<HalvedPicture>>> m_halved;
    qint64 m_bytesWaiting = 0; ///< of `m_halved`
    qsizetype m_next = 0;
    qsizetype m_written = 0;
    bool m_stopped = false;
};

} // namespace

QString downscaledPath(const QString &source, const QString &destination)
{
    return destination + u'/' + singleResolutionName(source);
}

DownscaledFile foreseenHalf(const DownscaleJob &job)
{
    const QString &source = job.source;
    DownscaledFile file{source, job.target, {}, 0, Done{}};
    const Result<QByteArray> bytes = readSource(source);
    const Result<QSize> stored = bytes ? storedPixelSize(bytes.value(), source) : bytes.failure();
    const Result<QSize> half = stored ? halvedSize(stored.value(), source) : stored;
    if (half)
        file.size = half.value();
    else
        file.outcome = half.failure();
    return file;
}

void createImagesFromDataPaths(const QStringList &paths, const QString &destination, const FileDownscaled &downscaled,
                               const BatchSource &source)
{
    if (paths.isEmpty())
        return;
    QList<DownscaleJob> jobs;
    for (const QString &path : paths)
        jobs.append({path, downscaledPath(path, destination)});
    Batch(jobs, MissingFolders::Refuse, source).run(downscaled);
}

void downscale(const QList<DownscaleJob> &jobs, const FileDownscaled &downscaled)
{
    if (!jobs.isEmpty())
        Batch(jobs, MissingFolders::Make).run(downscaled);
}

} // namespace lumora
