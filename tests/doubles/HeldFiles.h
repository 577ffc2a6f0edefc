// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/WholeFile.h"
#include "tool/services/FileReader.h"

#include <QHash>
#include <QSet>

#include <condition_variable>
#include <mutex>

namespace lumora
{

/// Reads as from a network share that answers for a file only when the test allows it.
class HeldFiles final : public FileReader
{
public:
    bool mayStall() const override { return true; }
    Result<QByteArray> read(const QString &path, qint64 limit) const override
    {
        std::unique_lock lock(m_mutex);
        ++m_begun;
        m_changed.notify_all();
        m_changed.wait(lock, [&] { return m_released.contains(path) || m_answers.value(path) > 0 || m_allReleased; });
        if (m_answers.value(path) > 0)
            --m_answers[path];
        lock.unlock();
        return readWholeFile(path, limit);
    }
    void release(const QString &path)
    {
        const std::lock_guard lock(m_mutex);
        m_released.insert(path);
        m_changed.notify_all();
    }
    /// Allows this number of answers for the file.
    void answer(const QString &path, int count)
    {
        const std::lock_guard lock(m_mutex);
        m_answers[path] = count;
        m_changed.notify_all();
    }
    void releaseAll()
    {
        const std::lock_guard lock(m_mutex);
        m_allReleased = true;
        m_changed.notify_all();
    }
    /// Waits until this number of reads has begun.
    void waitForBegun(int count) const
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return m_begun >= count; });
    }

private:
    mutable std::mutex m_mutex; ///< guards everything below
    mutable std::condition_variable m_changed;
    mutable int m_begun = 0;
    mutable QHash<QString, int> m_answers;
    QSet<QString> m_released;
    bool m_allReleased = false;
};

} // namespace lumora
