// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// How the icon commands are called wrongly, and what they say of themselves.
class IconUsageTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void wrongUsage_data();
    void wrongUsage();
    void helpAndVersion_data();
    void helpAndVersion();

private:
    QTemporaryDir m_folder; ///< holds "my.png", which could be a source, and nothing else
};

void IconUsageTest::initTestCase()
{
    QVERIFY(putFile(m_folder.filePath(u"my.png"_s), pictureFile(testPicture(1024, 1024))));
}

void IconUsageTest::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    const QStringList icons{u"icons"_s, u"my.png"_s, u"--to"_s, u"out"_s};
    QTest::newRow("no platform") << icons << u"--platform"_s;
    QTest::newRow("no source") << QStringList{u"icons"_s, u"--platform"_s, u"all"_s, u"--to"_s, u"out"_s}
                               << u"SOURCE or --example"_s;
    QTest::newRow("an empty source") << QStringList{u"icons"_s, u""_s, u"--platform"_s, u"all"_s, u"--to"_s, u"out"_s}
                                     << u"SOURCE is empty"_s;
    QTest::newRow("a source and the example")
        << icons + QStringList{u"--example"_s, u"--platform"_s, u"all"_s} << u"--example"_s;
    QTest::newRow("no destination") << QStringList{u"icons"_s, u"my.png"_s, u"--platform"_s, u"all"_s} << u"--to"_s;
    QTest::newRow("an empty destination")
        << QStringList{u"icons"_s, u"my.png"_s, u"--platform"_s, u"all"_s, u"--to"_s, u""_s} << u"--to is empty"_s;
    QTest::newRow("both destinations") << icons + QStringList{u"--platform"_s, u"all"_s, u"--out"_s, u"out"_s}
                                       << u"--out"_s;
    QTest::newRow("unknown platform") << icons + QStringList{u"--platform"_s, u"palm"_s} << u"web-touch"_s;
    QTest::newRow("a mistyped platform") << icons + QStringList{u"--platform"_s, u"iphnoe"_s}
                                         << u"did you mean iphone?"_s;
    QTest::newRow("empty platform") << icons + QStringList{u"--platform"_s, u""_s} << u"--platform"_s;
    QTest::newRow("an empty one of two") << icons + QStringList{u"--platform"_s, u"ipad,"_s} << u"--platform"_s;
    QTest::newRow("several sizes for one file")
        << QStringList{u"icon"_s, u"my.png"_s, u"--size"_s, u"16,32"_s, u"-o"_s, u"out/a.png"_s} << u"--out"_s;
    QTest::newRow("a picture and JSON on one output")
        << QStringList{u"icon"_s, u"my.png"_s, u"--size"_s, u"16"_s, u"-o"_s, u"-"_s, u"--json"_s} << u"--json"_s;
    QTest::newRow("unknown option") << QStringList{u"icons"_s, u"--platform"_s, u"all"_s, u"--to"_s, u"out"_s, u"--x"_s}
                                    << u"--x"_s;
    QTest::newRow("two sources") << QStringList{u"icons"_s, u"a"_s,    u"b"_s,  u"--platform"_s,
                                                u"all"_s,   u"--to"_s, u"out"_s}
                                 << u"b"_s;
    QTest::newRow("no size") << QStringList{u"icon"_s, u"my.png"_s, u"--to"_s, u"out"_s} << u"--size"_s;
    QTest::newRow("unknown corners") << QStringList{u"icon"_s,      u"my.png"_s, u"--size"_s, u"10"_s,
                                                    u"--corners"_s, u"ios8"_s,   u"--to"_s,   u"out"_s}
                                     << u"lumora icon: --corners takes none, ios6 or ios7, not \"ios8\""_s;
}

void IconUsageTest::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const LumoraRun run = LumoraProcess().in(m_folder.path()).run(arguments);
    QCOMPARE(run.status, 2);
    QCOMPARE(run.out.isEmpty(), !arguments.contains(u"--json"_s));
    QCOMPARE(run.complaints().size(), 1);
    QVERIFY2(run.err.contains(named.toUtf8()), run.err.constData());
    QCOMPARE(filesBelowFolder(m_folder.path()), QStringList{u"my.png"_s});
}

void IconUsageTest::helpAndVersion_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("said");
    QTest::newRow("--version") << QStringList{u"--version"_s} << u"lumora "_s;
    QTest::newRow("-V") << QStringList{u"-V"_s} << u"lumora "_s;
    QTest::newRow("version") << QStringList{u"version"_s} << u"lumora "_s;
    QTest::newRow("icons --version") << QStringList{u"icons"_s, u"--version"_s} << u"lumora "_s;
    QTest::newRow("help") << QStringList{u"help"_s} << u"icons"_s;
    QTest::newRow("help of a command") << QStringList{u"help"_s, u"icon"_s} << u"--corners"_s;
    QTest::newRow("help of a tool") << QStringList{u"help"_s, u"resizer"_s} << u"--dry-run"_s;
    QTest::newRow("--help") << QStringList{u"--help"_s} << u"icons"_s;
    QTest::newRow("icons --help") << QStringList{u"icons"_s, u"--help"_s} << u"--platform"_s;
    QTest::newRow("icon --help") << QStringList{u"icon"_s, u"--help"_s} << u"--corners"_s;
}

void IconUsageTest::helpAndVersion()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, said);
    const LumoraRun run = runLumora(arguments);
    QCOMPARE(run.status, 0);
    QVERIFY(run.out.contains(said.toUtf8()));
    QCOMPARE(run.err, QByteArray());
}

QTEST_GUILESS_MAIN(IconUsageTest)
#include "IconUsageTest.moc"
