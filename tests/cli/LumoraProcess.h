// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace lumora
{

/// How one run of the program ended.
struct LumoraRun
{
    int status = -1; ///< exit status; -1 when it crashed, hung or did not start
    QByteArray out;
    QByteArray err;

    /// The last line of stdout, without its end.
    QString lastLine() const;
    /// Every line of stderr.
    QStringList complaints() const;
    /// stdout as one JSON object; empty where it is something else.
    QJsonObject json() const;
};

/// Runs the built `lumora` as a process of its own, as a script would, without a screen.
class LumoraProcess
{
public:
    /// What standard input holds; empty by default.
    LumoraProcess &withInput(const QByteArray &input);
    /// The working folder.
    LumoraProcess &in(const QString &folder);
    /// Every file it writes ends at that length, as on a full disk (the system answers "File too large").
    LumoraProcess &withLongestFile(quint64 bytes);
    /// It gets no more address space than that. Has no effect in a build with sanitizers, whose shadow takes more.
    LumoraProcess &withMemory(quint64 bytes);
    /// Takes the right to pass over file permissions, which root has, so that they hold in a container too.
    LumoraProcess &underPermissions();
    /// stdout goes to this file or device instead of `LumoraRun::out`.
    LumoraProcess &withOutputTo(const QString &path);
    /// stderr is a terminal; what it shows is `LumoraRun::err`.
    LumoraProcess &onTerminal();
    /// Sets a variable of its environment.
    LumoraProcess &withVariable(const QString &name, const QString &value);

    /// Runs it to its end, or for one minute.
    LumoraRun run(const QStringList &arguments) const;

private:
    QByteArray m_input;
    QString m_folder;
    QString m_output;
    QStringList m_variables;
    std::optional<quint64> m_longestFile;
    std::optional<quint64> m_memory;
    bool m_permissionsHold = false;
    bool m_terminal = false;
};

/// Runs it without anything special.
LumoraRun runLumora(const QStringList &arguments);

} // namespace lumora
