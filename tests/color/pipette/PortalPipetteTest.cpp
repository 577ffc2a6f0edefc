// SPDX-License-Identifier: MIT
#include "color/pipette/PortalPipette.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The three numbers of a color, as portals send them.
struct PortalColor
{
    double red = 0;
    double green = 0;
    double blue = 0;
};
Q_DECLARE_METATYPE(PortalColor)

static QDBusArgument &operator<<(QDBusArgument &argument, const PortalColor &color)
{
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

static const QDBusArgument &operator>>(const QDBusArgument &argument, PortalColor &color)
{
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

/// A portal that answers at once with what the test sets.
class FakePortal final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")
    Q_PROPERTY(uint version MEMBER version)

public:
    uint version = 2;
    uint response = 0;
    QVariantMap results;
    bool refuses = false;
    bool choosesOwnPath = false;
    bool answers = true;
    int requests = 0;

public slots:
    QDBusObjectPath PickColor(const QString &, const QVariantMap &options)
    {
        ++requests;
        if (refuses) {
            sendErrorReply(QDBusError::AccessDenied, u"no"_s);
            return {};
        }
        QString sender = message().service().mid(1);
        QString path = u"/org/freedesktop/portal/desktop/request/"_s + sender.replace(u'.', u'_') + u'/';
        path += choosesOwnPath ? u"another"_s : options[u"handle_token"_s].toString();
        QDBusMessage answer = QDBusMessage::createSignal(path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        answer << response << results;
        // The portal answers after the user's click, long after the call has returned.
        if (answers)
            QMetaObject::invokeMethod(
                this, [bus = connection(), answer] { bus.send(answer); }, Qt::QueuedConnection);
        if (choosesOwnPath)
            QTimer::singleShot(200, this, [bus = connection(), answer] { bus.send(answer); });
        return QDBusObjectPath(path);
    }
};

/// A message bus of the test's own.
class PortalPipetteTest : public QObject
{
    Q_OBJECT

private:
    QProcess m_daemon;
    QString m_address;

    /// Puts the portal on the bus, over the connection "portal NAME".
    bool offer(FakePortal &portal, const QString &name)
    {
        QDBusConnection bus = QDBusConnection::connectToBus(m_address, u"portal "_s + name);
        return bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
                                  QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties) &&
               bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }

private slots:
    void initTestCase()
    {
        qDBusRegisterMetaType<PortalColor>();
        m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY2(m_daemon.waitForStarted(), "dbus-daemon is needed");
        QTRY_VERIFY(m_daemon.canReadLine());
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    void cleanupTestCase()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    void picks_data()
    {
        QTest::addColumn<uint>("response");
        QTest::addColumn<QVariantMap>("results");
        QTest::addColumn<bool>("refuses");
        QTest::addColumn<bool>("ownPath");
        QTest::addColumn<QString>("end");

        const QVariantMap color{{u"color"_s, QVariant::fromValue(PortalColor{0.2, 0.4, 0.6})}};
        QTest::newRow("a color") << 0U << color << false << false << u"picked"_s;
        QTest::newRow("a color under a path of the portal's choice") << 0U << color << false << true << u"picked"_s;
        QTest::newRow("the user changed their mind") << 1U << QVariantMap() << false << false << u"cancelled"_s;
        QTest::newRow("it failed") << 2U << QVariantMap() << false << false << u"failed"_s;
        QTest::newRow("no color in the answer") << 0U << QVariantMap() << false << false << u"failed"_s;
        QTest::newRow("something else than a color in the answer")
            << 0U << QVariantMap{{u"color"_s, u"#336699"_s}} << false << false << u"failed"_s;
        QTest::newRow("access is denied") << 0U << color << true << false << u"failed"_s;
    }
    void picks()
    {
        QFETCH(uint, response);
        QFETCH(QVariantMap, results);
        QFETCH(bool, refuses);
        QFETCH(bool, ownPath);
        QFETCH(QString, end);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        {
            const QDBusConnection bus = QDBusConnection::connectToBus(m_address, u"client "_s + name);
            FakePortal portal;
            portal.response = response;
            portal.results = results;
            portal.refuses = refuses;
            portal.choosesOwnPath = ownPath;
            QVERIFY(offer(portal, name));

            PortalPipette pipette(bus);
            QSignalSpy picked(&pipette, &Pipette::picked);
            QSignalSpy canceled(&pipette, &Pipette::canceled);
            QSignalSpy failed(&pipette, &Pipette::failed);
            pipette.pick(nullptr);
            QTRY_COMPARE(picked.count() + canceled.count() + failed.count(), 1);
            QCOMPARE(picked.count(), end == u"picked" ? 1 : 0);
            QCOMPARE(canceled.count(), end == u"cancelled" ? 1 : 0);
            if (end == u"picked")
                QCOMPARE(picked.at(0).at(0).value<RgbaColor>(), (RgbaColor{0.2F, 0.4F, 0.6F, 1.0F}));
        }
        QDBusConnection::disconnectFromBus(u"portal "_s + name);
        QDBusConnection::disconnectFromBus(u"client "_s + name);
    }

    void knowsWhetherThereIsAPortal_data()
    {
        QTest::addColumn<bool>("bus");
        QTest::addColumn<uint>("version"); // 0 means no portal

        QTest::newRow("no bus") << false << 0U;
        QTest::newRow("no portal on the bus") << true << 0U;
        QTest::newRow("a portal before it could pick") << true << 1U;
    }
    void knowsWhetherThereIsAPortal()
    {
        QFETCH(bool, bus);
        QFETCH(uint, version);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        {
            FakePortal portal;
            portal.version = version;
            if (version > 0)
                QVERIFY(offer(portal, name));
            PortalPipette pipette(bus ? QDBusConnection::connectToBus(m_address, name) : QDBusConnection(name));
            const QSignalSpy unavailable(&pipette, &PortalPipette::unavailable);
            const QSignalSpy picked(&pipette, &Pipette::picked);
            const QSignalSpy failed(&pipette, &Pipette::failed);
            pipette.pick(nullptr);
            QTRY_COMPARE(unavailable.count(), 1);
            QCOMPARE(picked.count() + failed.count(), 0);
        }
        QDBusConnection::disconnectFromBus(name);
        QDBusConnection::disconnectFromBus(u"portal "_s + name);
    }

    void aPortalThatGoesHasFailed()
    {
        {
            FakePortal portal;
            portal.answers = false;
            QVERIFY(offer(portal, u"mortal"_s));
            PortalPipette pipette(QDBusConnection::connectToBus(m_address, u"client of the mortal"_s));
            const QSignalSpy failed(&pipette, &Pipette::failed);
            pipette.pick(nullptr);
            QTRY_COMPARE(portal.requests, 1);
            QDBusConnection::disconnectFromBus(u"portal mortal"_s);
            QTRY_COMPARE(failed.count(), 1);
        }
        QDBusConnection::disconnectFromBus(u"client of the mortal"_s);
    }
};

QTEST_GUILESS_MAIN(PortalPipetteTest)
#include "PortalPipetteTest.moc"
