// SPDX-License-Identifier: MIT
#include "tool/FileReading.h"
#include "tests/doubles/HeldFiles.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <semaphore>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// Releases the semaphore when the thread that has it ends.
struct AtThreadEnd
{
    std::binary_semaphore *semaphore = nullptr;

    ~AtThreadEnd() { semaphore->release(); }
};

} // namespace

class FileReadingTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::shared_ptr<HeldFiles> m_share;
    std::unique_ptr<FileReading> m_reading;
    QStringList m_taken;

    QString put(const QString &name)
    {
        const QString path = m_folder.filePath(name);
        return writeWholeFile(path, name.toUtf8()) ? path : QString();
    }
    void read(const QString &path, qint64 limit = 100)
    {
        m_reading->read(path, limit, [this](const Result<QByteArray> &bytes) -> FileReading::Conclusion {
            const bool isMainThread = QThread::currentThread() == thread();
            const QString content = bytes ? QString::fromUtf8(bytes.value()) : u"failed"_s;
            return [this, isMainThread, content] { m_taken << (isMainThread ? u"on the main thread"_s : content); };
        });
    }

private slots:
    void init()
    {
        m_share = std::make_shared<HeldFiles>();
        m_reading = std::make_unique<FileReading>(m_share, nullptr);
        m_taken.clear();
    }
    void cleanup()
    {
        m_reading.reset();
        m_share->releaseAll();
    }

    void workIsDoneOffTheMainThread_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("taken");
        QTest::newRow("a file") << u"a"_s << u"a"_s;
        QTest::newRow("a file too long") << u"longer than the limit"_s << u"failed"_s;
        QTest::newRow("no file") << u"gone"_s << u"failed"_s;
    }
    void workIsDoneOffTheMainThread()
    {
        QFETCH(QString, name);
        const QString path = name == u"gone" ? m_folder.filePath(name) : put(name);
        QSignalSpy ended(m_reading.get(), &FileReading::ended);
        read(path, 10);
        QVERIFY(m_reading->isReading());
        QCOMPARE(m_reading->path(), path);
        m_share->releaseAll();
        QTRY_COMPARE(m_taken.size(), 1);
        QTEST(m_taken.first(), "taken");
        QVERIFY(!m_reading->isReading());
        QCOMPARE(ended.size(), 1);
    }

    void aSlowReadSaysSo()
    {
        QSignalSpy slow(m_reading.get(), &FileReading::slow);
        read(put(u"a"_s));
        QTRY_COMPARE(slow.size(), 1);
        QVERIFY(m_reading->isReading());
        QVERIFY(m_taken.isEmpty());
    }

    void aNewerReadWins()
    {
        const QString first = put(u"first"_s);
        const QString second = put(u"second"_s);
        read(first);
        read(second);
        m_share->waitForBegun(2);
        m_share->release(second);
        QTRY_COMPARE(m_taken, QStringList{u"second"_s});
        m_share->release(first);
        read(second);
        QTRY_COMPARE(m_taken, (QStringList{u"second"_s, u"second"_s}));
    }

    void aResultOnItsWayIsDroppedWhenANewerReadBegins()
    {
        std::binary_semaphore isPosted{0};
        const QString second = put(u"second"_s);
        m_share->releaseAll();
        m_reading->read(put(u"first"_s), 100, [&](const Result<QByteArray> &) -> FileReading::Conclusion {
            thread_local AtThreadEnd end;
            end.semaphore = &isPosted;
            return [this] { m_taken << u"first"_s; };
        });
        isPosted.acquire();
        read(second);
        QTRY_VERIFY(!m_reading->isReading());
        QCOMPARE(m_taken, QStringList{u"second"_s});
    }

    void aStoppedReadIsDropped()
    {
        QSignalSpy ended(m_reading.get(), &FileReading::ended);
        const QString path = put(u"a"_s);
        read(path);
        m_share->waitForBegun(1);
        m_reading->stop();
        QVERIFY(!m_reading->isReading());
        QCOMPARE(ended.size(), 1);
        m_share->releaseAll();
        read(path);
        QTRY_COMPARE(m_taken.size(), 1);
        QCOMPARE(ended.size(), 2);
    }

    void aShareThatNeverAnswersDoesNotHoldUpTheEnd()
    {
        read(put(u"a"_s));
        m_share->waitForBegun(1);
        m_reading.reset(); // would wait for ever
        QVERIFY(m_taken.isEmpty());
    }

    void theEndWaitsForWorkThatHasBegun()
    {
        std::binary_semaphore begun{0};
        std::atomic<bool> ending = false;
        std::atomic<bool> done = false;
        m_share->releaseAll();
        m_reading->read(put(u"a"_s), 100, [&](const Result<QByteArray> &) -> FileReading::Conclusion {
            begun.release();
            ending.wait(false);
            done = true;
            return [] {};
        });
        begun.acquire();
        ending = true;
        ending.notify_all();
        m_reading.reset();
        QVERIFY(done);
    }
};

QTEST_GUILESS_MAIN(FileReadingTest)
#include "FileReadingTest.moc"
