// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QJsonObject>
#include <QString>

namespace lumora
{

/// One thing that is wrong, worded for people in the language of the texts: a line on stderr, and an entry of `errors`
/// in the JSON result.
struct Complaint
{
    enum class Kind {
        Failure, ///< the work met something: a file, a value, the disk
        Misuse,  ///< the call itself is wrong
    };

    Kind kind = Kind::Failure;
    QString code;    ///< one word for scripts, the same in every language and release: "not-found"
    QString path;    ///< the file or value concerned, as it was named; empty where there is none
    QString message; ///< what is wrong, without the path
    QString advice;  ///< what to do; may be empty

    /// "PATH: MESSAGE; ADVICE", without the parts that are empty.
    QString line() const;
    /// The entry of `errors`: `code`, `path` (null where there is none), `message`, `advice`.
    QJsonObject json() const;
};

/// The failure as a person at a terminal reads it.
Complaint complaintOf(const Failure &failure);
/// The same with other advice than the failure usually comes with.
Complaint complaintOf(const Failure &failure, const QString &advice);
/// A complaint about the call: an exit status of 2 goes with it.
Complaint misuse(const char *code, const QString &message, const QString &advice = {});

} // namespace lumora
