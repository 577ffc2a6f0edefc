// SPDX-License-Identifier: MIT
#pragma once

#include "Complaint.h"
#include "ProgressLine.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace lumora
{

/// How a command ended, as the shell sees it. Scripts rely on these numbers.
enum class ExitStatus : int {
    Done = 0,          ///< everything asked for was done (or, for a check, everything judged is valid)
    Refused = 1,       ///< the input was refused, something could not be written, or a check found something invalid
    Usage = 2,         ///< the call itself is wrong
    Unreadable = 3,    ///< a file could not be read as what it has to be (validation only)
    Interrupted = 130, ///< stopped by Ctrl+C; what is whole stays
    Terminated = 143,  ///< stopped by `kill` or the end of the session; what is whole stays
};

/// What is printed, and how.
struct ConsoleForm
{
    bool json = false;    ///< one JSON value on stdout in place of lines
    bool quiet = false;   ///< nothing but failures; JSON that is asked for all the same
    bool verbose = false; ///< a line on stderr for each step
};

/// The command line's way out: results on stdout; complaints, notes and the progress line on stderr.
///
/// Every complaint is a line on stderr at once and an entry of `errors` in the JSON result, so a command has only to
/// complain and to end with `finish()`.
class Console
{
public:
    explicit Console(const ConsoleForm &form = {}, const QString &commandName = {});

    const ConsoleForm &form() const { return m_form; }

    /// One line of result, UTF-8. Nothing where JSON is asked for or --quiet.
    void print(const QString &line);
    /// Bytes as they are, in every form.
    void print(const QByteArray &bytes);
    /// One JSON value, indented, as the whole result. Commands with one object call `finish()` instead.
    void print(const QJsonDocument &document);
    /// From now on, lines go to stderr: stdout carries a file.
    void keepStdoutForAFile() { m_linesToStderr = true; }

    /// One line on stderr: "lumora: " in front of a failure, "lumora COMMAND: " in front of a misuse; ends a progress
    /// line first. A file's name may hold line breaks and orders to the terminal; they are spelled out.
    void complain(const Complaint &complaint);
    /// The failure worded as `complaintOf` words it.
    void complain(const Failure &failure);
    /// A line on stderr that is no error; nothing with --quiet.
    void warn(const QString &line);
    /// A line on stderr with --verbose only.
    void note(const QString &line);

    /// Shows how far a batch is, on a terminal only; see `ProgressLine`.
    void progress(qsizetype done, qsizetype total, const QString &what);
    void endProgress();

    /// Adds `schema`, `ok` (the status is 0) and `errors` (the complaints since the last object) to a result.
    QJsonObject object(ExitStatus status, QJsonObject result, int schema = 1);
    /// Ends a command: prints the object where JSON is asked for. Answers the status.
    ExitStatus finish(ExitStatus status, const QJsonObject &result = {}, int schema = 1);
    /// False while JSON is asked for and nothing of it was printed.
    bool isFinished() const { return m_finished || !m_form.json; }

    /// False when something meant for stdout could not be written (a full disk, a closed pipe).
    bool flush();

private:
    const ConsoleForm m_form;
    const QString m_commandName;
    QJsonArray m_errors;
    ProgressLine m_progress;
    bool m_linesToStderr = false;
    bool m_finished = false;
};

} // namespace lumora
