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

/// The exit status of a command. Scripts rely on these numbers.
enum class ExitStatus : int {
    Done = 0,          ///< everything was done (or, for a check, everything is valid)
    Refused = 1,       ///< the input was refused, something could not be written, or a check found something invalid
    Usage = 2,         ///< the call itself is wrong
    Unreadable = 3,    ///< a package, or a list of rules for it, could not be read
    Interrupted = 130, ///< stopped by Ctrl+C; complete files stay
    Terminated = 143,  ///< stopped by `kill` or the end of the session; complete files stay
};

/// The form and amount of the output.
struct ConsoleForm
{
    bool json = false;    ///< one JSON value on stdout instead of lines
    bool quiet = false;   ///< only failures, and the JSON if it is asked for
    bool verbose = false; ///< a line on stderr for each step
};

/// The command line's output: results on stdout; complaints, notes and the progress line on stderr.
///
/// Every complaint is at once a line on stderr and an entry of `errors` in the JSON result, so a command only needs to
/// complain and to end with `finish()`.
class Console
{
public:
    explicit Console(const ConsoleForm &form = {}, const QString &commandName = {});

    const ConsoleForm &form() const { return m_form; }

    /// Prints one line of the result in UTF-8; nothing with --json or --quiet.
    void print(const QString &line);
    /// Prints the bytes unchanged, with all options.
    void print(const QByteArray &bytes);
    /// Prints one indented JSON value as the whole result. Commands with one object call `finish()` instead.
    void print(const QJsonDocument &document);
    /// From now on, lines go to stderr, since stdout carries a file.
    void keepStdoutForAFile() { m_linesToStderr = true; }

    /// Prints one line on stderr, with "lumora: " before a failure and "lumora COMMAND: " before a misuse; ends a
    /// progress line first. Line breaks and control characters in a file's name are printed as code points.
    void complain(const Complaint &complaint);
    /// Complains about the failure in the words of `complaintOf`.
    void complain(const Failure &failure);
    /// Prints a line on stderr that is not an error; nothing with --quiet.
    void warn(const QString &line);
    /// Prints a line on stderr, with --verbose only.
    void note(const QString &line);

    /// Shows the progress of a batch, on a terminal only; see `ProgressLine`.
    void progress(qsizetype done, qsizetype total, const QString &what);
    void endProgress();

    /// Adds `schema`, `ok` (the status is 0) and `errors` (the complaints since the last object) to a result.
    QJsonObject object(ExitStatus status, QJsonObject result, int schema = 1);
    /// Ends a command: prints the object with --json. Returns the status.
    ExitStatus finish(ExitStatus status, const QJsonObject &result = {}, int schema = 1);
    /// False while JSON is asked for and was not printed.
    bool isFinished() const { return m_finished || !m_form.json; }

    /// False when output to stdout could not be written (a full disk, a closed pipe).
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
