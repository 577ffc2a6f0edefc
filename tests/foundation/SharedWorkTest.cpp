// SPDX-License-Identifier: MIT
#include "foundation/LazyValue.h"
#include "foundation/ThreadGroup.h"
#include "foundation/ThreadValue.h"

#include <QTest>

#include <atomic>
#include <new>
#include <thread>

#include <sys/resource.h>

using namespace lumora;

namespace
{

/// Counts the objects that are alive.
struct Counted
{
    Counted() { ++alive; }
    ~Counted() { --alive; }
    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;

    int value = 0;
    static inline std::atomic<int> alive = 0;
};

} // namespace

/// Threads that share work, and the values that they make once or each for itself.
class SharedWorkTest : public QObject
{
    Q_OBJECT

private slots:
    // First, since the C library keeps the stacks of threads that have ended.
    void refusedThreadIsNoError()
    {
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        // The sanitizers need more address space than any limit leaves.
        rlimit before{};
        QCOMPARE(::getrlimit(RLIMIT_AS, &before), 0);
        // No room for a stack.
        rlimit none = before;
        none.rlim_cur = 1 << 20;
        QCOMPARE(::setrlimit(RLIMIT_AS, &none), 0);
        ThreadGroup threads;
        const bool started = threads.start([] {});
        threads.start(2, [] {});
        QCOMPARE(::setrlimit(RLIMIT_AS, &before), 0);
        QVERIFY(!started);
        QVERIFY(threads.isEmpty());
#endif
    }

    void lazyValueIsMadeOnce()
    {
        LazyValue<int> value;
        std::atomic<int> made = 0;
        {
            ThreadGroup threads;
            threads.start(4, [&] { value.get([&] { return ++made; }); });
        }
        QCOMPARE(value.get([] { return 0; }), 1);
        QCOMPARE(made.load(), 1);
    }

    void lazyValueIsTriedAgain()
    {
        LazyValue<int> value;
        QVERIFY_EXCEPTION_THROWN(value.get([]() -> int { throw std::bad_alloc(); }), std::bad_alloc);
        QCOMPARE(value.get([] { return 7; }), 7);
    }

    void threadsKeepTheirOwnValues()
    {
        {
            ThreadValue<Counted> values;
            values.get().value = 1;
            int seen = -1;
            int aliveMeanwhile = 0;
            std::thread([&] {
                seen = values.get().value;
                values.get().value = 2;
                aliveMeanwhile = Counted::alive;
            }).join();
            QCOMPARE(seen, 0);
            QCOMPARE(aliveMeanwhile, 2);
            QCOMPARE(Counted::alive.load(), 1);
            QCOMPARE(values.get().value, 1);
        }
        QCOMPARE(Counted::alive.load(), 0);
    }

    void groupWaitsForItsThreads()
    {
        std::atomic<int> ended = 0;
        ThreadGroup threads;
        QVERIFY(threads.isEmpty());
        threads.start(3, [&] { ++ended; });
        QVERIFY(!threads.isEmpty());
        threads.join();
        QCOMPARE(ended.load(), 3);
    }
};

QTEST_APPLESS_MAIN(SharedWorkTest)
#include "SharedWorkTest.moc"
