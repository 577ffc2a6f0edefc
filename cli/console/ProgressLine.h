// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace lumora
{

/// One line on stderr with the progress of a batch: "12/51 Icon.png  140/s". It is rewritten at most ten times a
/// second, plus at the first and the last step, and is never longer than the terminal's width. Nothing is written if
/// stderr is not a terminal, or one that cannot move its cursor (TERM=dumb).
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
