// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"

#include "foundation/WholeFile.h"
#include "tests/pictures/TestPictures.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr auto textOfEveryForm =
    "swiftui: Color(red: 0.2, green: 0.4, blue: 0.6, opacity: 1)\n"
    "uikit-swift: UIColor(red: 0.2, green: 0.4, blue: 0.6, alpha: 1)\n"
    "uikit-objc: [UIColor colorWithRed:0.2 green:0.4 blue:0.6 alpha:1.0]\n"
    "appkit-swift: NSColor(srgbRed: 0.2, green: 0.4, blue: 0.6, alpha: 1)\n"
    "appkit-objc: [NSColor colorWithSRGBRed:0.2 green:0.4 blue:0.6 alpha:1.0]\n"
    "colorset: {\"colors\":[{\"color\":{\"color-space\":\"srgb\",\"components\":{\"alpha\":\"1.000\","
    "\"blue\":\"0x99\",\"green\":\"0x66\",\"red\":\"0x33\"}},\"idiom\":\"universal\"}],"
    "\"info\":{\"author\":\"xcode\",\"version\":1}}\n"
    "compose: Color(0xFF336699)\n"
    "flutter: const Color(0xFF336699)\n"
    "android-xml: <color name=\"color\">#FF336699</color>\n"
    "kotlin: Color.argb(255, 51, 102, 153)\n"
    "css-hex: #336699ff\n"
    "css-rgb: rgb(51 102 153)\n"
    "css-hsl: hsl(210 50% 40%)\n"
    "css-hwb: hwb(210 20% 40%)\n"
    "css-oklch: oklch(49.931% 0.09866 250.433)\n"
    "css-p3: color(display-p3 0.2499 0.3952 0.584)\n"
    "maui: Color.FromArgb(\"#FF336699\")\n"
    "tailwind: bg-[#336699]\n"
    "qml: \"#FF336699\"\n";

} // namespace

