// SPDX-License-Identifier: MIT
#include "StoppableRead.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace lumora
{

namespace
{

/// What the two threads share. It outlives the job if the file does not answer.
struct Answer
{
    std::mutex mutex; ///< guards `bytes`
    std::condition_variable_any changed;
    std::optional<Result<QByteArray>> bytes;
};

} // namespace

std::optional<Result<QByteArray>> readUnlessStopped(const ReadSource &read, const QString &path,
                                                    const std::stop_token &stop)
{
    if (!stop.stop_possible())
        return read(path);
    const auto answer = std::make_shared<Answer>();
    // Detached, because no call can end a read of a share that does not answer.
    std::thread([answer, read, path] {
        Result<QByteArray> bytes = read(path);
        const std::lock_guard lock(answer->mutex);
        answer->bytes.emplace(std::move(bytes));
        answer->changed.notify_one();
    }).detach();
    std::unique_lock lock(answer->mutex);
    const auto hasAnswered = [&answer] { return answer->bytes.has_value(); };
    if (!answer->changed.wait(lock, stop, hasAnswered))
        answer->changed.wait_for(lock, readPatience, hasAnswered);
    return std::move(answer->bytes);
}

} // namespace lumora
