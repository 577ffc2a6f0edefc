// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace lumora
{

/// One line on stderr that says how far a batch is: "12/51 Icon.png  140/s". It is written over ten times a second at
/// most, besides the first and the last step, and never longer than the terminal is wide. Where stderr is no terminal,
/// or one that cannot move its cursor (TERM=dumb), nothing is written.
class ProgressLine
{
public:
    explicit ProgressLine(bool isWanted) : m_isWanted(isWanted) {}

    void show(qsizetype done, qsizetype total, const QString &what);
    /// Removes the line.
    void end();

private:
    bool isPossible();

    bool m_isWanted;
    bool m_isChecked = false;
    bool m_isShown = false;
    QElapsedTimer m_sinceStart;
    qint64 m_lastShown = 0; ///< in milliseconds since the start
    qsizetype m_first = 0;
};

} // namespace lumora
