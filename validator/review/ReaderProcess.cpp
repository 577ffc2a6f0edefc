// SPDX-License-Identifier: MIT
#include "ReaderProcess.h"

#include "ReaderPipe.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>

#include <algorithm>

namespace lumora
{

namespace
{

/// Longer than the answer about any package.
constexpr qsizetype longestAnswer = 64 << 20;
constexpr qsizetype longestLine = 80;
/// A request to stop is seen within this time.
constexpr int step = 20;

/// The answer as it comes in, piece by piece.
class Answer
{
public:
    enum class State { Incomplete, Whole, Failure, Nonsense };

    Answer(const ReaderProgress &progress, const ReaderMessages &messages) : m_progress(progress), m_messages(messages)
    {
    }

    State take(const QByteArray &bytes)
    {
        m_bytes += bytes;
        m_taken += bytes.size();
        // Whole messages are passed on and forgotten, so their number has to be limited, too.
        if (m_taken > longestAnswer)
            return State::Nonsense;
        while (true) {
            const State state = m_length < 0 ? takeLine() : takeContent();
            if (state != State::Incomplete || !m_hasMore)
                return state;
        }
    }

private:
    /// `Incomplete` also where the next line or content follows; then `m_hasMore` is set.
    State takeLine()
    {
        const qsizetype end = m_bytes.indexOf('\n');
        m_hasMore = end >= 0;
        if (end < 0)
            return m_bytes.size() > longestLine ? State::Nonsense : State::Incomplete;
        const QByteArray line = m_bytes.first(end);
        m_bytes.remove(0, end + 1);
        m_word = QString::fromLatin1(line.first(line.indexOf(' ') + 1));
        bool isNumber = false;
        const qlonglong number = line.sliced(m_word.size()).toLongLong(&isNumber);
        if (!isNumber || number < 0 || number > longestAnswer)
            return State::Nonsense;
        if (m_word == failureWord)
            return State::Failure;
        if (m_word == progressWord)
            m_progress(static_cast<int>(std::min<qlonglong>(number, 1000)));
        else
            m_length = number;
        return State::Incomplete;
    }

    State takeContent()
    {
        m_hasMore = m_bytes.size() >= m_length;
        if (!m_hasMore)
            return State::Incomplete;
        const QByteArray content = m_bytes.first(m_length);
        m_bytes.remove(0, m_length);
        m_length = -1;
        switch (m_messages(m_word, content)) {
        case ReaderStep::Continue:
            return State::Incomplete;
        case ReaderStep::End:
            return m_bytes.isEmpty() ? State::Whole : State::Nonsense;
        case ReaderStep::Nonsense:
            break;
        }
        return State::Nonsense;
    }

    const ReaderProgress &m_progress;
    const ReaderMessages &m_messages;
    QByteArray m_bytes;
    QString m_word;
    qsizetype m_taken = 0;
    qsizetype m_length = -1;
    bool m_hasMore = false;
};

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
    Answer answer(progress, messages);
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
        case Answer::State::Incomplete:
            break;
        case Answer::State::Whole:
            return std::nullopt;
        case Answer::State::Failure:
            return ReaderEnd::NoApp;
        case Answer::State::Nonsense:
            return ReaderEnd::Nonsense;
        }
    }
}

} // namespace lumora
