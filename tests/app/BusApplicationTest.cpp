// SPDX-License-Identifier: MIT
#include "app/BusApplication.h"
#include "app/ToolTable.h"
#include "app/WindowArguments.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace lumora;

class BusApplicationTest : public QObject
{
    Q_OBJECT

private slots:
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
        const QString here = QDir::currentPath();
        QTest::newRow("none") << QStringList() << true << QString() << QStringList();
        QTest::newRow("files, relative ones made absolute") << QStringList{u"/a.png"_s, u"b.ipa"_s} << true << QString()
                                                            << QStringList{u"/a.png"_s, QString(here + u"/b.ipa"_s)};
        QTest::newRow("a tool") << QStringList{u"--tool=icons"_s} << true << u"icons"_s << QStringList();
        QTest::newRow("a tool there is not") << QStringList{u"--tool=toaster"_s} << false << QString() << QStringList();
        QTest::newRow("an option there is not") << QStringList{u"--fast"_s} << false << QString() << QStringList();
        QTest::newRow("after two hyphens all are files")
            << QStringList{u"--"_s, u"--fast"_s} << true << QString() << QStringList{QString(here + u"/--fast"_s)};
    }
    void arguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, accepted);
        const Result<OpenRequest> request = parseWindowArguments(arguments);
        QCOMPARE(request.ok(), accepted);
        if (!accepted) {
            QCOMPARE(request.failure().subject, arguments.last());
            return;
        }
        QTEST(request.value().tool, "tool");
        QTEST(request.value().files, "files");
    }
};

QTEST_MAIN(BusApplicationTest)
#include "BusApplicationTest.moc"
