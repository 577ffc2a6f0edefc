// SPDX-License-Identifier: MIT
#include "app/SilentBus.h"
#include "app/BusApplication.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace lumora;
using namespace std::chrono_literals;

namespace
{

/// A socket that accepts connections and never answers.
class Listener
{
public:
    explicit Listener(const QByteArray &path) : m_descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        qstrncpy(place.sun_path, path.constData(), sizeof place.sun_path);
        m_listens = ::bind(m_descriptor, reinterpret_cast<const sockaddr *>(&place), sizeof place) == 0 &&
                    ::listen(m_descriptor, 4) == 0;
    }
    ~Listener() { ::close(m_descriptor); }
    Q_DISABLE_COPY_MOVE(Listener)

    bool listens() const { return m_listens; }

private:
    int m_descriptor;
    bool m_listens = false;
};

} // namespace

class SilentBusTest : public QObject
{
    Q_OBJECT

private slots:
    void addressesThatAreNotLookedAt_data()
    {
        QTest::addColumn<QByteArray>("address");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("nobody there") << QByteArray("unix:path=/nonexistent/bus");
        QTest::newRow("another kind") << QByteArray("tcp:host=localhost,port=1");
        QTest::newRow("too long") << "unix:path=/" + QByteArray(200, 'x');
    }
    void addressesThatAreNotLookedAt()
    {
        QFETCH(QByteArray, address);
        QVERIFY(!isSilentBus(address, 100ms));
    }

    void busThatAnswersIsNotSilent()
    {
        QProcess daemon;
        daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s, u"--print-address"_s,
                                        u"--address=unix:path="_s + m_folder.filePath(u"answers"_s)});
        QVERIFY(daemon.waitForReadyRead());
        const QByteArray address = daemon.readLine().trimmed();
        QVERIFY(address.startsWith("unix:path="));
        QVERIFY(!isSilentBus(address, 20s));
        daemon.terminate();
        daemon.waitForFinished();
    }

    void programDoesNotJoinASilentBus()
    {
        const QByteArray path = QFile::encodeName(m_folder.filePath(u"silent"_s));
        const Listener listener(path);
        QVERIFY(listener.listens());
        const QByteArray address = "unix:path=" + path + ",guid=0123";
        QVERIFY(isSilentBus(address, 100ms));
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        BusApplication application;
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(application.start({}, 200ms), BusApplication::Start::Alone);
        QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
        // Nor do other parts of the program connect.
        QVERIFY(qgetenv("DBUS_SESSION_BUS_ADDRESS") != address);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(SilentBusTest)
#include "SilentBusTest.moc"
