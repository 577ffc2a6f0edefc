// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "icons/IconCatalogue.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/doubles/ScriptedFiles.h"
#include "tests/icons/today/TodayPictures.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class TodayIconsCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void commonSets();
    void classicSetsBesideThem();
    void exactFolder();
    void derivedIsListed();
    void options();
    void refused_data();
    void refused();
    void wrongUsage_data();
    void wrongUsage();
    void bombsEndAtOnce_data();
    void bombsEndAtOnce();
    void check_data();
    void check();
    void checkAsJson();
    void checkInGerman();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_photo;
    QByteArray m_shape;

    QString at(const QString &name) const { return m_folder->filePath(name); }
    LumoraRun icons(const QStringList &arguments) const
    {
        return LumoraProcess().in(m_folder->path()).run(QStringList{u"icons"_s} + arguments);
    }
};

void TodayIconsCommandTest::initTestCase()
{
    m_photo = pictureFile(opaquePicture());
    m_shape = pictureFile(disk(900));
}

void TodayIconsCommandTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(putFile(at(u"photo.png"_s), m_photo));
    QVERIFY(putFile(at(u"shape.png"_s), m_shape));
    QVERIFY(putFile(at(u"logo.svg"_s), squareDrawing));
}

void TodayIconsCommandTest::commonSets()
{
    const LumoraRun run = icons({u"photo.png"_s, u"--platform"_s, u"today"_s, u"--to"_s, u"."_s, u"--json"_s});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    const QStringList folders = QDir(at(u"icons"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QCOMPARE(folders,
             (QStringList{u"Android"_s, u"Linux"_s, u"Web"_s, u"Windows"_s, u"iOS"_s, u"macOS"_s, u"watchOS"_s}));
    const QJsonObject result = run.json();
    // A photograph has no shape to make a monochrome icon of, and no dark one.
    QStringList findings;
    for (const QJsonValue finding : result[u"findings"_s].toArray())
        findings << finding[u"id"].toString();
    QCOMPARE(findings, (QStringList{u"monochrome-missing"_s, u"appearance-missing"_s}));
    QCOMPARE(result[u"files"_s].toArray().size(), filesBelowFolder(at(u"icons"_s)).size());
    for (const QJsonValue value : result[u"files"_s].toArray())
        QCOMPARE(value[u"bytes"].toInteger(), QFileInfo(value[u"path"].toString()).size());
}

void TodayIconsCommandTest::classicSetsBesideThem()
{
    QCOMPARE(icons({u"photo.png"_s, u"--platform"_s, u"all"_s, u"--out"_s, u"alone"_s}).status, 0);
    QCOMPARE(icons({u"photo.png"_s, u"--platform"_s, u"all,linux"_s, u"--out"_s, u"both"_s}).status, 0);
    for (const QString &file : filesBelowFolder(at(u"alone"_s)))
        QCOMPARE(contentOfFile(at(u"both/"_s + file)), contentOfFile(at(u"alone/"_s + file)));
    QVERIFY(QFile::exists(at(u"both/Linux/hicolor/48x48/apps/App.png"_s)));
}

void TodayIconsCommandTest::exactFolder()
{
    const QStringList arguments{u"logo.svg"_s, u"--platform"_s, u"web,ios"_s, u"--out"_s, u"a/b"_s};
    QVERIFY(putFile(at(u"a/b/mine.txt"_s), "mine"));
    QCOMPARE(icons(arguments).status, 0);
    const QStringList files = filesBelowFolder(at(u"a/b"_s));
    QCOMPARE(icons(arguments).status, 0);
    QCOMPARE(filesBelowFolder(at(u"a/b"_s)), files);
    QCOMPARE(contentOfFile(at(u"a/b/mine.txt"_s)), QByteArray("mine"));
}

void TodayIconsCommandTest::derivedIsListed()
{
    const QStringList arguments{u"shape.png"_s, u"--platform"_s, u"ios"_s, u"--flatten"_s,
                                u"#00ff00"_s,   u"--out"_s,      u"o"_s};
    const LumoraRun text = icons(arguments);
    // Scripts take the folder from the first line.
    QCOMPARE(text.out.left(text.out.indexOf('\n')), at(u"o"_s).toUtf8());
    QVERIFY(text.out.contains("--flatten") && text.out.contains("#00ff00"));
    QCOMPARE(text.err, QByteArray());
    const QJsonArray derived = icons(arguments + QStringList{u"--json"_s}).json()[u"derived"_s].toArray();
    QStringList ids;
    for (const QJsonValue one : derived)
        ids << one[u"id"].toString();
    ids.sort();
    QCOMPARE(ids, (QStringList{u"dark-is-icon"_s, u"icon-flattened"_s, u"tinted-from-icon"_s, u"tinted-on-black"_s}));
}

void TodayIconsCommandTest::options()
{
    QVERIFY(putFile(at(u"large.png"_s), pictureFile(opaquePicture(700))));
    const LumoraRun run = icons({u"large.png"_s,    u"--fit"_s,
                                 u"--dark"_s,       u"shape.png"_s,
                                 u"--tinted"_s,     u"logo.svg"_s,
                                 u"--foreground"_s, u"shape.png"_s,
                                 u"--background"_s, u"navy"_s,
                                 u"--monochrome"_s, u"shape.png"_s,
                                 u"--name"_s,       u"mine"_s,
                                 u"--ios-form"_s,   u"sizes"_s,
                                 u"--layer"_s,      u"photo.png"_s,
                                 u"--layer"_s,      u"shape.png"_s,
                                 u"--platform"_s,   u"ios,adaptive,linux,icon-composer"_s,
                                 u"--out"_s,        u"o"_s,
                                 u"--json"_s});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    QVERIFY(contentOfFile(at(u"o/Android/res/values/ic_launcher_background.xml"_s)).contains("#000080"));
    QVERIFY(QFile::exists(at(u"o/Linux/hicolor/16x16/apps/mine.png"_s)));
    QVERIFY(QFile::exists(at(u"o/iOS/Assets.xcassets/AppIcon.appiconset/AppIcon-Dark-60@3x.png"_s)));
    QVERIFY(QFile::exists(at(u"o/IconComposer/mine.icon/Assets/Front.png"_s)));
    QVERIFY(QString::fromUtf8(run.out).contains(u"\"fitted\""_s));
}

void TodayIconsCommandTest::refused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("transparency") << QStringList{u"shape.png"_s, u"--platform"_s, u"today"_s} << u"--flatten"_s;
    QTest::newRow("another size") << QStringList{u"small.png"_s, u"--platform"_s, u"linux"_s} << u"--fit"_s;
    QTest::newRow("too small to fit") << QStringList{u"tiny.png"_s, u"--fit"_s, u"--platform"_s, u"linux"_s}
                                      << u"square picture of at least 512"_s;
    QTest::newRow("no layers") << QStringList{u"photo.png"_s, u"--platform"_s, u"tvos"_s} << u"--layer"_s;
    QTest::newRow("missing dark") << QStringList{u"photo.png"_s, u"--dark"_s, u"none.png"_s, u"--platform"_s, u"ios"_s}
                                  << u"none.png"_s;
    QTest::newRow("no color") << QStringList{u"shape.png"_s, u"--flatten"_s, u"greenish"_s, u"--platform"_s, u"ios"_s}
                              << u"--flatten greenish"_s;
    QTest::newRow("no background") << QStringList{u"shape.png"_s, u"--background"_s, u"bleu"_s, u"--platform"_s,
                                                  u"web"_s}
                                   << u"--background bleu"_s;
    QTest::newRow("name that climbs") << QStringList{u"photo.png"_s, u"--name"_s, u"../x"_s, u"--platform"_s,
                                                     u"linux"_s}
                                      << u"--name ../x"_s;
    QTest::newRow("no picture") << QStringList{u"text.png"_s, u"--platform"_s, u"linux"_s} << u"undamaged SVG, PNG"_s;
    QTest::newRow("svg with a script") << QStringList{u"script.svg"_s, u"--platform"_s, u"linux"_s} << u"script"_s;
}

void TodayIconsCommandTest::refused()
{
    QVERIFY(putFile(at(u"small.png"_s), pictureFile(opaquePicture(600))));
    QVERIFY(putFile(at(u"tiny.png"_s), pictureFile(opaquePicture(300))));
    QVERIFY(putFile(at(u"script.svg"_s), "<svg viewBox=\"0 0 1 1\"><script/></svg>"));
    QVERIFY(putFile(at(u"text.png"_s), "no picture"));
    QFETCH(QStringList, arguments);
    const LumoraRun run = icons(arguments + QStringList{u"--out"_s, u"o"_s});
    QCOMPARE(run.status, 1);
    QFETCH(QString, named);
    QVERIFY2(run.err.contains(named.toUtf8()), run.err);
    QVERIFY(!QDir(at(u"o"_s)).exists());
}

void TodayIconsCommandTest::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("neither a platform nor a project") << QStringList{u"photo.png"_s, u"--out"_s, u"o"_s};
    QTest::newRow("a platform and a project")
        << QStringList{u"photo.png"_s, u"--platform"_s, u"ios"_s, u"--into"_s, u"."_s};
    QTest::newRow("a source to check") << QStringList{u"photo.png"_s, u"--check"_s, u"."_s};
    QTest::newRow("a dry run of no project")
        << QStringList{u"photo.png"_s, u"--platform"_s, u"ios"_s, u"--out"_s, u"o"_s, u"--dry-run"_s};
    QTest::newRow("a flavor of no project")
        << QStringList{u"photo.png"_s, u"--platform"_s, u"ios"_s, u"--out"_s, u"o"_s, u"--flavor"_s, u"beta"_s};
    QTest::newRow("a dark picture of a classic platform")
        << QStringList{u"photo.png"_s, u"--platform"_s, u"ipad"_s, u"--out"_s, u"o"_s, u"--dark"_s, u"photo.png"_s};
    QTest::newRow("a color to check") << QStringList{u"--check"_s, u"."_s, u"--flatten"_s, u"red"_s};
    QTest::newRow("an unknown form") << QStringList{u"photo.png"_s, u"--platform"_s, u"ios"_s, u"--out"_s,
                                                    u"o"_s,         u"--ios-form"_s, u"old"_s};
}

