// SPDX-License-Identifier: MIT
#include "tool/services/FileManager.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace lumora;

/// A file manager on the bus.
class Manager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public slots:
    void ShowItems(const QStringList &uris, const QString &) { shown << uris; }
};

/// A portal that opens folders.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.OpenURI")

public:
    QStringList shown;

public slots:
    QDBusObjectPath OpenDirectory(const QString &, const QDBusUnixFileDescriptor &folder, const QVariantMap &)
    {
        shown << QFileInfo(u"/proc/self/fd/%1"_s.arg(folder.fileDescriptor())).symLinkTarget();
        return QDBusObjectPath(u"/request"_s);
    }
};

class FileManagerTest : public QObject
{
    Q_OBJECT

private:
    QStringList m_opened;

public slots:
    void opened(const QUrl &url) { m_opened << url.toLocalFile(); }

private slots:
    void goesToWhoeverAnswers_data()
    {
        QTest::addColumn<bool>("hasManager");
        QTest::addColumn<bool>("hasPortal");
        QTest::newRow("a file manager") << true << true;
        QTest::newRow("a portal") << false << true;
        QTest::newRow("neither") << false << false;
    }
    void goesToWhoeverAnswers()
    {
        QFETCH(bool, hasManager);
        QFETCH(bool, hasPortal);
        const QTemporaryDir folder(QDir::tempPath() + u"/with a blank-XXXXXX"_s);
        auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"desktop"_s);
        QVERIFY(bus.isConnected());
        Manager manager;
        Portal portal;
        if (hasManager) {
            QVERIFY(bus.registerObject(u"/org/freedesktop/FileManager1"_s, &manager, QDBusConnection::ExportAllSlots));
            QVERIFY(bus.registerService(u"org.freedesktop.FileManager1"_s));
        }
        if (hasPortal) {
            QVERIFY(bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal, QDBusConnection::ExportAllSlots));
            QVERIFY(bus.registerService(u"org.freedesktop.portal.Desktop"_s));
        }
        m_opened.clear();
        QDesktopServices::setUrlHandler(u"file"_s, this, "opened");

        DesktopFileManager files;
        files.show(folder.path());
        const QStringList path{folder.path()};
        if (hasManager)
            QTRY_COMPARE(manager.shown, QStringList{QUrl::fromLocalFile(folder.path()).toString(QUrl::FullyEncoded)});
        else if (hasPortal)
            QTRY_COMPARE(portal.shown, path);
        else
            QTRY_COMPARE(m_opened, path);
        QCOMPARE(manager.shown.size() + portal.shown.size() + m_opened.size(), 1);
        QDesktopServices::unsetUrlHandler(u"file"_s);
        bus.unregisterService(u"org.freedesktop.FileManager1"_s);
        bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
        QDBusConnection::disconnectFromBus(u"desktop"_s);
    }
};

QTEST_GUILESS_MAIN(FileManagerTest)
#include "FileManagerTest.moc"
