// SPDX-License-Identifier: MIT
#include "FileReading.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace lumora
{

/// The state that a reading thread shares with the FileReading. It outlives the FileReading if the file does not
/// answer.
struct FileReading::Task
{
    QString path;
    qint64 limit = 0;
    Work work;
    std::shared_ptr<const FileReader> reader;

    std::mutex mutex; ///< guards everything below
    std::condition_variable changed;
    bool isAbandoned = false;
    bool isWorking = false;
    bool isFinished = false;

    void abandon()
    {
        const std::lock_guard lock(mutex);
        isAbandoned = true;
    }
    /// Returns false if the task was abandoned.
    bool beginWork()
    {
        const std::lock_guard lock(mutex);
        isWorking = !isAbandoned;
        isFinished = isAbandoned;
        return isWorking;
    }
    /// Posts the result unless the task was abandoned. The FileReading is not destroyed while the lock is held.
    template <typename Post> void end(Post post)
    {
        const std::lock_guard lock(mutex);
        if (!isAbandoned)
            post();
        isWorking = false;
        isFinished = true;
        changed.notify_all();
    }
    void waitForWork()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return !isWorking; });
    }
};

FileReading::FileReading(std::shared_ptr<const FileReader> reader, QObject *parent)
    : QObject(parent), m_reader(std::move(reader))
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, &FileReading::slow);
}

FileReading::~FileReading()
{
    for (const std::shared_ptr<Task> &task : m_tasks) {
        task->abandon();
        task->waitForWork();
    }
}

QString FileReading::path() const
{
    return m_current ? m_current->path : QString();
}

void FileReading::read(const QString &path, qint64 limit, Work work)
{
    if (m_current)
        m_current->abandon();
    m_current = std::make_shared<Task>();
    m_current->path = path;
    m_current->limit = limit;
    m_current->work = std::move(work);
    m_current->reader = m_reader;
    if (m_reader->mayStall())
        begin(m_current);
    else
        finish(m_current, m_current->work(m_reader->read(path, limit)));
}

void FileReading::begin(const std::shared_ptr<Task> &task)
{
    forgetFinished();
    m_tasks.push_back(task);
    m_patience.start();
    // Detached, because no call can end a read of a share that does not answer.
    std::thread([this, task] {
        const Result<QByteArray> bytes = task->reader->read(task->path, task->limit);
        if (!task->beginWork())
            return;
        const Conclusion conclusion = task->work(bytes);
        task->end([&] {
            QMetaObject::invokeMethod(
                this, [this, task, conclusion] { finish(task, conclusion); }, Qt::QueuedConnection);
        });
    }).detach();
}

void FileReading::finish(const std::shared_ptr<Task> &task, const Conclusion &conclusion)
{
    if (task != m_current)
        return;
    m_current.reset();
    m_patience.stop();
    emit ended();
    conclusion();
}

void FileReading::stop()
{
    if (!m_current)
        return;
    std::exchange(m_current, nullptr)->abandon();
    m_patience.stop();
    emit ended();
}

void FileReading::forgetFinished()
{
    std::erase_if(m_tasks, [](const std::shared_ptr<Task> &task) {
        const std::lock_guard lock(task->mutex);
        return task->isFinished;
    });
}

} // namespace lumora
