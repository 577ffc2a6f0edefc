// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace lumora
{

/// Reads the content of the file at the path. Callable on any thread, on several at once, also after the job has ended.
using ReadSource = std::function<Result<QByteArray>(const QString &path)>;

/// The time that a read still has when its job is to stop: enough for every disk, not for a share that never answers.
constexpr std::chrono::milliseconds readPatience{300};

/// Reads on the calling thread if the job cannot be stopped. Otherwise another thread reads; the result is empty if the
/// file has not answered `readPatience` after the stop, and the thread is left to itself.
std::optional<Result<QByteArray>> readUnlessStopped(const ReadSource &read, const QString &path,
                                                    const std::stop_token &stop);

} // namespace lumora
