// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace lumora
{

/// Why a reader gave no whole answer.
enum class ReaderEnd {
    NoApp, ///< it found no app to judge
    NotStarted,
    Crashed,
    Stalled,  ///< it did nothing for too long, and was ended
    Nonsense, ///< it answered what no reader answers
    Stopped,  ///< on request
};

/// The means of a reading in another process.
struct ReaderOrder
{
    QString program; ///< a program that answers to `isReaderCall`
    QString package;
    /// A reader that neither answers nor reads or writes a byte for that long is ended.
    std::chrono::milliseconds patience;
};

/// Called with the part of the package that was read, 0 to 1000, on any thread.
using ReaderProgress = std::function<void(int perMille)>;

enum class ReaderStep {
    Continue,
    End, ///< the message was the last
    Nonsense,
};

/// Receives a reader's message: its word, with the space after it, and the content.
using ReaderMessages = std::function<ReaderStep(const QString &word, const QByteArray &content)>;

/// Starts the reader and passes each message on, until `messages` returns an end; call it off the main thread. Nothing
/// when the answer came to its end. Whatever the reader does, it has ended when this returns. It may have been taken
/// over by a hostile package: every message is foreign bytes, though of limited length.
std::optional<ReaderEnd> readInProcess(const ReaderOrder &order, const QStringList &arguments,
                                       const std::stop_token &stop, const ReaderProgress &progress,
                                       const ReaderMessages &messages);

} // namespace lumora
