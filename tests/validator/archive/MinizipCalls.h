// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace lumora
{

/// Records the calls into minizip while it exists, except the library's calls of itself, and lets chosen calls fail.
/// The calls of a program that links MinizipCalls.cpp pass through here. Only one may exist at a time.
class MinizipCalls
{
public:
    MinizipCalls();
    ~MinizipCalls();
    Q_DISABLE_COPY_MOVE(MinizipCalls)

    /// Lets the `number`th call of the function from now on (counted from 1) return an error. A function that closes
    /// still does its work.
    void letFail(const QString &function, int number);

    /// The name and arguments of each call, without the handle and the address of a buffer.
    const QStringList &calls() const { return m_calls; }
    /// The names only.
    QStringList names() const;

    /// Called by the replaced functions: records the call and returns whether it must fail.
    bool note(const QString &function, const QStringList &arguments);

private:
    QStringList m_calls;
    QString m_failing;
    int m_failsIn = 0;
};

} // namespace lumora
