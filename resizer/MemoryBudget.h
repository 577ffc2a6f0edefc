// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <mutex>

namespace lumora
{

/// Limits the memory of the pictures that are in work at the same time, whatever the number of cores. A picture that
/// needs more than the limit is worked on alone.
class MemoryBudget
{
public:
    explicit MemoryBudget(qint64 bytes) : m_free(bytes), m_total(bytes) {}

    /// A share of the memory; its destructor returns it.
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
