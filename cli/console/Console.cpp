// SPDX-License-Identifier: MIT
#include "Console.h"

#include "foundation/PrintableText.h"

#include <QJsonDocument>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

void write(std::FILE *stream, QByteArrayView bytes)
{
    // An empty line has no first byte to point at.
    if (!bytes.isEmpty())
        std::fwrite(bytes.data(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

/// In one piece, so that lines of several programs do not mix.
void writeLine(std::FILE *stream, const QString &line)
{
    write(stream, QByteArray(line.toUtf8() + '\n'));
}

} // namespace

Console::Console(const ConsoleForm &form, const QString &commandName)
    : m_form(form), m_commandName(commandName), m_progress(!form.quiet)
{
}

void Console::print(const QString &line)
{
    if (!m_form.json && !m_form.quiet)
        writeLine(m_linesToStderr ? stderr : stdout, line);
}

void Console::print(const QByteArray &bytes)
{
    write(stdout, bytes);
}

void Console::print(const QJsonDocument &document)
{
    m_finished = true;
    write(stdout, document.toJson(QJsonDocument::Indented));
}

void Console::complain(const Complaint &complaint)
{
    endProgress();
    const bool isMisuse = complaint.kind == Complaint::Kind::Misuse && !m_commandName.isEmpty();
    const QString start = isMisuse ? u"lumora "_s + m_commandName + u": "_s : u"lumora: "_s;
    writeLine(stderr, start + printableText(complaint.line()));
    m_errors.append(complaint.json());
}

void Console::complain(const Failure &failure)
{
    complain(complaintOf(failure));
}

void Console::warn(const QString &line)
{
    if (m_form.quiet)
        return;
    endProgress();
    writeLine(stderr, u"lumora: "_s + printableText(line));
}

void Console::note(const QString &line)
{
    if (!m_form.verbose)
        return;
    endProgress();
    writeLine(stderr, printableText(line));
}

void Console::progress(qsizetype done, qsizetype total, const QString &what)
{
    m_progress.show(done, total, what);
}

void Console::endProgress()
{
    m_progress.end();
}

QJsonObject Console::object(ExitStatus status, QJsonObject result, int schema)
{
    result.insert(u"schema"_s, schema);
    result.insert(u"ok"_s, status == ExitStatus::Done);
    result.insert(u"errors"_s, std::exchange(m_errors, {}));
    return result;
}

ExitStatus Console::finish(ExitStatus status, const QJsonObject &result, int schema)
{
    endProgress();
    if (m_form.json && !m_finished)
        print(QJsonDocument(object(status, result, schema)));
    return status;
}

bool Console::flush()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

} // namespace lumora