/// The commands' newer options.
class TodayCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void prints_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::newRow("every form") << QStringList{u"color"_s, u"#369"_s, u"--all"_s} << 0
                                    << QByteArray(textOfEveryForm);
        QTest::newRow("every form, of any form")
            << QStringList{u"color"_s, u"Color(0xFF336699)"_s, u"--all"_s} << 0 << QByteArray(textOfEveryForm);
        QTest::newRow("one form alone") << QStringList{u"color"_s, u"rebeccapurple"_s, u"--form"_s, u"css-rgb"_s} << 0
                                        << QByteArray("rgb(102 51 153)\n");
        QTest::newRow("two forms") << QStringList{u"color"_s, u"#3698"_s, u"--form"_s, u"qml,compose"_s} << 0
                                   << QByteArray("compose: Color(0x88336699)\nqml: \"#88336699\"\n");
        QTest::newRow("in Display P3") << QStringList{u"color"_s,  u"color(display-p3 1 0 0)"_s,
                                                      u"--form"_s, u"swiftui"_s,
                                                      u"--p3"_s,   u"-q"_s}
                                       << 0 << QByteArray();
        QTest::newRow("contrast") << QStringList{u"color"_s,   u"#777"_s,       u"--form"_s,
                                                 u"css-hex"_s, u"--contrast"_s, u"white"_s}
                                  << 0
                                  << QByteArray("#777777ff\ncontrast: 4.48:1\naa: fail\naa-large: pass\naaa: fail\n"
                                                "aaa-large: fail\ninterface: pass\nnearest: #767676\n");
        QTest::newRow("no color") << QStringList{u"color"_s, u"rgb(300 0)"_s, u"--all"_s} << 1 << QByteArray();
        QTest::newRow("no color to compare")
            << QStringList{u"color"_s, u"#369"_s, u"--contrast"_s, u"whitish"_s} << 1 << QByteArray();
        QTest::newRow("an unknown form") << QStringList{u"color"_s, u"#369"_s, u"--form"_s, u"css-hsv"_s} << 2
                                         << QByteArray();
        QTest::newRow("two ways of asking")
            << QStringList{u"color"_s, u"#369"_s, u"--as"_s, u"css"_s, u"--all"_s} << 2 << QByteArray();

        QTest::newRow("models") << QStringList{u"devices"_s, u"--today"_s, u"--family"_s,
                                               u"ipod"_s,    u"--ios"_s,   u"12.."_s}
                                << 0
                                << QByteArray("iPhone: none\niPad: none\niPod touch: iPod touch (7th generation), "
                                              "iPod touch (6th generation)\n");
        QTest::newRow("models of a chip")
            << QStringList{u"devices"_s, u"--chip"_s, u"a12x"_s, u"--capability"_s, u"arkit,metal"_s} << 0
            << QByteArray("iPhone: none\niPad: iPad Pro (11-inch), iPad Pro (12.9-inch) (3rd generation)\n"
                          "iPod touch: none\n");
        QTest::newRow("a backward range")
            << QStringList{u"devices"_s, u"--today"_s, u"--ios"_s, u"17..15"_s} << 2 << QByteArray();
        QTest::newRow("no such model") << QStringList{u"devices"_s, u"--model"_s, u"iPhone99,1"_s} << 1 << QByteArray();
        QTest::newRow("an unknown capability")
            << QStringList{u"devices"_s, u"--capability"_s, u"teleport"_s} << 2 << QByteArray();
        QTest::newRow("two lists at once")
            << QStringList{u"devices"_s, u"--today"_s, u"--feature"_s, u"gps"_s} << 2 << QByteArray();
        QTest::newRow("no list") << QStringList{u"devices"_s, u"--data"_s, u"/dev/null"_s} << 1 << QByteArray();
    }
    void prints()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        const LumoraRun run = runLumora(arguments);
        QVERIFY2(run.status == status, run.err);
        QTEST(run.out, "out");
        QCOMPARE(run.err.isEmpty(), status == 0);
    }

    void aColorAsJson()
    {
        const QJsonObject object =
            runLumora({u"color"_s, u"#777"_s, u"--all"_s, u"--contrast"_s, u"#fff"_s, u"--json"_s}).json();
        QCOMPARE(object[u"hex8"_s], u"#777777ff"_s);
        QCOMPARE(object[u"forms"_s].toObject().size(), 19);
        QCOMPARE(object[u"forms"_s].toObject()[u"css-rgb"_s], u"rgb(119 119 119)"_s);
        QCOMPARE(object[u"clipped"_s], false);
        const QJsonObject contrast = object[u"contrast"_s].toObject();
        QVERIFY(std::abs(contrast[u"ratio"_s].toDouble() - 4.478) < 0.001);
        QCOMPARE(contrast[u"aa"_s], false);
        QCOMPARE(contrast[u"aaLarge"_s], true);
        QCOMPARE(contrast[u"aaa"_s], false);
        QCOMPARE(contrast[u"aaaLarge"_s], false);
    }

    void modelsAsJson()
    {
        const QJsonObject object = runLumora({u"devices"_s, u"--today"_s, u"--ios"_s, u"15.."_s, u"--json"_s}).json();
        qsizetype identifiers = 0;
        for (const QJsonValue value : object[u"models"_s].toArray()) {
            const QJsonObject model = value.toObject();
            identifiers += model[u"identifiers"_s].toArray().size();
            QCOMPARE(model[u"fits"_s].toBool(), model[u"reasons"_s].toArray().isEmpty());
            if (model[u"name"_s] == u"iPhone 5s"_s)
                QCOMPARE(model[u"reasons"_s].toArray(), QJsonArray{u"ends at iOS 12.5.8"_s});
        }
        QCOMPARE(identifiers, 178);
        for (const QString &wanted : {u"iPhone15,2"_s, u"iphone15,2"_s, u"iphone 14 pro"_s}) {
            const QJsonArray one =
                runLumora({u"devices"_s, u"--model"_s, wanted, u"--json"_s}).json()[u"models"_s].toArray();
            QCOMPARE(one.size(), 1);
            QCOMPARE(one[0].toObject()[u"points"_s].toObject()[u"height"_s], 852);
        }
    }

    void aListOfOnesOwn()
    {
        const QString list = QStringLiteral(LUMORA_SOURCE_DIR "/devices/today/models.csv");
        const LumoraRun own = runLumora({u"devices"_s, u"--csv"_s, u"--data"_s, list});
        QCOMPARE(own.status, 0);
        QCOMPARE(own.out, runLumora({u"devices"_s, u"--today"_s, u"--csv"_s}).out);
        QByteArray broken = readWholeFile(list, 1 << 20).value();
        broken.replace("2556,393,852", "2556,393,853");
        QVERIFY(writeWholeFile(path(u"broken.csv"_s), broken).ok());
        const LumoraRun refused = runLumora({u"devices"_s, u"--data"_s, path(u"broken.csv"_s)});
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.err.contains("is not width_pt x height_pt times scale"), refused.err);
    }

    void densitiesAreForeseenThenWritten()
    {
        QVERIFY(QDir(m_folder->path()).mkpath(u"art"_s));
        QVERIFY(writeWholeFile(path(u"art/a@3x.png"_s), pictureFile(quarters(31, 30))).ok());
        const QStringList call{u"downscale"_s,   path(u"art"_s), u"--from"_s,   u"3x"_s,
                               u"--to-scales"_s, u"2x,1x"_s,     u"--layout"_s, u"ios"_s};
        const LumoraRun planned = runLumora(call + QStringList{u"--dry-run"_s});
        QCOMPARE(planned.status, 0);
        QCOMPARE(planned.out, QString(path(u"art/a@2x.png"_s) + u" (21x20, rounded to whole pixels)\n"_s +
                                      path(u"art/a.png"_s) + u" (10x10, rounded to whole pixels)\n"_s)
                                  .toUtf8());
        QCOMPARE(QDir(path(u"art"_s)).count(), 3U);
        QCOMPARE(runLumora(call).out, QString(path(u"art/a@2x.png"_s) + u'\n' + path(u"art/a.png"_s) + u'\n').toUtf8());
        QCOMPARE(QImage(path(u"art/a.png"_s)).size(), QSize(10, 10));
        // A second run has nothing to do, says so, and nothing is lost.
        const LumoraRun again = runLumora(call);
        QCOMPARE(again.status, 0);
        QCOMPARE(again.out, QByteArray());
        QCOMPARE(
            again.complaints(),
            QStringList{u"lumora: left as they are: 2 files that are there already; replace them with --overwrite"_s});
        QCOMPARE(runLumora(call + QStringList{u"--json"_s}).json()[u"kept"_s].toArray(),
                 QJsonArray({path(u"art/a@2x.png"_s), path(u"art/a.png"_s)}));
        QVERIFY(QFile::remove(path(u"art/a.png"_s)) && QFile::link(path(u"art/a@3x.png"_s), path(u"art/a.png"_s)));
        const LumoraRun onto = runLumora(call + QStringList{u"--overwrite"_s});
        QCOMPARE(onto.status, 1);
        QVERIFY2(onto.err.contains("a.png: is one of the pictures to be scaled down; choose another folder\n"),
                 onto.err);
        const LumoraRun webp = runLumora(
            call + QStringList{u"--format"_s, u"webp"_s, u"--quality"_s, u"80"_s, u"--out"_s, path(u"out"_s)});
        QVERIFY2(webp.status == 0, webp.err);
        QCOMPARE(QImage(path(u"out/a@2x.webp"_s)).size(), QSize(21, 20));
    }

    void placeholdersOfStores()
    {
        const LumoraRun run = runLumora({u"placeholders"_s, u"--set"_s, u"play,feature-graphic"_s, u"--text"_s,
                                         u"Soon"_s, u"--foreground"_s, u"white"_s, u"--background"_s, u"#336699"_s,
                                         u"--format"_s, u"webp"_s, u"--out"_s, path(u"out"_s), u"--json"_s});
        QVERIFY2(run.status == 0, run.err);
        QCOMPARE(run.json()[u"files"_s].toArray().size(), 5);
        const QImage picture(path(u"out/placeholder_1024x500.webp"_s));
        QCOMPARE(picture.size(), QSize(1024, 500));
        QCOMPARE(picture.pixel(0, 0), qRgb(0x33, 0x66, 0x99));
    }

    void storesTakeTheirPlaceholders_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<bool>("hasAlpha");
        QTest::newRow("as they are") << QStringList() << false;
        QTest::newRow("in colors") << QStringList{u"--background"_s, u"navy"_s, u"--text"_s, u"Soon"_s} << false;
        QTest::newRow("translucent") << QStringList{u"--background"_s, u"#00000080"_s} << true;
    }
    void storesTakeTheirPlaceholders()
    {
        QFETCH(QStringList, options);
        const LumoraRun run = runLumora(
            QStringList{u"placeholders"_s, u"--set"_s, u"feature-graphic"_s, u"--out"_s, path(u"out"_s)} + options);
        QVERIFY2(run.status == 0, run.err);
        const QImage picture(path(u"out/placeholder_1024x500.png"_s));
        QCOMPARE(picture.size(), QSize(1024, 500));
        QTEST(picture.hasAlphaChannel(), "hasAlpha");
    }

    void screenshotsAreChecked()
    {
        QImage picture(1320, 2868, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(QDir(m_folder->path()).mkpath(u"shots"_s));
        QVERIFY(picture.save(path(u"shots/a.png"_s)));
        const LumoraRun sound = runLumora({u"placeholders"_s, u"--check"_s, path(u"shots"_s), u"--json"_s});
        QCOMPARE(sound.status, 0);
        QCOMPARE(sound.json()[u"findings"_s].toArray(), QJsonArray());
        QVERIFY(picture.copy(0, 0, 100, 100).convertToFormat(QImage::Format_ARGB32).save(path(u"shots/b.png"_s)));
        const LumoraRun faulty = runLumora({u"placeholders"_s, u"--check"_s, path(u"shots"_s)});
        QCOMPARE(faulty.status, 1);
        QVERIFY2(faulty.out.startsWith("error screenshot.alpha: b.png: "), faulty.out);
    }

private:
    QString path(const QString &name) const { return m_folder->path() + u'/' + name; }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TodayCommandsTest)
#include "TodayCommandsTest.moc"
