// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>

namespace lumora
{

/// Reads the content of the file at the path. Callable on any thread, on several at once, also after the job has ended.
using ReadSource = std::function<Result<QByteArray>(const QString &path)>;

/// The same for files of several kinds, each with the most bytes that it may have.
using ReadFile = std::function<Result<QByteArray>(const QString &path, qint64 limit)>;

/// The time that a read still has when its job is to stop: enough for every disk, not for a share that never answers.
constexpr std::chrono::milliseconds readPatience{300};

/// Runs work that may never return, such as the search of a share that does not answer, on a thread of its own. The
/// result is empty if the work has not returned `readPatience` after the stop; then the thread is left to itself. The
/// work may use only values that it owns.
template <typename Value>
std::optional<Value> unlessStopped(const std::function<Value()> &work, const std::stop_token &stop)
{
    struct Answer
    {
        std::mutex mutex; ///< guards `value`
        std::condition_variable_any changed;
        std::optional<Value> value;
    };
    const auto answer = std::make_shared<Answer>();
    // Detached, because no call can end such work.
    std::thread([answer, work] {
        Value value = work();
        const std::lock_guard lock(answer->mutex);
        answer->value.emplace(std::move(value));
        answer->changed.notify_one();
    }).detach();
    std::unique_lock lock(answer->mutex);
    const auto hasAnswered = [&answer] { return answer->value.has_value(); };
    if (!answer->changed.wait(lock, stop, hasAnswered))
        answer->changed.wait_for(lock, readPatience, hasAnswered);
    return std::move(answer->value);
}

/// Reads on the calling thread if the job cannot be stopped, otherwise as `unlessStopped` does.
std::optional<Result<QByteArray>> readUnlessStopped(const ReadSource &read, const QString &path,
                                                    const std::stop_token &stop);

} // namespace lumora
