// SPDX-License-Identifier: MIT
#include "ProgressLine.h"

#include "foundation/PrintableText.h"

#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

void write(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

/// For a terminal that does not report its width: the smallest usual width.
qsizetype columns()
{
    winsize size = {};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

} // namespace

void ProgressLine::show(qsizetype done, qsizetype total, const QString &what)
{
    if (!isPossible())
        return;
    const bool isFirst = !m_sinceStart.isValid();
    if (isFirst) {
        m_sinceStart.start();
        m_first = done;
    }
    constexpr qint64 pause = 100;
    const qint64 now = m_sinceStart.elapsed();
    if (!isFirst && done < total && now - m_lastShown < pause)
        return;
    m_lastShown = now;
    QString line = u"%1/%2 %3"_s.arg(done).arg(total).arg(printableText(what));
    if (now >= pause && done > m_first)
        line += u"  %1/s"_s.arg((done - m_first) * 1000 / now);
    write("\r\033[K" + line.left(columns() - 1).toUtf8());
    m_isShown = true;
}

void ProgressLine::end()
{
    if (m_isShown)
        write("\r\033[K");
    m_isShown = false;
}

bool ProgressLine::isPossible()
{
    if (!m_isChecked) {
        m_isChecked = true;
        const QByteArray terminal = qgetenv("TERM");
        m_isWanted = m_isWanted && ::isatty(STDERR_FILENO) == 1 && terminal != "dumb";
    }
    return m_isWanted;
}

} // namespace lumora
