// SPDX-License-Identifier: MIT
#pragma once

#include "ReaderProcess.h"

namespace lumora
{

/// A reader's answer as it comes in, piece by piece: passes whole messages on. Keeps no more than `longestAnswer`
/// bytes, whatever comes.
class ReaderStream
{
public:
    /// Longer than the answer about any package.
    static constexpr qsizetype longestAnswer = 64 << 20;
    enum class State {
        Incomplete,
        Whole,
        Failure, ///< the reader says that it has no answer
        Nonsense,
    };

    /// The receivers must outlive it.
    ReaderStream(const ReaderProgress &progress, const ReaderMessages &messages)
        : m_progress(progress), m_messages(messages)
    {
    }

    /// The next bytes. After another state than `Incomplete` there must be no more.
    State take(const QByteArray &bytes);

private:
    State takeLine();
    State takeContent();

    const ReaderProgress &m_progress;
    const ReaderMessages &m_messages;
    QByteArray m_bytes;
    QString m_word;
    qsizetype m_taken = 0;
    qsizetype m_length = -1; ///< of the content that comes next; negative before a line
    bool m_hasMore = false;  ///< a line or content may follow in the bytes
};

} // namespace lumora
