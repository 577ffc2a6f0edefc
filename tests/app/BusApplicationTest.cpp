// SPDX-License-Identifier: MIT
#include "app/BusApplication.h"
#include "app/ToolTable.h"
#include "app/WindowArguments.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace lumora;

class BusApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const QString &name : {u"b.ipa"_s, u"--fast"_s}) {
            QFile file(here() + u'/' + name);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    void objectPath_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("path");
        QTest::newRow("dots become slashes") << u"org.example.App"_s << u"/org/example/App"_s;
        QTest::newRow("hyphens become underscores") << u"org.my-name.App"_s << u"/org/my_name/App"_s;
    }
    void objectPath()
    {
        QFETCH(QString, id);
        QTEST(BusApplication::objectPath(id), "path");
    }

    void withoutABusTheProgramSimplyOpens()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
        BusApplication application;
        QCOMPARE(application.start({}), BusApplication::Start::Alone);
    }

    void callsBecomeRequests()
    {
        BusApplication application;
        QSignalSpy activated(&application, &BusApplication::activated);
        QSignalSpy opened(&application, &BusApplication::filesOpened);
        QSignalSpy tool(&application, &BusApplication::toolRequested);
        application.Activate({});
        application.Open({u"file:///a%20b.png"_s, u"https://example.org/c.png"_s, u"file:///d.ipa"_s}, {});
        application.ActivateAction(u"icons"_s, {}, {});
        QCOMPARE(activated.size(), 1);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.first().first().toStringList(), (QStringList{u"/a b.png"_s, u"/d.ipa"_s}));
        QCOMPARE(tool.size(), 1);
        QCOMPARE(tool.first().first().toString(), u"icons"_s);
    }

    void callsThatNobodyWaitsForAnyMoreAreLeftAlone_data()
    {
        QTest::addColumn<int>("patience");
        QTest::addColumn<int>("requests");
        QTest::newRow("still waited for") << 60'000 << 3;
        QTest::newRow("given up") << -1 << 0;
    }
    void callsThatNobodyWaitsForAnyMoreAreLeftAlone()
    {
        QFETCH(int, patience);
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        const qint64 until = std::chrono::duration_cast<std::chrono::milliseconds>(now).count() + patience;
        const QVariantMap data{{u"lumora-answer-until"_s, until}};
        BusApplication application;
        QSignalSpy activated(&application, &BusApplication::activated);
        QSignalSpy opened(&application, &BusApplication::filesOpened);
        QSignalSpy tool(&application, &BusApplication::toolRequested);
        application.Activate(data);
        application.Open({u"file:///a.png"_s}, data);
        application.ActivateAction(u"icons"_s, {}, data);
        QTEST(static_cast<int>(activated.size() + opened.size() + tool.size()), "requests");
    }

    void arguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("none") << QStringList() << true << QString() << QStringList();
        QTest::newRow("files, relative ones made absolute")
            << QStringList{QDir::tempPath(), u"b.ipa"_s} << true << QString()
            << QStringList{QDir::tempPath(), QString(here() + u"/b.ipa"_s)};
        QTest::newRow("an address of a file") << QStringList{QUrl::fromLocalFile(here() + u"/b.ipa"_s).toString()}
                                              << true << QString() << QStringList{QString(here() + u"/b.ipa"_s)};
        QTest::newRow("a file there is not") << QStringList{u"c.ipa"_s} << false << QString() << QStringList();
        QTest::newRow("an empty argument") << QStringList{u""_s} << false << QString() << QStringList();
        QTest::newRow("a tool") << QStringList{u"--tool=icons"_s} << true << u"icons"_s << QStringList();
        QTest::newRow("a tool behind a blank")
            << QStringList{u"--tool"_s, u"devices"_s} << true << u"devices"_s << QStringList();
        QTest::newRow("a tool by its command")
            << QStringList{u"--tool=downscale"_s} << true << u"resizer"_s << QStringList();
        QTest::newRow("no tool behind the option") << QStringList{u"--tool"_s} << false << QString() << QStringList();
        QTest::newRow("a tool there is not") << QStringList{u"--tool=toaster"_s} << false << QString() << QStringList();
        QTest::newRow("an option there is not") << QStringList{u"--fast"_s} << false << QString() << QStringList();
        QTest::newRow("after two hyphens all are files")
            << QStringList{u"--"_s, u"--fast"_s} << true << QString() << QStringList{QString(here() + u"/--fast"_s)};
    }
    void arguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, accepted);
        const QDir before = QDir::current();
        QVERIFY(QDir::setCurrent(here()));
        const std::variant<OpenRequest, Complaint> parsed = parseWindowArguments(arguments);
        QVERIFY(QDir::setCurrent(before.path()));
        QCOMPARE(std::holds_alternative<OpenRequest>(parsed), accepted);
        if (!accepted)
            return;
        QTEST(std::get<OpenRequest>(parsed).tool, "tool");
        QTEST(std::get<OpenRequest>(parsed).files, "files");
    }

    void todayIsAnArgumentAndAnAction_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("today");
        QTest::addColumn<QString>("tool");
        QTest::newRow("without it") << QStringList{u"--tool=color"_s} << false << u"color"_s;
        QTest::newRow("alone") << QStringList{u"--today"_s} << true << QString();
        QTest::newRow("with a tool") << QStringList{u"--today"_s, u"--tool"_s, u"color"_s} << true << u"color"_s;
        QTest::newRow("behind a tool") << QStringList{u"--tool=color"_s, u"--today"_s} << true << u"color"_s;
    }
    void todayIsAnArgumentAndAnAction()
    {
        QFETCH(QStringList, arguments);
        const std::variant<OpenRequest, Complaint> parsed = parseWindowArguments(arguments);
        QVERIFY(std::holds_alternative<OpenRequest>(parsed));
        QTEST(std::get<OpenRequest>(parsed).today, "today");
        QTEST(std::get<OpenRequest>(parsed).tool, "tool");
        BusApplication application;
        QSignalSpy today(&application, &BusApplication::todayRequested);
        QSignalSpy tool(&application, &BusApplication::toolRequested);
        application.ActivateAction(u"today"_s, {}, {});
        QCOMPARE(today.size(), 1);
        QCOMPARE(tool.size(), 0);
    }

private:
    /// The working folder of the arguments; it contains b.ipa and --fast.
    QString here() const { return QFileInfo(m_folder.path()).canonicalFilePath(); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(BusApplicationTest)
#include "BusApplicationTest.moc"
