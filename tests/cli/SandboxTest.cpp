// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "tests/doubles/ScriptedFiles.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The kernel feature that is needed to refuse a fault.
enum class Held { Files, Calls };

enum class ReadBy { Command, Window, Inspection };

} // namespace

/// Tries, from inside the code that unpacks an archive, what it can do to the rest of the machine.
class SandboxTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()}));
        QVERIFY(QDir(m_home.path()).mkdir(u"folder"_s));
        m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray path = QFile::encodeName(at(u"socket"_s));
        QVERIFY(static_cast<std::size_t>(path.size()) < sizeof address.sun_path);
        std::copy(path.cbegin(), path.cend(), address.sun_path);
        QCOMPARE(::bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        QCOMPARE(::listen(m_socket, 16), 0);
    }
    void cleanupTestCase() { ::close(m_socket); }

    void refusesWhatAFaultTries_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("place");
        QTest::addColumn<Held>("held");
        QTest::newRow("read a file of the user's") << u"read"_s << u"secret"_s << Held::Files;
        QTest::newRow("list a folder of the user's") << u"list"_s << u"folder"_s << Held::Files;
        QTest::newRow("make a file") << u"create"_s << u"new"_s << Held::Files;
        QTest::newRow("empty a file") << u"empty"_s << u"secret"_s << Held::Files;
        QTest::newRow("remove a file") << u"remove"_s << u"secret"_s << Held::Files;
        QTest::newRow("change the package itself") << u"empty"_s << u"App.ipa"_s << Held::Files;
        QTest::newRow("connect to a local program") << u"connect"_s << u"socket"_s << Held::Calls;
        QTest::newRow("reach the network") << u"internet"_s << u""_s << Held::Calls;
        QTest::newRow("start a program") << u"start"_s << u""_s << Held::Calls;
        QTest::newRow("fork") << u"fork"_s << u""_s << Held::Calls;
        QTest::newRow("signal another process") << u"signal"_s << u""_s << Held::Calls;
        QTest::newRow("take hold of another process") << u"hold"_s << u""_s << Held::Calls;
    }
    void refusesWhatAFaultTries()
    {
        QFETCH(Held, held);
        const LumoraRun open = planted({u"--no-sandbox"_s});
        QVERIFY2(open.err.contains(": done"), open.err);
        QVERIFY2(open.err.contains("Not locked in: --no-sandbox"), open.err);
        const LumoraRun locked = planted({});
        const bool offered = locked.err.contains(held == Held::Files ? "(Landlock)" : "(seccomp)");
        QVERIFY2(locked.err.contains(offered ? ": refused" : ": done"), locked.err);
        const LumoraRun usual = runLumora({u"validate"_s, at(u"App.ipa"_s)});
        QVERIFY2(locked.out == usual.out, "the report is the same");
        QCOMPARE(locked.status, 0);
    }

    void locksTheWindowsReaderInToo_data() { refusesWhatAFaultTries_data(); }
    void locksTheWindowsReaderInToo() { refusesInTheWindows(ReadBy::Window, "\nreview "); }

    void locksTheWindowsInspectionInToo_data() { refusesWhatAFaultTries_data(); }
    void locksTheWindowsInspectionInToo() { refusesInTheWindows(ReadBy::Inspection, "artwork "); }

    void writesItsOutputsAllTheSame_data()
    {
        QTest::addColumn<QString>("icon");
        QTest::addColumn<bool>("existing");
        QTest::newRow("a new file") << u"icon.png"_s << false;
        QTest::newRow("a file that is there") << u"icon.png"_s << true;
        QTest::newRow("in a folder") << u"folder/icon.png"_s << false;
    }
    void writesItsOutputsAllTheSame()
    {
        QFETCH(QString, icon);
        QFETCH(bool, existing);
        QFile::remove(at(icon));
        if (existing)
            write(icon);
        write(u"App.ipa"_s);
        LumoraProcess process;
        process.in(m_home.path());
        const LumoraRun run = process.run({u"validate"_s, u"App.ipa"_s, u"--icon"_s, icon, u"--verbose"_s});
        QVERIFY2(run.status == 0, run.err);
        QVERIFY2(run.err.contains("ocked in: "), run.err);
        QCOMPARE(QImage(at(icon)).size(), QSize(128, 128));
    }

    void readsStandardInputAndLeavesNothing()
    {
        const QTemporaryDir work;
        write(u"App.ipa"_s);
        QFile package(at(u"App.ipa"_s));
        QVERIFY(package.open(QIODevice::ReadOnly));
        LumoraProcess process;
        process.withInput(package.readAll()).withVariable(u"TMPDIR"_s, work.path());
        const LumoraRun run = process.run({u"validate"_s, u"-"_s});
        QVERIFY2(run.status == 0, run.err);
        QVERIFY(treeBelow(work.path()).isEmpty());
    }

    void readsFoldersAndLinks()
    {
        write(u"App.ipa"_s);
        QFile::link(at(u"App.ipa"_s), at(u"link.ipa"_s));
        QCOMPARE(runLumora({u"validate"_s, at(u"link.ipa"_s), at(u"App.ipa"_s)}).status, 0);
    }

private:
    QString at(const QString &name) const { return m_home.filePath(name); }
    void write(const QString &name)
    {
        QFile::remove(at(name));
        QVERIFY(QFile::copy(m_packages.filePath(u"valid.ipa"_s), at(name)));
    }

    void refusesInTheWindows(ReadBy reader, const char *answer)
    {
        QFETCH(Held, held);
        const LumoraRun command = planted({});
        const bool offered = command.err.contains(held == Held::Files ? "(Landlock)" : "(seccomp)");
        const LumoraRun locked = planted({}, reader);
        QVERIFY2(locked.err.contains(offered ? ": refused" : ": done"), locked.err);
        QCOMPARE(locked.status, 0);
        QVERIFY2(locked.out.contains(answer), locked.out);
    }

    /// A run whose unpacking tries the row's fault on new files.
    LumoraRun planted(const QStringList &options, ReadBy reader = ReadBy::Command)
    {
        QFETCH(QString, fault);
        QFETCH(QString, place);
        write(u"App.ipa"_s);
        write(u"secret"_s);
        QFile::remove(at(u"new"_s));
        LumoraProcess process;
        process.withVariable(u"LD_PRELOAD"_s, QStringLiteral(LUMORA_PLANTED_FAULT_LIBRARY))
            .withVariable(u"LUMORA_PLANTED_FAULT"_s, fault)
            .withVariable(u"LUMORA_PLANTED_PLACE"_s, place.isEmpty() ? u"none"_s : at(place));
        if (reader == ReadBy::Inspection) {
            const QTemporaryDir work;
            if (!QDir(work.path()).mkdir(u"Documents"_s))
                return {};
            return process.of(QStringLiteral(LUMORA_WINDOW_PROGRAM))
                .run({u"--inspect-package"_s, at(u"App.ipa"_s), work.path(), u"1"_s});
        }
        if (reader == ReadBy::Window)
            return process.of(QStringLiteral(LUMORA_WINDOW_PROGRAM)).run({u"--read-package"_s, at(u"App.ipa"_s)});
        return process.run(QStringList{u"validate"_s, u"--verbose"_s, at(u"App.ipa"_s)} + options);
    }

    QTemporaryDir m_packages;
    QTemporaryDir m_home;
    int m_socket = -1;
};

QTEST_GUILESS_MAIN(SandboxTest)
#include "SandboxTest.moc"
