// SPDX-License-Identifier: MIT
#include "BackgroundJobs.h"

#include <QCoreApplication>
#include <QEvent>

#include <pthread.h>

namespace lumora
{

namespace
{

QEvent::Type postedEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace

void BackgroundJob::post(std::function<void()> onMainThread) const
{
    {
        const std::lock_guard lock(m_jobs.m_mutex);
        m_jobs.m_posted.push_back(std::move(onMainThread));
    }
    QCoreApplication::postEvent(&m_jobs, new QEvent(postedEvent()));
}

std::stop_token BackgroundJob::stopToken() const
{
    return m_jobs.m_stop.get_token();
}

BackgroundJobs::BackgroundJobs(Order order, const std::string &label) : m_order(order), m_label(label)
{
    postedEvent();
}

BackgroundJobs::~BackgroundJobs()
{
    m_stop.request_stop();
    {
        const std::lock_guard lock(m_mutex);
        // A concurrent job counts as started even if its thread has not begun it yet.
        if (m_order == Order::Serial)
            m_waiting.clear();
    }
    waitForDone();
    joinFinished();
}

void BackgroundJobs::start(Work work)
{
    joinFinished();
    const std::lock_guard lock(m_mutex);
    m_waiting.push_back(std::move(work));
    if (m_order == Order::Serial && m_running > 0)
        return;
    ++m_running;
    Worker &worker = m_workers.emplace_back();
    worker.thread = std::thread([this, &worker] { run(worker); });
}

void BackgroundJobs::waitForDone()
{
    std::unique_lock lock(m_mutex);
    m_workerFinished.wait(lock, [this] { return m_running == 0; });
}

bool BackgroundJobs::event(QEvent *event)
{
    if (event->type() != postedEvent())
        return QObject::event(event);
    std::function<void()> next;
    {
        const std::lock_guard lock(m_mutex);
        if (m_posted.empty())
            return true;
        next = std::move(m_posted.front());
        m_posted.pop_front();
    }
    next();
    return true;
}

void BackgroundJobs::run(Worker &worker)
{
    if (!m_label.empty())
        ::pthread_setname_np(::pthread_self(), m_label.c_str());
    std::unique_lock lock(m_mutex);
    while (!m_waiting.empty()) {
        {
            const Work work = std::move(m_waiting.front());
            m_waiting.pop_front();
            lock.unlock();
            work(BackgroundJob(*this));
        }
        lock.lock();
    }
    worker.finished = true;
    --m_running;
    m_workerFinished.notify_all();
}

void BackgroundJobs::joinFinished()
{
    std::list<Worker> finished;
    {
        const std::lock_guard lock(m_mutex);
        for (auto worker = m_workers.begin(); worker != m_workers.end();) {
            const auto current = worker++;
            if (current->finished)
                finished.splice(finished.end(), m_workers, current);
        }
    }
    for (Worker &worker : finished)
        worker.thread.join();
}

} // namespace lumora
