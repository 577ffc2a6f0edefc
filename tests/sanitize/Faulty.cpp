// SPDX-License-Identifier: MIT
// usage: faulty KIND Does one thing wrong, or the same thing right, for test_reports.py: a sanitizer's silence means
// something only if it is known to report.
#include <QCoreApplication>
#include <QRunnable>
#include <QThread>
#include <QThreadPool>

#include <atomic>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace
{

int shared = 0;
std::mutex sharedMutex;

void touch()
{
    shared = shared + 1;
}

void touchInTurn()
{
    const std::lock_guard lock(sharedMutex);
    touch();
}

/// Lets two threads continue at the same moment without ordering them, as a lock would.
class Meeting
{
public:
    void attend()
    {
        m_arrived.fetch_add(1, std::memory_order_relaxed);
        while (m_arrived.load(std::memory_order_relaxed) < 2)
            std::this_thread::yield();
    }

private:
    std::atomic<int> m_arrived = 0;
};

// Two threads, the standard library's or the toolkit's, do the same.

/// Not by QThread::create(): it runs its work inside a call of Qt into the C library, which the thread sanitizer
/// ignores.
class ToolkitThread final : public QThread
{
public:
    explicit ToolkitThread(std::function<void()> work) : m_work(std::move(work)) {}

protected:
    void run() override { m_work(); }

private:
    std::function<void()> m_work;
};

void onTwoThreads(const std::function<void()> &work)
{
    std::thread one(work);
    std::thread two(work);
    one.join();
    two.join();
}

void onTwoToolkitThreads(const std::function<void()> &work)
{
    ToolkitThread one(work);
    ToolkitThread two(work);
    one.start();
    two.start();
    one.wait();
    two.wait();
}

void onAThreadPool(const std::function<void()> &work)
{
    QThreadPool pool;
    pool.setMaxThreadCount(2);
    pool.start(work);
    pool.start(work);
    pool.waitForDone();
}

/// A thread posts work to the main thread's event loop, and does the same work itself.
void byTheEventLoop(const std::function<void()> &work)
{
    QObject receiver;
    ToolkitThread thread([&] {
        const auto workAndEnd = [&] {
            work();
            QCoreApplication::quit();
        };
        QMetaObject::invokeMethod(&receiver, workAndEnd, Qt::QueuedConnection);
        work();
    });
    thread.start();
    QCoreApplication::exec();
    thread.wait();
}

/// A thread writes and then posts an event; the receiver reads.
void sendWord()
{
    QObject receiver;
    ToolkitThread thread([&receiver] {
        touch();
        const auto readAndEnd = [] {
            touch();
            QCoreApplication::quit();
        };
        QMetaObject::invokeMethod(&receiver, readAndEnd, Qt::QueuedConnection);
    });
    thread.start();
    QCoreApplication::exec();
    thread.wait();
}

using Threads = void (*)(const std::function<void()> &work);

template <Threads threads> void race()
{
    Meeting meeting;
    threads([&meeting] {
        meeting.attend();
        touch();
    });
}

template <Threads threads> void takeTurns()
{
    Meeting meeting;
    threads([&meeting] {
        meeting.attend();
        touchInTurn();
    });
}

void useAfterFree()
{
    const auto numbers = std::make_unique<QList<int>>(4, 1);
    const volatile int *const gone = numbers->constData();
    numbers->squeeze();
    numbers->clear();
    numbers->squeeze();
    std::printf("%d\n", *gone);
}

void overrun()
{
    const auto numbers = std::make_unique<int[]>(4);
    volatile int past = 4;
    numbers[static_cast<std::size_t>(past)] = 1;
}

void lose()
{
    volatile auto *const lost = new int[100];
    lost[0] = 1;
}

void overflow()
{
    volatile int largest = 0x7FFFFFFF;
    largest = largest + 1;
}

void indexPastTheEnd()
{
    QList<int> numbers;
    numbers.reserve(8);
    volatile qsizetype past = 4;
    std::printf("%d\n", numbers.at(past));
}

const std::map<std::string, void (*)()> kinds = {
    {"use after free", useAfterFree},
    {"overrun", overrun},
    {"leak", lose},
    {"overflow", overflow},
    {"index past the end", indexPastTheEnd},
    {"race of threads", race<onTwoThreads>},
    {"race of toolkit threads", race<onTwoToolkitThreads>},
    {"race on a thread pool", race<onAThreadPool>},
    {"race by the event loop", race<byTheEventLoop>},
    {"threads in turn", takeTurns<onTwoThreads>},
    {"toolkit threads in turn", takeTurns<onTwoToolkitThreads>},
    {"a thread pool in turn", takeTurns<onAThreadPool>},
    {"word by the event loop", sendWord},
    {"the event loop in turn", takeTurns<byTheEventLoop>},
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const auto kind = kinds.find(argc == 2 ? argv[1] : "");
    if (kind == kinds.end()) {
        std::fputs("usage: faulty KIND\n", stderr);
        return 2;
    }
    kind->second();
    return 0;
}
