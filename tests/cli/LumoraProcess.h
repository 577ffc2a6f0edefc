// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace lumora
{

/// The result of one run of the program.
struct LumoraRun
{
    int status = -1; ///< exit status; -1 when it crashed, hung or did not start
    QByteArray out;
    QByteArray err;

    /// The last line of stdout, without its line break.
    QString lastLine() const;
    /// Every line of stderr.
    QStringList complaints() const;
    /// stdout as one JSON object; empty if it is something else.
    QJsonObject json() const;
};

/// Runs the built `lumora` as a process of its own, as a script would, without a screen.
class LumoraProcess
{
public:
    /// The content of standard input; empty by default.
    LumoraProcess &withInput(const QByteArray &input);
    /// The working folder.
    LumoraProcess &in(const QString &folder);
    /// Limits the length of every written file, as on a full disk (the system reports "File too large").
    LumoraProcess &withLongestFile(quint64 bytes);
    /// Limits the address space. Has no effect in a build with sanitizers, whose shadow memory needs more.
    LumoraProcess &withMemory(quint64 bytes);
    /// Drops root's right to ignore file permissions, so that they also hold in a container.
    LumoraProcess &underPermissions();
    /// stdout goes to this file or device instead of `LumoraRun::out`.
    LumoraProcess &withOutputTo(const QString &path);
    /// Makes stderr a terminal; its output is `LumoraRun::err`.
    LumoraProcess &onTerminal();
    /// Sets a variable of the program's environment.
    LumoraProcess &withVariable(const QString &name, const QString &value);

    /// Runs another program in the place of `lumora`.
    LumoraProcess &of(const QString &program);

    /// Runs the program to its end, for at most one minute.
    LumoraRun run(const QStringList &arguments) const;

private:
    QString m_program;
    QByteArray m_input;
    QString m_folder;
    QString m_output;
    QStringList m_variables;
    std::optional<quint64> m_longestFile;
    std::optional<quint64> m_memory;
    bool m_permissionsHold = false;
    bool m_terminal = false;
};

/// Runs the program with the default settings.
LumoraRun runLumora(const QStringList &arguments);

} // namespace lumora
