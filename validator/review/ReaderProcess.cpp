// SPDX-License-Identifier: MIT
#include "ReaderProcess.h"

#include "ReaderStream.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>

namespace lumora
{

namespace
{

/// A request to stop is seen within this time.
constexpr int step = 20;

/// Ends the process for good.
class Ending
{
public:
    explicit Ending(QProcess &process) : m_process(process) {}
    ~Ending()
    {
        m_process.kill();
        m_process.waitForFinished(-1);
    }
    Q_DISABLE_COPY_MOVE(Ending)

private:
    QProcess &m_process;
};

/// How long a process may do nothing.
class Patience
{
public:
    Patience(std::chrono::milliseconds time, qint64 process) : m_time(time), m_process(process) { renew(); }

    void renew()
    {
        m_deadline = QDeadlineTimer(m_time);
        m_moved = bytesMoved();
    }
    /// False also at the deadline, if the process has read or written something meanwhile.
    bool isOver()
    {
        if (!m_deadline.hasExpired())
            return false;
        const QByteArray before = m_moved;
        renew();
        return m_moved == before;
    }

private:
    /// The kernel's counts of the bytes that the process has read and written.
    QByteArray bytesMoved() const
    {
        QFile counts(QStringLiteral("/proc/%1/io").arg(m_process));
        return counts.open(QIODevice::ReadOnly) ? counts.readAll() : QByteArray();
    }

    std::chrono::milliseconds m_time;
    qint64 m_process;
    QDeadlineTimer m_deadline;
    QByteArray m_moved;
};

} // namespace

std::optional<ReaderEnd> readInProcess(const ReaderOrder &order, const QStringList &arguments,
                                       const std::stop_token &stop, const ReaderProgress &progress,
                                       const ReaderMessages &messages)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(order.program, arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted(-1))
        return ReaderEnd::NotStarted;
    const Ending ending(process);
    ReaderStream answer(progress, messages);
    Patience patience(order.patience, process.processId());
    while (true) {
        if (stop.stop_requested())
            return ReaderEnd::Stopped;
        const bool isRunning = process.state() != QProcess::NotRunning;
        process.waitForReadyRead(step);
        const QByteArray bytes = process.readAllStandardOutput();
        if (bytes.isEmpty() && !isRunning)
            return ReaderEnd::Crashed;
        if (bytes.isEmpty() && patience.isOver())
            return ReaderEnd::Stalled;
        if (!bytes.isEmpty())
            patience.renew();
        switch (answer.take(bytes)) {
        case ReaderStream::State::Incomplete:
            break;
        case ReaderStream::State::Whole:
            return std::nullopt;
        case ReaderStream::State::Failure:
            return ReaderEnd::NoApp;
        case ReaderStream::State::Nonsense:
            return ReaderEnd::Nonsense;
        }
    }
}

} // namespace lumora
