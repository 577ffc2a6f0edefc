// SPDX-License-Identifier: MIT
#include "tool/BackgroundJobs.h"
#include "tool/JobPatience.h"

#include <QTest>

#include <array>
#include <atomic>
#include <chrono>
#include <memory>
#include <semaphore>
#include <thread>

#include <pthread.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace lumora;

class BackgroundJobsTest : public QObject
{
    Q_OBJECT

private slots:
    void postsArriveOnTheMainThreadInOrder()
    {
        QList<int> arrived;
        QThread *where = nullptr;
        BackgroundJobs jobs;
        jobs.start([&](const BackgroundJob &job) {
            for (int number = 0; number < 100; ++number) {
                job.post([&arrived, &where, number] {
                    arrived << number;
                    where = QThread::currentThread();
                });
            }
        });
        QTRY_COMPARE(arrived.size(), 100);
        QVERIFY(std::is_sorted(arrived.cbegin(), arrived.cend()));
        QCOMPARE(where, qApp->thread());
    }

    void jobsRunOffTheMainThread()
    {
        bool elsewhere = false;
        {
            BackgroundJobs jobs;
            jobs.start([&](const BackgroundJob &) { elsewhere = QThread::currentThread() != qApp->thread(); });
        }
        QVERIFY(elsewhere);
    }

    void threadsBearTheLabel()
    {
        std::array<char, 16> name = {};
        std::binary_semaphore named(0);
        BackgroundJobs jobs(BackgroundJobs::Order::Serial, "aQueue");
        jobs.start([&](const BackgroundJob &) {
            ::pthread_getname_np(::pthread_self(), name.data(), name.size());
            named.release();
        });
        named.acquire();
        QCOMPARE(QByteArray(name.data()), "aQueue"_ba);
    }

    void concurrentJobsRunTogether()
    {
        // Each waits for the other: one thread alone would never get past the first.
        std::binary_semaphore first(0);
        std::binary_semaphore second(0);
        BackgroundJobs jobs(BackgroundJobs::Order::Concurrent);
        jobs.start([&](const BackgroundJob &) {
            second.release();
            first.acquire();
        });
        jobs.start([&](const BackgroundJob &) {
            first.release();
            second.acquire();
        });
    }

    void serialJobsRunOneAfterAnother()
    {
        std::atomic<int> running = 0;
        std::atomic<bool> overlapped = false;
        QList<int> order;
        std::binary_semaphore last(0);
        BackgroundJobs jobs(BackgroundJobs::Order::Serial);
        for (int number = 0; number < 20; ++number) {
            jobs.start([&, number](const BackgroundJob &) {
                if (++running > 1)
                    overlapped = true;
                std::this_thread::yield();
                order << number;
                --running;
                if (number == 19)
                    last.release();
            });
        }
        last.acquire();
        QVERIFY(!overlapped);
        QCOMPARE(order.size(), 20);
        QVERIFY(std::is_sorted(order.cbegin(), order.cend()));
    }

    void destructionWaitsForTheRunningJobAndDropsItsPosts()
    {
        std::binary_semaphore started(0);
        bool finished = false;
        bool posted = false;
        {
            BackgroundJobs jobs;
            jobs.start([&](const BackgroundJob &job) {
                started.release();
                while (!job.isStopRequested())
                    std::this_thread::yield();
                finished = true;
                job.post([&posted] { posted = true; });
            });
            started.acquire();
        }
        QVERIFY(finished);
        QCoreApplication::processEvents();
        QVERIFY(!posted);
    }

    void destructionRunsEveryConcurrentJobToItsEnd()
    {
        std::atomic<int> finished = 0;
        {
            BackgroundJobs jobs;
            for (int number = 0; number < 8; ++number)
                jobs.start([&](const BackgroundJob &) { ++finished; });
        }
        QCOMPARE(finished.load(), 8);
    }

