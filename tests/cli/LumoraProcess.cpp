// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"

#include <QJsonDocument>
#include <QProcess>

#include <algorithm>
#include <csignal>

#include <fcntl.h>
#include <linux/capability.h>
#include <pty.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace lumora
{

namespace
{

constexpr int longestRun = 60'000;

/// Both ends of a terminal for one process.
class Terminal
{
public:
    Terminal() { ::openpty(&m_master, &m_slave, nullptr, nullptr, nullptr); }
    ~Terminal()
    {
        closeSlave();
        ::close(m_master);
    }
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    int slave() const { return m_slave; }
    void closeSlave()
    {
        if (m_slave >= 0)
            ::close(m_slave);
        m_slave = -1;
    }
    QByteArray shown() const
    {
        ::fcntl(m_master, F_SETFL, O_NONBLOCK);
        QByteArray all;
        char part[4096];
        for (;;) {
            const ssize_t count = ::read(m_master, part, sizeof part);
            if (count <= 0)
                return all;
            all.append(part, count);
        }
    }

private:
    int m_master = -1;
    int m_slave = -1;
};

} // namespace

QString LumoraRun::lastLine() const
{
    return QString::fromUtf8(out.trimmed().split('\n').last());
}

QStringList LumoraRun::complaints() const
{
    QStringList lines;
    for (const QByteArray &line : err.trimmed().split('\n')) {
        if (!line.isEmpty())
            lines << QString::fromUtf8(line);
    }
    return lines;
}

QJsonObject LumoraRun::json() const
{
    return QJsonDocument::fromJson(out).object();
}

LumoraProcess &LumoraProcess::withInput(const QByteArray &input)
{
    m_input = input;
    return *this;
}

LumoraProcess &LumoraProcess::in(const QString &folder)
{
    m_folder = folder;
    return *this;
}

LumoraProcess &LumoraProcess::withLongestFile(quint64 bytes)
{
    m_longestFile = bytes;
    return *this;
}

LumoraProcess &LumoraProcess::withMemory(quint64 bytes)
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    m_memory = bytes;
#else
    Q_UNUSED(bytes)
#endif
    return *this;
}

LumoraProcess &LumoraProcess::underPermissions()
{
    m_permissionsHold = true;
    return *this;
}

LumoraProcess &LumoraProcess::withOutputTo(const QString &path)
{
    m_output = path;
    return *this;
}

LumoraProcess &LumoraProcess::onTerminal()
{
    m_terminal = true;
    return *this;
}

LumoraProcess &LumoraProcess::withVariable(const QString &name, const QString &value)
{
    m_variables << name << value;
    return *this;
}

LumoraProcess &LumoraProcess::of(const QString &program)
{
    m_program = program;
    return *this;
}

LumoraRun LumoraProcess::run(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *screen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(screen));
    for (qsizetype i = 0; i + 1 < m_variables.size(); i += 2)
        environment.insert(m_variables[i], m_variables[i + 1]);
    process.setProcessEnvironment(environment);
    if (!m_folder.isEmpty())
        process.setWorkingDirectory(m_folder);
    if (!m_output.isEmpty())
        process.setStandardOutputFile(m_output);
    std::optional<Terminal> terminal;
    if (m_terminal)
        terminal.emplace();
    const int slave = terminal ? terminal->slave() : -1;
    process.setChildProcessModifier([this, slave] {
        // Between fork and exec: system calls only.
        if (m_longestFile) {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{*m_longestFile, *m_longestFile};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        if (m_memory) {
            const rlimit limit{*m_memory, *m_memory};
            ::setrlimit(RLIMIT_AS, &limit);
        }
        if (m_permissionsHold) {
            ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
            ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
        }
        if (slave >= 0)
            ::dup2(slave, STDERR_FILENO);
    });
    process.start(m_program.isEmpty() ? QStringLiteral(LUMORA_PROGRAM) : m_program, arguments);
    process.write(m_input);
    process.closeWriteChannel();
    LumoraRun run;
    const bool finished =
        process.waitForFinished(longestRun * std::max(qEnvironmentVariableIntValue("LUMORA_TIME_FACTOR"), 1));
    if (!finished) {
        process.kill();
        process.waitForFinished();
    }
    run.status = finished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    if (terminal) {
        terminal->closeSlave();
        run.err += terminal->shown();
    }
    return run;
}

LumoraRun runLumora(const QStringList &arguments)
{
    return LumoraProcess().run(arguments);
}

} // namespace lumora
