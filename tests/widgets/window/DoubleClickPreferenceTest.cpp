// SPDX-License-Identifier: MIT
#include "widgets/window/DoubleClickPreference.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QTest>

#include <memory>

using namespace lumora;
using namespace Qt::StringLiterals;

/// A settings portal with one setting. Like the real one, it returns a variant in a variant.
class SettingsPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    SettingsPortal() : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s))
    {
        m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                             QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    ~SettingsPortal() override { QDBusConnection::disconnectFromBus(u"portal"_s); }

    QString action;
    bool knowsTheSetting = true;
    int reads = 0;

public slots:
    QDBusVariant Read(const QString &group, const QString &key)
    {
        ++reads;
        if (!knowsTheSetting || group != u"org.gnome.desktop.wm.preferences" || key != u"action-double-click-titlebar")
            sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no such setting"_s);
        return QDBusVariant(QVariant::fromValue(QDBusVariant(action)));
    }

signals:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_bus;
};

class DoubleClickPreferenceTest : public QObject
{
    Q_OBJECT

private slots:
    void readsTheSetting_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("known");
        QTest::addColumn<bool>("miniaturizes");
        QTest::newRow("minimise") << u"minimize"_s << true << true;
        QTest::newRow("maximise") << u"toggle-maximize"_s << true << false;
        QTest::newRow("nothing") << u"none"_s << true << false;
        QTest::newRow("a setting the desktop does not have") << u"minimize"_s << false << false;
    }
    void readsTheSetting()
    {
        QFETCH(QString, action);
        QFETCH(bool, known);
        SettingsPortal portal;
        portal.action = action;
        portal.knowsTheSetting = known;
        const DesktopDoubleClickPreference preference;
        QVERIFY(!preference.miniaturizesOnDoubleClick()); // there is no answer yet
        QTRY_COMPARE(portal.reads, 1);
        QTest::qWait(50); // for the answer, which in most rows changes nothing that could be waited for
        QTEST(preference.miniaturizesOnDoubleClick(), "miniaturizes");
        QCOMPARE(preference.zoomsOnDoubleClick(), known && action == u"toggle-maximize");
    }

    void followsTheSetting()
    {
        SettingsPortal portal;
        portal.action = u"none"_s;
        const DesktopDoubleClickPreference preference;
        QTRY_COMPARE(portal.reads, 1);
        const QString group = u"org.gnome.desktop.wm.preferences"_s;
        const QString key = u"action-double-click-titlebar"_s;
        emit portal.SettingChanged(group, key, QDBusVariant(u"minimize"_s));
        QTRY_VERIFY(preference.miniaturizesOnDoubleClick());
        emit portal.SettingChanged(u"org.gnome.desktop.interface"_s, key, QDBusVariant(u"none"_s));
        emit portal.SettingChanged(group, u"button-layout"_s, QDBusVariant(u"none"_s));
        emit portal.SettingChanged(group, key, QDBusVariant(u"lower"_s));
        QTRY_VERIFY(!preference.miniaturizesOnDoubleClick());
        emit portal.SettingChanged(group, key, QDBusVariant(u"minimize"_s));
        QTRY_VERIFY(preference.miniaturizesOnDoubleClick());
    }

    void doesNothingWithoutAPortal()
    {
        const DesktopDoubleClickPreference preference;
        QTest::qWait(50);
        QVERIFY(!preference.miniaturizesOnDoubleClick());
    }
};

QTEST_GUILESS_MAIN(DoubleClickPreferenceTest)
#include "DoubleClickPreferenceTest.moc"