void TodayIconsCommandTest::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QCOMPARE(icons(arguments).status, 2);
}

void TodayIconsCommandTest::bombsEndAtOnce_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("reason");
    const QByteArray begin = "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                             "viewBox=\"0 0 9 9\">";
    QByteArray uses = begin + "<g id=\"l0\"><path d=\"M0 0h9v9z\"/></g>";
    QByteArray entities = "<!DOCTYPE svg [<!ENTITY e0 \"lol\">";
    for (int level = 1; level < 30; ++level) {
        const QByteArray number = QByteArray::number(level);
        const QByteArray before = QByteArray::number(level - 1);
        uses += QByteArray("<g id=\"l" + number + "\">" + QByteArray("<use href=\"#l" + before + "\"/>").repeated(10) +
                           "</g>");
        entities += QByteArray("<!ENTITY e" + number + " \"" + QByteArray("&e" + before + ";").repeated(10) + "\">");
    }
    QTest::newRow("nested uses") << QByteArray(uses + "</svg>") << QByteArray("larger than");
    QTest::newRow("nested entities") << QByteArray(entities + "]>" + begin + "<text>&e29;</text></svg>")
                                     << QByteArray("entit");
    QTest::newRow("an external entity") << QByteArray("<!DOCTYPE svg [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>" +
                                                      begin + "<text>&e;</text></svg>")
                                        << QByteArray("entit");
    QTest::newRow("an external picture")
        << QByteArray(begin + "<image width=\"9\" height=\"9\" href=\"http://a.example/b.png\"/></svg>")
        << QByteArray("outside");
    QTest::newRow("a blur of a thousand pixels, a thousand times")
        << QByteArray(begin + "<filter id=\"f\"><feGaussianBlur stdDeviation=\"1000\"/></filter>" +
                      QByteArray("<rect width=\"9\" height=\"9\" filter=\"url(#f)\"/>").repeated(1000) + "</svg>")
        << QByteArray("larger than");
    QTest::newRow("a million points") << QByteArray(begin + "<path d=\"M0 0" +
                                                    QByteArray("L9 9L0 5").repeated(500'000) +
                                                    "\" stroke=\"red\" stroke-dasharray=\"0.0001\"/></svg>")
                                      << QByteArray("larger than");
    QTest::newRow("deep nesting") << QByteArray(begin + QByteArray("<g>").repeated(200'000))
                                  << QByteArray("larger than");
    QTest::newRow("a huge picture inside")
        << QByteArray(begin + "<image width=\"9\" height=\"9\" href=\"data:image/png;base64," +
                      pictureFile(QImage(30'000, 3000, QImage::Format_Mono)).toBase64() + "\"/></svg>")
        << QByteArray("larger than");
}

void TodayIconsCommandTest::bombsEndAtOnce()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, reason);
    QVERIFY(putFile(at(u"bomb.svg"_s), content));
    QElapsedTimer time;
    time.start();
    const LumoraRun run = icons({u"bomb.svg"_s, u"--platform"_s, u"linux"_s, u"--out"_s, u"o"_s});
    const qint64 elapsed = time.elapsed();
    QCOMPARE(run.status, 1);
    QVERIFY2(run.err.contains(reason), run.err);
    // The promise is a second on a machine of its own.
    QVERIFY2(elapsed < 5000 * qEnvironmentVariableIntValue("LUMORA_TIME_FACTOR"), qPrintable(QString::number(elapsed)));
}

void TodayIconsCommandTest::check_data()
{
    QTest::addColumn<QString>("dropped");
    QTest::addColumn<QByteArray>("content"); ///< in its place, nothing when empty
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("named");
    const QString light = u"iOS/Assets.xcassets/AppIcon.appiconset/AppIcon.png"_s;
    QTest::newRow("sound") << QString() << QByteArray() << 0 << QByteArray("nothing");
    QTest::newRow("missing") << light << QByteArray() << 1 << QByteArray("error: " + light.toUtf8());
    QTest::newRow("transparent") << light << pictureFile(disk(900)) << 1 << QByteArray("--flatten");
    QTest::newRow("opaque alpha channel") << light << pictureFile(opaquePicture()) << 0 << QByteArray("warning: ");
}

void TodayIconsCommandTest::check()
{
    QCOMPARE(icons({u"shape.png"_s, u"--flatten"_s, u"white"_s, u"--platform"_s, u"ios"_s, u"--out"_s, u"o"_s}).status,
             0);
    QFETCH(QString, dropped);
    QFETCH(QByteArray, content);
    if (!dropped.isEmpty())
        QVERIFY(QFile::remove(at(u"o/"_s + dropped)) && (content.isEmpty() || putFile(at(u"o/"_s + dropped), content)));
    const LumoraRun run = icons({u"--check"_s, u"o"_s});
    QTEST(run.status, "status");
    QFETCH(QByteArray, named);
    QVERIFY2(run.out.contains(named), run.out);
}

void TodayIconsCommandTest::checkAsJson()
{
    QVERIFY(putFile(at(u"o/A.appiconset/x.png"_s), "x"));
    const LumoraRun run = icons({u"--check"_s, u"o"_s, u"--json"_s});
    QCOMPARE(run.status, 1);
    const QJsonArray findings = run.json()[u"findings"_s].toArray();
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings[0][u"id"].toString(), u"contents-unreadable"_s);
    QCOMPARE(findings[0][u"severity"].toString(), u"error"_s);
    QCOMPARE(icons({u"--check"_s, u"."_s + u"/none"_s}).status, 1);
    QVERIFY(QDir(at(u"."_s)).mkdir(u"empty"_s));
    QCOMPARE(icons({u"--check"_s, u"empty"_s}).status, 1);
}

void TodayIconsCommandTest::checkInGerman()
{
    QVERIFY(putFile(at(u"o/A.appiconset/Contents.json"_s),
                    "{\"images\":[{\"idiom\":\"universal\",\"platform\":\"ios\",\"size\":\"1024x1024\","
                    "\"filename\":\"a.png\"}]}"));
    QVERIFY(putFile(at(u"o/A.appiconset/a.png"_s), pictureFile(opaquePicture(20))));
    const LumoraRun run = LumoraProcess()
                              .in(m_folder->path())
                              .withVariable(u"LC_ALL"_s, u"de_DE.UTF-8"_s)
                              .run({u"icons"_s, u"--check"_s, u"o"_s});
    QVERIFY2(run.out.contains("Fehler: A.appiconset/a.png: ") &&
                 run.out.contains("(20 x 20 Pixel statt 1024 x 1024 Pixel)"),
             run.out);
    QVERIFY2(!run.out.contains("error") && !run.out.contains("not "), run.out);
}

QTEST_GUILESS_MAIN(TodayIconsCommandTest)

#include "TodayIconsCommandTest.moc"
