// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "tests/doubles/ScriptedFiles.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class ValidateCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()})); }

    void endsWithTheStatusOfTheWorstFile_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<int>("status");
        QTest::newRow("valid") << QStringList{u"valid"_s} << 0;
        QTest::newRow("release build") << QStringList{u"release"_s} << 0;
        QTest::newRow("without URL schemes and Facebook id") << QStringList{u"no links"_s} << 0;
        QTest::newRow("an icon is missing") << QStringList{u"one icon"_s} << 1;
        QTest::newRow("no launch image") << QStringList{u"no launch image"_s} << 1;
        QTest::newRow("other identifier") << QStringList{u"other identifier"_s} << 1;
        QTest::newRow("no localizations") << QStringList{u"no localizations"_s} << 1;
        QTest::newRow("no property list") << QStringList{u"no list"_s} << 1;
        QTest::newRow("no archive") << QStringList{u"no archive"_s} << 3;
        QTest::newRow("cut off") << QStringList{u"cut off"_s} << 3;
        QTest::newRow("no app") << QStringList{u"no app"_s} << 3;
        QTest::newRow("missing") << QStringList{u"missing"_s} << 3;
        QTest::newRow("two valid") << QStringList{u"valid"_s, u"release"_s} << 0;
        QTest::newRow("valid and invalid") << QStringList{u"valid"_s, u"no localizations"_s} << 1;
        QTest::newRow("unreadable between others") << QStringList{u"valid"_s, u"no app"_s, u"one icon"_s} << 3;
    }
    void endsWithTheStatusOfTheWorstFile()
    {
        QFETCH(QStringList, files);
        QFETCH(int, status);
        QStringList arguments{u"validate"_s};
        for (const QString &file : std::as_const(files))
            arguments += package(file);
        const LumoraRun text = runLumora(arguments);
        QCOMPARE(text.status, status);
        QCOMPARE(text.complaints().isEmpty(), status != 3 && files.first() != u"no list");
        const LumoraRun json = runLumora(arguments << u"--json"_s);
        QCOMPARE(json.status, status);
        const QJsonDocument document = QJsonDocument::fromJson(json.out);
        QCOMPARE(document.isArray(), files.size() > 1);
        if (files.size() > 1)
            QCOMPARE(document.array().size(), files.size());
    }

    void printsTheFactsAsJson()
    {
        const QJsonObject none{{u"valid"_s, true}, {u"missing"_s, QJsonArray()}};
        QCOMPARE(runLumora({u"validate"_s, u"--json"_s, package(u"valid"_s)}).json(),
                 (QJsonObject{{u"schema"_s, 2},
                              {u"ok"_s, true},
                              {u"errors"_s, QJsonArray()},
                              {u"file"_s, package(u"valid"_s)},
                              {u"name"_s, u"Demo"_s},
                              {u"version"_s, u"1.2.3"_s},
                              {u"platform"_s, u"iPhone"_s},
                              {u"minimumOS"_s, u"7.0"_s},
                              {u"bundleIdentifier"_s, u"com.example.app"_s},
                              {u"build"_s, u"debug"_s},
                              {u"localizations"_s, QJsonArray{u"English"_s, u"French"_s}},
                              {u"urlSchemes"_s, QJsonArray{u"fb123"_s}},
                              {u"facebookAppID"_s, u"123"_s},
                              {u"findings"_s, QJsonArray()},
                              {u"binaries"_s, QJsonArray()},
                              {u"signature"_s, QJsonValue::Null},
                              {u"profile"_s, QJsonObject{{u"kind"_s, u"ad-hoc"_s},
                                                         {u"name"_s, u"A profile"_s},
                                                         {u"team"_s, QJsonValue::Null},
                                                         {u"expires"_s, QJsonValue::Null},
                                                         {u"devices"_s, QJsonArray{u"0123456789abcdef"_s}}}},
                              {u"catalogIcons"_s, QJsonValue::Null},
                              {u"checks"_s, QJsonObject{{u"icons"_s, none},
                                                        {u"launchImages"_s, none},
                                                        {u"bundleIdentifier"_s, QJsonObject{{u"valid"_s, true}}},
                                                        {u"localizations"_s, QJsonObject{{u"valid"_s, true}}},
                                                        {u"urlSchemes"_s, QJsonObject{{u"present"_s, true}}},
                                                        {u"facebookAppID"_s, QJsonObject{{u"present"_s, true}}}}}}));
    }

    void printsWhatIsMissingAsJson()
    {
        const QJsonObject report = runLumora({u"validate"_s, u"--json"_s, package(u"logo"_s)}).json();
        const QJsonObject checks = report[u"checks"].toObject();
        QCOMPARE(checks[u"icons"],
                 (QJsonObject{
                     {u"valid"_s, false},
                     {u"missing"_s, QJsonArray{u"57x57"_s, u"114x114"_s, u"60x60"_s, u"120x120"_s, u"29x29"_s,
                                               u"58x58"_s, u"40x40"_s, u"80x80"_s, u"512x512"_s, u"1024x1024"_s}}}));
        QCOMPARE(checks[u"launchImages"],
                 (QJsonObject{{u"valid"_s, false},
                              {u"missing"_s, QJsonArray{u"640x960"_s, u"960x640"_s, u"640x1136"_s, u"1136x640"_s,
                                                        u"320x480"_s, u"480x320"_s}}}));
        QCOMPARE(report[u"build"], QJsonValue(u"release"_s));
        const QJsonObject unlinked = runLumora({u"validate"_s, u"--json"_s, package(u"no links"_s)}).json();
        QCOMPARE(unlinked[u"facebookAppID"], QJsonValue(QJsonValue::Null));
        QCOMPARE(unlinked[u"urlSchemes"], QJsonValue(QJsonArray()));
    }

    void standsInForAnUnreadableFileInJson()
    {
        const QJsonObject report = runLumora({u"validate"_s, u"--json"_s, package(u"no app"_s)}).json();
        QCOMPARE(report.keys(), (QStringList{u"error"_s, u"errors"_s, u"file"_s, u"ok"_s, u"schema"_s}));
        QCOMPARE(report[u"file"], QJsonValue(package(u"no app"_s)));
    }

    void printsFactsThenChecks()
    {
        const LumoraRun run = runLumora({u"validate"_s, package(u"one icon"_s)});
        const QStringList lines = QString::fromUtf8(run.out).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 16);
        QCOMPARE(lines[0], package(u"one icon"_s));
        QCOMPARE(lines[1], u"  Name              Demo"_s);
        QCOMPARE(lines[6], u"  Build             debug"_s);
        QCOMPARE(lines[10], u"  INVALID  icons: missing 114x114, 60x60, 120x120, 29x29, 58x58, 40x40, 80x80, 512x512, "
                            u"1024x1024"_s);
        QCOMPARE(lines[11], u"  valid    launch images"_s);
        QCOMPARE(lines[14], u"  present  URL schemes"_s);
    }

    void letsNoPackageSteerTheTerminal()
    {
        const LumoraRun run = runLumora({u"validate"_s, package(u"steering names"_s)});
        for (const char forbidden : {'\x1b', '\x07'})
            QVERIFY(!run.out.contains(forbidden));
        QVERIFY(run.out.contains("<U+001B>[31m"));
        QVERIFY(run.out.contains("<U+202E>"));
    }

    void complainsOfDamagedEntries()
    {
        const LumoraRun run = runLumora({u"validate"_s, package(u"damaged icon"_s)});
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY(run.complaints().first().contains(u"AppIcon1024.png is damaged"));
    }

    void complainsOfEncryptedEntries()
    {
        const LumoraRun run = runLumora({u"validate"_s, package(u"encrypted"_s)});
        QCOMPARE(run.status, 1);
        const QStringList complaints = run.complaints();
        QCOMPARE(complaints.size(), 2);
        QVERIFY(complaints[0].contains(u"Payload/Demo.app/Info.plist is damaged or encrypted"));
        QVERIFY(complaints[1].contains(u"has no readable Info.plist"));
    }

    void complainsOfWhatItCannotRead_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no archive") << package(u"no archive"_s) << u"not a readable zip archive"_s;
        QTest::newRow("no app") << package(u"no app"_s) << u"no app in its Payload folder"_s;
        QTest::newRow("missing") << package(u"missing"_s) << u"does not exist"_s;
        QTest::newRow("a folder") << m_packages.path() + u"/folder.ipa" << u"is a folder"_s;
        QTest::newRow("other extension") << m_packages.path() + u"/App.IPA" << u"does not end in .ipa"_s;
    }
    void complainsOfWhatItCannotRead()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        QDir(m_packages.path()).mkdir(u"folder.ipa"_s);
        QFile::copy(package(u"valid"_s), m_packages.filePath(u"App.IPA"_s));
        const LumoraRun run = runLumora({u"validate"_s, path});
        QCOMPARE(run.status, 3);
        QVERIFY(run.out.isEmpty());
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.complaints().first().contains(path) && run.complaints().first().contains(reason), run.err);
    }

    void writesTheIcon()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"icon.png"_s);
        QCOMPARE(runLumora({u"validate"_s, u"--icon"_s, path, package(u"valid"_s)}).status, 0);
        const QImage icon(path);
        QCOMPARE(icon.size(), QSize(128, 128));
        QCOMPARE(QColor(icon.pixel(64, 64)).name(), u"#2080c0"_s);
    }

    void resolvesRelativePathsWhereItWasStarted()
    {
        const QTemporaryDir folder;
        QVERIFY(QFile::copy(package(u"valid"_s), folder.filePath(u"App.ipa"_s)));
        LumoraProcess process;
        QCOMPARE(process.in(folder.path()).run({u"validate"_s, u"App.ipa"_s, u"--icon"_s, u"icon.png"_s}).status, 0);
        QCOMPARE(treeBelow(folder.path()).keys(), (QStringList{u"App.ipa"_s, u"icon.png"_s}));
    }

    void resolvesThePathsOfSeveralPackages()
    {
        const QTemporaryDir folder;
        const QDir place(folder.path());
        QVERIFY(place.mkdir(u"here"_s) && place.mkdir(u"there"_s));
        QVERIFY(QFile::copy(package(u"valid"_s), place.filePath(u"here/A.ipa"_s)));
        QVERIFY(QFile::copy(package(u"release"_s), place.filePath(u"there/B.ipa"_s)));
        LumoraProcess process;
        process.in(place.filePath(u"here"_s)).withVariable(u"TMPDIR"_s, u".."_s);
        const LumoraRun run = process.run({u"validate"_s, u"A.ipa"_s, u"../there/B.ipa"_s, u"./A.ipa"_s, u"--json"_s});
        QCOMPARE(run.status, 0);
        const QJsonArray reports = QJsonDocument::fromJson(run.out).array();
        QCOMPARE(reports.size(), 3);
        QCOMPARE(reports[0][u"file"], QJsonValue(u"A.ipa"_s));
        QCOMPARE(reports[1][u"file"], QJsonValue(u"../there/B.ipa"_s));
        QCOMPARE(reports[1][u"build"], QJsonValue(u"release"_s));
        QCOMPARE(reports[2][u"name"], QJsonValue(u"Demo"_s));
        QCOMPARE(treeBelow(folder.path()).size(), 4);
    }

    void namesTheIconAsItWasGiven()
    {
        const QTemporaryDir folder;
        QVERIFY(QFile::copy(package(u"valid"_s), folder.filePath(u"App.ipa"_s)));
        LumoraProcess process;
        const LumoraRun run =
            process.in(folder.path()).run({u"validate"_s, u"App.ipa"_s, u"--icon"_s, u"no/icon.png"_s});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.startsWith("lumora: no/icon.png: "), run.err);
    }

    void cannotWriteTheIcon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("icon");
        QTest::newRow("there is none") << u"logo"_s << u"icon.png"_s;
        QTest::newRow("no such folder") << u"valid"_s << u"no/such/icon.png"_s;
    }
    void cannotWriteTheIcon()
    {
        QFETCH(QString, name);
        QFETCH(QString, icon);
        const QTemporaryDir folder;
        const LumoraRun run = runLumora({u"validate"_s, package(name), u"--icon"_s, folder.filePath(icon)});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY(!QFile::exists(folder.filePath(icon)));
    }

    void refusesCallsThatMakeNoSense_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no file") << QStringList{};
        QTest::newRow("an icon of several files")
            << QStringList{package(u"valid"_s), package(u"release"_s), u"--icon"_s, u"icon.png"_s};
        QTest::newRow("an unknown option") << QStringList{package(u"valid"_s), u"--fast"_s};
    }
    void refusesCallsThatMakeNoSense()
    {
        QFETCH(QStringList, arguments);
        QCOMPARE(runLumora(QStringList{u"validate"_s} + arguments).status, 2);
    }

    void leavesNothingBehind()
    {
        const QTemporaryDir folder;
        LumoraProcess process;
        process.withVariable(u"TMPDIR"_s, folder.path()).run({u"validate"_s, package(u"leftovers"_s)});
        QVERIFY(treeBelow(folder.path()).isEmpty());
    }

    void needsNoRoomOnDisk()
    {
        const QTemporaryDir folder;
        LumoraProcess process;
        const LumoraRun run = process.withVariable(u"TMPDIR"_s, folder.path())
                                  .withLongestFile(1000)
                                  .run({u"validate"_s, package(u"valid"_s)});
        QCOMPARE(run.status, 0);
        QVERIFY(treeBelow(folder.path()).isEmpty());
    }

    void needsNoFolderToWorkIn()
    {
        LumoraProcess process;
        const LumoraRun run =
            process.withVariable(u"TMPDIR"_s, u"/no/such/folder"_s).run({u"validate"_s, package(u"valid"_s)});
        QCOMPARE(run.status, 0);
        QVERIFY2(run.err.isEmpty(), run.err);
    }

    void takesFoldersThatHoldAnApp_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("app");
        QTest::newRow("the app") << u"Demo.app"_s << u"Demo.app"_s;
        QTest::newRow("an Xcode archive") << u"Demo.xcarchive"_s << u"Demo.xcarchive/Products/Applications/Demo.app"_s;
    }
    void takesFoldersThatHoldAnApp()
    {
        QFETCH(QString, name);
        QFETCH(QString, app);
        const QTemporaryDir folder;
        QProcess unzip;
        unzip.start(u"unzip"_s, {u"-q"_s, package(u"valid"_s), u"-d"_s, folder.path()});
        QVERIFY(unzip.waitForFinished() && unzip.exitCode() == 0);
        QVERIFY(QDir().mkpath(QFileInfo(folder.filePath(app)).path()));
        QVERIFY(QFile::rename(folder.filePath(u"Payload/Demo.app"_s), folder.filePath(app)));
        const QJsonObject packed = runLumora({u"validate"_s, u"--json"_s, package(u"valid"_s)}).json();
        QJsonObject unpacked = runLumora({u"validate"_s, u"--json"_s, folder.filePath(name)}).json();
        QCOMPARE(unpacked[u"file"], QJsonValue(folder.filePath(name)));
        unpacked[u"file"] = packed[u"file"];
        QCOMPARE(unpacked, packed);
    }

private:
    QString package(const QString &name) const { return m_packages.filePath(name + u".ipa"_s); }

    QTemporaryDir m_packages;
};

QTEST_GUILESS_MAIN(ValidateCommandTest)
#include "ValidateCommandTest.moc"
