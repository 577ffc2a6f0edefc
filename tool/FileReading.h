// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "tool/services/FileReader.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace lumora
{

/// Reads and processes one file at a time, off the main thread if the reader may stall. A new request replaces the one
/// before it: the result of a stopped or replaced request is dropped. A share that never answers blocks neither the
/// window nor the end of the program.
class FileReading final : public QObject
{
    Q_OBJECT

public:
    /// Takes the result on the main thread.
    using Conclusion = std::function<void()>;
    /// Processes the file's bytes on a separate thread. It may use only values that it owns; the conclusion that it
    /// returns may use everything that lives as long as the FileReading.
    using Work = std::function<Conclusion(const Result<QByteArray> &bytes)>;

    /// The time after which a read counts as slow.
    static constexpr std::chrono::milliseconds patience{300};

    FileReading(std::shared_ptr<const FileReader> reader, QObject *parent);
    /// Abandons a read that does not answer; waits for work that has begun.
    ~FileReading() override;

    /// If the reader never stalls, the conclusion runs before this function returns.
    void read(const QString &path, qint64 limit, Work work);
    void stop();
    bool isReading() const { return m_current != nullptr; }
    /// Empty while nothing is read.
    QString path() const;

signals:
    /// The read has taken longer than `patience`.
    void slow();
    /// The read has ended: the conclusion follows, or the read was stopped.
    void ended();

private:
    struct Task;

    void begin(const std::shared_ptr<Task> &task);
    void finish(const std::shared_ptr<Task> &task, const Conclusion &conclusion);
    void forgetFinished();

    std::shared_ptr<const FileReader> m_reader;
    std::shared_ptr<Task> m_current;
    std::vector<std::shared_ptr<Task>> m_tasks; ///< all whose threads may still run
    QTimer m_patience;
};

} // namespace lumora
