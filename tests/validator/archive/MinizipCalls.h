// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace lumora
{

/// Records the calls into minizip while it lives, those that the library makes of itself left out, and lets chosen
/// ones fail. A program that links MinizipCalls.cpp has its own calls pass through here. One at a time.
class MinizipCalls
{
public:
    MinizipCalls();
    ~MinizipCalls();
    Q_DISABLE_COPY_MOVE(MinizipCalls)

    /// The `number`th call of the function from now on (counted from 1) answers an error. A function that closes does
    /// its work all the same.
    void letFail(const QString &function, int number);

    /// Name and arguments of each call, without the handle and the place of a buffer.
    const QStringList &calls() const { return m_calls; }
    /// The names only.
    QStringList names() const;

    /// Called by the stand-ins: notes the call and answers whether it has to fail.
    bool note(const QString &function, const QStringList &arguments);

private:
    QStringList m_calls;
    QString m_failing;
    int m_failsIn = 0;
};

} // namespace lumora
