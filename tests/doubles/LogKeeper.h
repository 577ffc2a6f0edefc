// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QtGlobal>

namespace lumora
{

/// Collects the log lines while it exists. Only one may exist at a time.
class LogKeeper
{
public:
    LogKeeper()
    {
        s_lines.clear();
        m_before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &line) { s_lines += line; });
    }
    ~LogKeeper() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY_MOVE(LogKeeper)

    const QStringList &lines() const { return s_lines; }

private:
    static inline QStringList s_lines;
    QtMessageHandler m_before = nullptr;
};

} // namespace lumora