    void destructionAbandonsAJobThatDoesNothing()
    {
        struct Share
        {
            std::binary_semaphore started{0};
            std::binary_semaphore answer{0};
            std::binary_semaphore ended{0};
        };
        const auto share = std::make_shared<Share>();
        bool posted = false;
        {
            BackgroundJobs jobs(BackgroundJobs::Order::Concurrent, {}, 200ms);
            jobs.start([share, &posted](const BackgroundJob &job) {
                share->started.release();
                share->answer.acquire();
                job.post([&posted] { posted = true; });
                share->ended.release();
            });
            share->started.acquire();
        }
        // The call returns after all.
        share->answer.release();
        share->ended.acquire();
        QCoreApplication::processEvents();
        QVERIFY(!posted);
    }

    void givesUpWhatDoesNothing_data()
    {
        QTest::addColumn<std::chrono::milliseconds>("ofJobs");
        QTest::addColumn<std::chrono::milliseconds>("ofProcess");
        QTest::addColumn<bool>("givesUp");
        // Processor time in a second, with a patience of ten seconds.
        QTest::newRow("nothing works") << 0ms << 0ms << true;
        QTest::newRow("the waiting window") << 0ms << 5ms << true;
        QTest::newRow("a job that gets little of the machine") << 1ms << 1ms << false;
        QTest::newRow("a job's own thread that gets little of the machine") << 0ms << 20ms << false;
        QTest::newRow("a job that works") << 900ms << 900ms << false;
    }
    void givesUpWhatDoesNothing()
    {
        QFETCH(const std::chrono::milliseconds, ofJobs);
        QFETCH(const std::chrono::milliseconds, ofProcess);
        const JobPatience::TimePoint start{};
        JobPatience patience(BackgroundJobs::patience, start, {2s, 3s});
        bool isOver = false;
        for (int second = 1; second <= 60; ++second) {
            isOver = isOver || patience.isOver(start + second * 1s, {2s + second * ofJobs, 3s + second * ofProcess});
            QVERIFY2(!isOver || second >= 10, "before the patience ends");
        }
        QTEST(isOver, "givesUp");
    }

    void startsAgainAtEachSign()
    {
        const JobPatience::TimePoint start{};
        JobPatience patience(10s, start, {});
        QVERIFY(!patience.isOver(start + 9s, {}));
        QVERIFY(!patience.isOver(start + 10s, {1ms, 1ms}));
        QVERIFY(!patience.isOver(start + 19s, {1ms, 1ms}));
        QVERIFY(patience.isOver(start + 20s, {1ms, 1ms}));
    }

    void destructionWaitsForAJobThatWorks_data()
    {
        QTest::addColumn<bool>("onOtherThread");
        QTest::newRow("itself") << false;
        QTest::newRow("on a thread of its own") << true;
    }
    void destructionWaitsForAJobThatWorks()
    {
        // Long enough that even a loaded machine gives the work a hundredth of it.
        constexpr std::chrono::milliseconds patience = 1500ms;
        QFETCH(const bool, onOtherThread);
        bool finished = false;
        {
            const auto work = [&finished, end = std::chrono::steady_clock::now() + 2 * patience] {
                while (std::chrono::steady_clock::now() < end)
                    continue;
                finished = true;
            };
            BackgroundJobs jobs(BackgroundJobs::Order::Concurrent, {}, patience);
            jobs.start([&](const BackgroundJob &) {
                if (onOtherThread)
                    std::thread(work).join();
                else
                    work();
            });
        }
        QVERIFY(finished);
    }

    void destructionDropsSerialJobsWhoseTurnHasNotCome()
    {
        std::binary_semaphore started(0);
        bool secondRan = false;
        {
            BackgroundJobs jobs(BackgroundJobs::Order::Serial);
            jobs.start([&](const BackgroundJob &job) {
                started.release();
                while (!job.isStopRequested())
                    std::this_thread::yield();
            });
            jobs.start([&](const BackgroundJob &) { secondRan = true; });
            started.acquire();
        }
        QVERIFY(!secondRan);
    }
};

QTEST_MAIN(BackgroundJobsTest)
#include "BackgroundJobsTest.moc"
