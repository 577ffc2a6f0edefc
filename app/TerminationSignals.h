// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QSocketNotifier;

namespace lumora
{

/// Turns the system's requests to end (a terminal's Ctrl+C, the end of the session, `kill`) into a signal on the main
/// thread, so that the program ends as if its window had been closed. One object per program.
class TerminationSignals final : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminated();

private:
    QSocketNotifier *m_notifier = nullptr;
};

} // namespace lumora
