// SPDX-License-Identifier: MIT
#pragma once

#include "PackageReview.h"

#include <QString>

#include <chrono>
#include <stop_token>
#include <variant>

namespace lumora
{

/// Why a reader gave no review.
enum class ReaderEnd {
    NoApp, ///< it found no app to judge
    NotStarted,
    Crashed,
    Stalled,  ///< it did nothing for too long, and was ended
    Nonsense, ///< it answered what no reader answers
    Stopped,  ///< on request
};

/// The means of a review in another process.
struct ReviewOrder
{
    QString program; ///< a program that answers to `readerArgument`
    QString package;
    /// A reader that tells no progress for that long is ended.
    std::chrono::milliseconds patience;
};

/// Starts the reader, waits for its answer and returns it; call it off the main thread. Whatever the reader does, it
/// has ended when this returns.
std::variant<PackageReview, ReaderEnd> reviewInProcess(const ReviewOrder &order, const std::stop_token &stop,
                                                       const ReviewProgress &progress);

} // namespace lumora
