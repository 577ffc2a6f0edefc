// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QJsonObject>
#include <QString>

namespace lumora
{

/// One problem, worded for people in the user's language: a line on stderr, and an entry of `errors` in the JSON
/// result.
struct Complaint
{
    enum class Kind {
        Failure, ///< the work failed: because of a file, a value, the disk
        Misuse,  ///< the call itself is wrong
    };

    Kind kind = Kind::Failure;
    QString code;    ///< one word for scripts, the same in every language and release: "not-found"
    QString path;    ///< the file or value concerned, as the user named it; may be empty
    QString message; ///< the problem, without the path
    QString advice;  ///< the remedy; may be empty

    /// "PATH: MESSAGE; ADVICE", without the parts that are empty.
    QString line() const;
    /// The entry of `errors`: `code`, `path` (or null), `message`, `advice`.
    QJsonObject json() const;
};

/// The failure in words for people.
Complaint complaintOf(const Failure &failure);
/// The same with other advice than the usual one.
Complaint complaintOf(const Failure &failure, const QString &advice);
/// A complaint about the call: an exit status of 2 goes with it.
Complaint misuse(const char *code, const QString &message, const QString &advice = {});

} // namespace lumora
