// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <mutex>

namespace lumora
{

/// Keeps the pictures that are in work at one time below an amount of memory, whatever the number of cores. A picture
/// that asks for more than all of it is let in alone.
class MemoryBudget
{
public:
    explicit MemoryBudget(qint64 bytes) : m_free(bytes), m_total(bytes) {}

    /// A share that is given back when it goes out of scope.
    class Share
    {
    public:
        /// Waits until the bytes are free.
        Share(MemoryBudget &budget, qint64 bytes);
        ~Share();
        Share(const Share &) = delete;
        Share &operator=(const Share &) = delete;

    private:
        MemoryBudget &m_budget;
        qint64 m_bytes;
    };

private:
    std::mutex m_mutex;
    std::condition_variable m_returned;
    qint64 m_free;
    const qint64 m_total;
};

} // namespace lumora
