// SPDX-License-Identifier: MIT
#include "ReviewProcess.h"

#include "ReviewAnswer.h"
#include "ReviewJson.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <optional>

using namespace std::chrono_literals;

namespace lumora
{

namespace
{

/// Longer than the review of any package.
constexpr qsizetype longestAnswer = 64 << 20;
constexpr qsizetype longestLine = 80;
/// A request to stop is seen within this time.
constexpr int step = 20;

/// The answer as it comes in, piece by piece.
class Answer
{
public:
    enum class State { Incomplete, Whole, Failure, Nonsense };

    explicit Answer(const ReviewProgress &progress) : m_progress(progress) {}

    State take(const QByteArray &bytes)
    {
        m_bytes += bytes;
        while (m_length < 0) {
            const qsizetype end = m_bytes.indexOf('\n');
            if (end < 0)
                return m_bytes.size() > longestLine ? State::Nonsense : State::Incomplete;
            const QByteArray line = m_bytes.first(end);
            m_bytes.remove(0, end + 1);
            if (const auto part = number(line, progressWord)) {
                m_progress(static_cast<int>(std::clamp<qsizetype>(*part, 0, 1000)));
            } else if (number(line, failureWord)) {
                return State::Failure;
            } else if (const auto length = number(line, reviewWord); length && *length <= longestAnswer) {
                m_length = *length;
            } else {
                return State::Nonsense;
            }
        }
        if (m_bytes.size() > m_length)
            return State::Nonsense;
        return m_bytes.size() == m_length ? State::Whole : State::Incomplete;
    }

    const QByteArray &review() const { return m_bytes; }

private:
    /// The number after the word; nothing for a line of another kind.
    static std::optional<qsizetype> number(const QByteArray &line, QLatin1StringView word)
    {
        if (!line.startsWith(QByteArrayView(word.data(), word.size())))
            return {};
        bool isNumber = false;
        const qlonglong value = line.sliced(word.size()).toLongLong(&isNumber);
        return isNumber && value >= 0 ? std::optional<qsizetype>(value) : std::nullopt;
    }

    const ReviewProgress &m_progress;
    QByteArray m_bytes;
    qsizetype m_length = -1;
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

} // namespace

std::variant<PackageReview, ReaderEnd> reviewInProcess(const ReviewOrder &order, const std::stop_token &stop,
                                                       const ReviewProgress &progress)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(order.program, {readerArgument, order.package}, QIODevice::ReadOnly);
    if (!process.waitForStarted(-1))
        return ReaderEnd::NotStarted;
    const Ending ending(process);
    Answer answer(progress);
    Answer::State state = Answer::State::Incomplete;
    QDeadlineTimer patience(order.patience);
    while (state == Answer::State::Incomplete) {
        if (stop.stop_requested())
            return ReaderEnd::Stopped;
        const bool isRunning = process.state() != QProcess::NotRunning;
        process.waitForReadyRead(step);
        const QByteArray bytes = process.readAllStandardOutput();
        if (bytes.isEmpty() && !isRunning)
            return ReaderEnd::Crashed;
        if (bytes.isEmpty() && patience.hasExpired())
            return ReaderEnd::Stalled;
        if (!bytes.isEmpty())
            patience = QDeadlineTimer(order.patience);
        state = answer.take(bytes);
    }
    if (state == Answer::State::Failure)
        return ReaderEnd::NoApp;
    std::optional<PackageReview> review = state == Answer::State::Whole ? reviewIn(answer.review()) : std::nullopt;
    if (!review)
        return ReaderEnd::Nonsense;
    return std::move(*review);
}

} // namespace lumora
