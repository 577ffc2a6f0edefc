// SPDX-License-Identifier: MIT
// A start of the program while another program has its name on the bus, and the ways in which that one may behave.
#include "app/BusApplication.h"
#include "foundation/Version.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace lumora;
using namespace std::chrono_literals;

namespace
{

const QString id = QString::fromLatin1(applicationId);

enum class Manner { Answers, AnswersLate, Refuses, NeverAnswers, EndsWhenCalled };

/// Another program with the name. It runs on a thread of its own, since its caller waits.
class OtherProgram final : public QDBusVirtualObject
{
public:
    explicit OtherProgram(Manner manner)
        : m_manner(manner), m_bus(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), name))
    {
        moveToThread(&m_thread);
        m_thread.start();
        m_bus.registerVirtualObject(BusApplication::objectPath(id), this, QDBusConnection::SingleNode);
        m_isOwner = m_bus.registerService(id);
    }
    ~OtherProgram() override
    {
        leave();
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(OtherProgram)

    bool isOwner() const { return m_isOwner; }
    void leave()
    {
        m_bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name);
    }
    /// "Open file:///a.png" and so on. Read it once the caller has its answer.
    QStringList calls;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.interface() != u"org.freedesktop.Application"_s)
            return false;
        const QVariant argument = message.arguments().first();
        const QStringList named = argument.canConvert<QStringList>() ? argument.toStringList() : QStringList();
        calls << (QStringList{message.member()} + named).join(u' ');
        if (m_manner == Manner::AnswersLate)
            QThread::sleep(1);
        if (m_manner == Manner::Answers || m_manner == Manner::AnswersLate)
            connection.send(message.createReply());
        if (m_manner == Manner::Refuses)
            connection.send(message.createErrorReply(QDBusError::Failed, u"no"_s));
        if (m_manner == Manner::EndsWhenCalled)
            leave();
        return true;
    }

private:
    static inline const QString name = u"other"_s;

    Manner m_manner;
    QThread m_thread;
    QDBusConnection m_bus;
    bool m_isOwner = false;
};

} // namespace

class SecondStartTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s, u"--print-address"_s});
        QVERIFY(m_daemon.waitForStarted());
        QVERIFY(m_daemon.waitForReadyRead());
        const QByteArray address = m_daemon.readLine().trimmed();
        QVERIFY(!address.isEmpty());
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QVERIFY(QDBusConnection::sessionBus().isConnected());
    }
    void cleanup() { QDBusConnection::sessionBus().interface()->unregisterService(id); }
    void cleanupTestCase()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    void firstOneTakesTheName()
    {
        BusApplication application;
        QCOMPARE(application.start({}), BusApplication::Start::First);
        QVERIFY(isMine());
    }

    void requestsGoToTheRunningProgram_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("calls");
        const QStringList none;
        QTest::newRow("nothing in particular") << QString() << none << QStringList{u"Activate"_s};
        QTest::newRow("a tool") << u"devices"_s << none << QStringList{u"ActivateAction devices"_s};
        QTest::newRow("files in their order")
            << QString() << QStringList{u"/b.png"_s, u"/a.ipa"_s} << QStringList{u"Open file:///b.png file:///a.ipa"_s};
        QTest::newRow("a tool and a file") << u"icons"_s << QStringList{u"/b.png"_s}
                                           << QStringList{u"ActivateAction icons"_s, u"Open file:///b.png"_s};
        QTest::newRow("blanks, signs and other scripts")
            << QString() << QStringList{u"/my ü/画 #1 100%?.png"_s}
            << QStringList{u"Open file:///my%20%C3%BC/%E7%94%BB%20%231%20100%25%3F.png"_s};
    }
    void requestsGoToTheRunningProgram()
    {
        QFETCH(QString, tool);
        QFETCH(QStringList, files);
        const OtherProgram running(Manner::Answers);
        QVERIFY(running.isOwner());
        BusApplication application;
        QCOMPARE(application.start({tool, files}), BusApplication::Start::Forwarded);
        QTEST(running.calls, "calls");
    }

    void todayGoesToTheRunningProgramToo_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("alone") << QString() << QStringList{u"ActivateAction today"_s};
        QTest::newRow("with a tool") << u"color"_s << QStringList{u"ActivateAction today"_s, u"ActivateAction color"_s};
    }
    void todayGoesToTheRunningProgramToo()
    {
        QFETCH(QString, tool);
        const OtherProgram running(Manner::Answers);
        QVERIFY(running.isOwner());
        BusApplication application;
        QCOMPARE(application.start({tool, {}, true}), BusApplication::Start::Forwarded);
        QTEST(running.calls, "calls");
    }

    void addressesArriveAsTheFilesTheyWere()
    {
        const QString name = u"/my ü/画 #1 100%?.png"_s;
        BusApplication application;
        QStringList opened;
        connect(&application, &BusApplication::filesOpened, this, [&](const QStringList &files) { opened = files; });
        application.Open({QUrl::fromLocalFile(name).toString(QUrl::FullyEncoded)}, {});
        QCOMPARE(opened, QStringList{name});
    }

    void busyProgramIsWaitedFor()
    {
        const OtherProgram running(Manner::AnswersLate);
        BusApplication application;
        QCOMPARE(application.start({{}, {u"/a.png"_s}}), BusApplication::Start::Forwarded);
    }

    void programThatDoesNotAnswerIsReplacedOnceItIsGone_data()
    {
        QTest::addColumn<Manner>("manner");
        QTest::newRow("hangs") << Manner::NeverAnswers;
        QTest::newRow("refuses") << Manner::Refuses;
    }
    void programThatDoesNotAnswerIsReplacedOnceItIsGone()
    {
        QFETCH(Manner, manner);
        OtherProgram running(manner);
        BusApplication application;
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(application.start({u"icons"_s, {u"/a.png"_s}}, 300ms), BusApplication::Start::Alone);
        // One time limit for all calls together; a busy machine may add some time.
        QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(running.calls, QStringList{u"ActivateAction icons"_s});
        QVERIFY(!isMine());
        running.leave();
        QTRY_VERIFY(isMine());
    }

    void patienceIsBounded() { QVERIFY(BusApplication::defaultPatience <= 5s); }

    void programThatEndsMeanwhileIsReplaced()
    {
        OtherProgram running(Manner::EndsWhenCalled);
        BusApplication application;
        QCOMPARE(application.start({{}, {u"/a.png"_s}}), BusApplication::Start::First);
        QVERIFY(isMine());
    }

private:
    static bool isMine()
    {
        const QDBusConnection bus = QDBusConnection::sessionBus();
        return bus.interface()->serviceOwner(id).value() == bus.baseService();
    }

    QProcess m_daemon;
};

QTEST_GUILESS_MAIN(SecondStartTest)
#include "SecondStartTest.moc"
