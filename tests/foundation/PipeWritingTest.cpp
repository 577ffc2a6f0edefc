// SPDX-License-Identifier: MIT
#include "foundation/WholeFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace lumora;
using namespace Qt::StringLiterals;

/// Whole files written into a named pipe.
class PipeWritingTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_pipe = m_folder->filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(m_pipe).constData(), 0600), 0);
    }

    void aPipeTakesTheBytes()
    {
        const int reader = ::open(QFile::encodeName(m_pipe).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        QVERIFY(writeWholeFile(m_pipe, m_bytes).ok());
        QByteArray received(100, '\0');
        received.truncate(::read(reader, received.data(), 100));
        ::close(reader);
        QCOMPARE(received, m_bytes);
    }

    void aSlowReaderGetsMoreThanThePipeHolds()
    {
        const int reader = ::open(QFile::encodeName(m_pipe).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        const QByteArray much(1 << 20, 'x');
        Outcome outcome = Done{};
        const std::unique_ptr<QThread> writing(QThread::create([&] { outcome = writeWholeFile(m_pipe, much); }));
        writing->start();
        QByteArray received;
        while (received.size() < much.size()) {
            QByteArray some(10'000, '\0');
            const ssize_t count = ::read(reader, some.data(), static_cast<std::size_t>(some.size()));
            if (count > 0)
                received += some.first(count);
            else if (writing->isFinished())
                break;
            QThread::yieldCurrentThread();
        }
        writing->wait();
        ::close(reader);
        QVERIFY(outcome.ok());
        QCOMPARE(received, much);
    }

    void aPipeThatNobodyReadsIsRefusedAtOnce()
    {
        const Outcome outcome = writeWholeFile(m_pipe, m_bytes);
        QVERIFY(!outcome.ok());
        QCOMPARE(outcome.failure().code, FailureCode::CannotWrite);
    }

private:
    const QByteArray m_bytes = "what is written";
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_pipe;
};

QTEST_GUILESS_MAIN(PipeWritingTest)
#include "PipeWritingTest.moc"
