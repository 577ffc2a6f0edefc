// SPDX-License-Identifier: MIT
#include "Console.h"

#include "FailureText.h"
#include "foundation/PrintableText.h"

#include <cstdio>

#include <unistd.h>

namespace lumora
{

namespace
{

void write(std::FILE *stream, QByteArrayView bytes)
{
    // Of an empty line there is no first byte to point at.
    if (!bytes.isEmpty())
        std::fwrite(bytes.data(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

} // namespace

void Console::print(const QString &line)
{
    write(stdout, line.toUtf8());
    write(stdout, "\n");
}

void Console::print(const QJsonDocument &document)
{
    write(stdout, document.toJson(QJsonDocument::Indented));
}

void Console::complain(const QString &line)
{
    endProgress();
    // In one piece, so that lines of several programs do not mix.
    write(stderr, QByteArray(QByteArrayLiteral("lumora: ") + printableText(line).toUtf8() + '\n'));
}

void Console::complain(const Failure &failure)
{
    complain(failureText(failure));
}

void Console::progress(qsizetype done, qsizetype total, const QString &what)
{
    static const bool terminal = ::isatty(STDERR_FILENO) == 1;
    if (!terminal)
        return;
    write(stderr, QStringLiteral("\r\033[K%1/%2 %3").arg(done).arg(total).arg(printableText(what)).toUtf8());
    m_progressShown = true;
}

void Console::endProgress()
{
    if (!m_progressShown)
        return;
    write(stderr, QByteArrayLiteral("\r\033[K"));
    m_progressShown = false;
}

bool Console::flush()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

} // namespace lumora
