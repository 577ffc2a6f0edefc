// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QJsonDocument>
#include <QString>

namespace lumora
{

/// How a command ended, as the shell sees it. Scripts rely on these numbers.
enum class ExitStatus : int {
    Done = 0,       ///< everything asked for was done (or, for a check, everything judged is valid)
    Refused = 1,    ///< the input was refused, something could not be written, or a check found something invalid
    Usage = 2,      ///< the call itself is wrong
    Unreadable = 3, ///< a file could not be read as what it has to be (validation only)
};

/// The command line's way out: results on stdout, one line per failure and the progress line on stderr.
class Console
{
public:
    /// One line of result, UTF-8.
    void print(const QString &line);
    /// One JSON value, indented, as the whole result.
    void print(const QJsonDocument &document);
    /// One line on stderr, "lumora: ..." in front; ends a progress line first. A file's name may hold line breaks and
    /// orders to the terminal; they are spelled out.
    void complain(const QString &line);
    /// The failure worded as `failureText` words it.
    void complain(const Failure &failure);
    /// Replaces the progress line on a terminal; writes nothing where stderr is none.
    void progress(qsizetype done, qsizetype total, const QString &what);
    /// Removes the progress line.
    void endProgress();
    /// False when something meant for stdout could not be written (a full disk, a closed pipe).
    bool flush();

private:
    bool m_progressShown = false;
};

} // namespace lumora
