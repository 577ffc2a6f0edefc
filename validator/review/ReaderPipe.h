// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/ProcessLock.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QLatin1StringView>

#include <mutex>

namespace lumora
{

/// The beginnings of the lines that every reader writes: the part that was read, per mille; or that there is no answer,
/// with the failure's code. All other lines have a word of their own and the length of the content that follows, in
/// bytes.
inline constexpr QLatin1StringView progressWord("read ");
inline constexpr QLatin1StringView failureWord("failure ");
/// A line for the log of the process that reads the answer.
inline constexpr QLatin1StringView logWord("log ");

/// The reader's end of the pipe on which it answers.
class ReaderPipe
{
public:
    /// The descriptor stays open.
    explicit ReaderPipe(int descriptor) : m_descriptor(descriptor) {}

    /// Tells progress in order and in steps, from any thread.
    void tellProgress(int perMille);
    /// From any thread. False when nobody reads any more.
    bool send(QLatin1StringView word, const QByteArray &content);
    bool sendFailure(FailureCode code);

private:
    bool put(const QByteArray &bytes);

    int m_descriptor;
    std::mutex m_mutex;
    int m_told = 0;
};

/// Makes this process a reader: it reaches nothing but the places, has limited memory, leaves no image of it on disk,
/// and ends with the process that started it. Expects no other thread to run.
void becomeReader(const LockedPlaces &places);

} // namespace lumora
