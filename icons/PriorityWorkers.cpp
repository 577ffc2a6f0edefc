// SPDX-License-Identifier: MIT
#include "PriorityWorkers.h"

#include <QThread>

#include <algorithm>
#include <new>
#include <system_error>

namespace lumora
{

PriorityWorkers::~PriorityWorkers()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting.clear();
        m_ends = true;
    }
    m_changed.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

bool PriorityWorkers::start(std::function<void()> work, int priority)
{
    {
        const std::scoped_lock lock(m_mutex);
        try {
            m_waiting.emplace(priority, std::move(work));
        } catch (const std::bad_alloc &) {
            return false;
        }
        if (m_waiting.size() > m_idle)
            addThread();
    }
    m_changed.notify_one();
    return true;
}

bool PriorityWorkers::doOneAlone()
{
    std::function<void()> work;
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_threads.empty() || m_waiting.empty())
            return false;
        work = takeFirst();
    }
    work();
    return true;
}

void PriorityWorkers::addThread()
{
    const auto most = static_cast<std::size_t>(std::max(1, QThread::idealThreadCount()));
    if (m_threads.size() >= most)
        return;
    // A missing thread costs time only: the others, or the waiting caller, do its work.
    try {
        m_threads.emplace_back([this] { this->work(); });
    } catch (const std::system_error &) {
    } catch (const std::bad_alloc &) {
    }
}

void PriorityWorkers::work()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        ++m_idle;
        m_changed.wait(lock, [this] { return m_ends || !m_waiting.empty(); });
        --m_idle;
        if (m_ends)
            return;
        const std::function<void()> work = takeFirst();
        lock.unlock();
        work();
        lock.lock();
    }
}

std::function<void()> PriorityWorkers::takeFirst()
{
    return std::move(m_waiting.extract(m_waiting.begin()).mapped());
}

} // namespace lumora
