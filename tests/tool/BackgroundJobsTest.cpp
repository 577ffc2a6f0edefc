// SPDX-License-Identifier: MIT
#include "tool/BackgroundJobs.h"

#include <QTest>

#include <array>
#include <atomic>
#include <chrono>
#include <ctime>
#include <memory>
#include <semaphore>
#include <thread>

#include <pthread.h>

using namespace Qt::StringLiterals;
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
            BackgroundJobs jobs(BackgroundJobs::Order::Concurrent, {}, std::chrono::milliseconds(200));
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

    void destructionWaitsForAJobThatWorks_data()
    {
        QTest::addColumn<bool>("onOtherThread");
        QTest::newRow("itself") << false;
        QTest::newRow("on a thread of its own") << true;
    }
    void destructionWaitsForAJobThatWorks()
    {
        QFETCH(const bool, onOtherThread);
        bool finished = false;
        {
            // Longer than the patience; counted in processor time, so that a loaded machine changes nothing.
            const auto work = [&finished] {
                const std::clock_t end = std::clock() + CLOCKS_PER_SEC;
                while (std::clock() < end)
                    continue;
                finished = true;
            };
            BackgroundJobs jobs(BackgroundJobs::Order::Concurrent, {}, std::chrono::milliseconds(500));
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
