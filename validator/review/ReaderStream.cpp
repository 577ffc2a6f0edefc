// SPDX-License-Identifier: MIT
#include "ReaderStream.h"

#include "ReaderPipe.h"

#include <algorithm>

namespace lumora
{

namespace
{

constexpr qsizetype longestLine = 80;

} // namespace

ReaderStream::State ReaderStream::take(const QByteArray &bytes)
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

/// `Incomplete` also where the next line or content follows.
ReaderStream::State ReaderStream::takeLine()
{
    const qsizetype end = m_bytes.indexOf('\n');
    m_hasMore = end >= 0;
    if (end > longestLine || (end < 0 && m_bytes.size() > longestLine))
        return State::Nonsense;
    if (end < 0)
        return State::Incomplete;
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

ReaderStream::State ReaderStream::takeContent()
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

} // namespace lumora
