// SPDX-License-Identifier: MIT
#include "IntoProject.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The files that the settings of a project name, and no others.
class NamedIconsTest : public QObject
{
    Q_OBJECT

private slots:
    void places_data();
    void places();
    void outside_data();
    void outside();
    void backgrounds_data();
    void backgrounds();
    void backgroundColors();
    void programs();
};

namespace
{

QByteArray electronPackage(const QByteArray &more)
{
    return "{\"devDependencies\":{\"electron\":\"30\"}" + more + '}';
}

QByteArray cordovaWith(const QByteArray &icon)
{
    return "<widget xmlns=\"http://www.w3.org/ns/widgets\"><platform name=\"android\">" + icon + "</platform></widget>";
}

QStringList linuxIcons(const QString &folder)
{
    QStringList paths;
    for (const int edge : {16, 24, 32, 48, 64, 96, 128, 256, 512})
        paths << folder + u"/%1x%1.png"_s.arg(edge);
    return paths;
}

/// White on nothing, which has a monochrome shape.
TodaySources shape()
{
    TodaySources sources = sourcesOf(disk(500, Qt::white));
    sources.flatten = Qt::blue;
    return sources;
}

const QString package = u"package.json"_s;
const QString configXml = u"config.xml"_s;

} // namespace

void NamedIconsTest::places_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QStringList>("written");
    QTest::addColumn<QString>("unread"); ///< a file whose settings are not known
    const QStringList usual = QStringList{u"build/icon.icns"_s, u"build/icon.ico"_s, u"build/icon.png"_s};
    const QByteArray plain = electronPackage({});
    QTest::newRow("no settings") << Tree{{package, plain}} << usual + linuxIcons(u"build/icons"_s) << QString();
    QTest::newRow("package.json")
        << Tree{{package,
                 electronPackage(",\"build\":{\"mac\":{\"icon\":\"art/a.icns\"},\"win\":{\"icon\":\"art/a.ico\"},"
                                 "\"linux\":{\"icon\":\"art/linux\"}}")}}
        << QStringList{u"art/a.icns"_s, u"art/a.ico"_s} + linuxIcons(u"art/linux"_s) << QString();
    QTest::newRow("one of them") << Tree{{package, electronPackage(",\"build\":{\"mac\":{\"icon\":\"art/a.icns\"}}")}}
                                 << QStringList{u"art/a.icns"_s, u"build/icon.ico"_s, u"build/icon.png"_s} +
                                        linuxIcons(u"build/icons"_s)
                                 << QString();
    QTest::newRow("among the resources")
        << Tree{{package, electronPackage(",\"build\":{\"directories\":{\"buildResources\":\"res\"},\"mac\":{\"icon\":"
                                          "\"a.icns\"},\"win\":{\"icon\":\"a.ico\"},\"linux\":{\"icon\":\"a.png\"}}")},
                {u"res/a.icns"_s, "old"}}
        << QStringList{u"a.ico"_s, u"a.png"_s, u"res/a.icns"_s} << QString();
    QTest::newRow("without an ending")
        << Tree{{package, electronPackage(",\"build\":{\"mac\":{\"icon\":\"art/a\"},\"win\":{\"icon\":\"art/a\"},"
                                          "\"linux\":{\"icon\":\"art/a.png\"}}")}}
        << QStringList{u"art/a.icns"_s, u"art/a.ico"_s, u"art/a.png"_s} << QString();
    QTest::newRow("one picture for all") << Tree{{package, electronPackage(",\"build\":{\"icon\":\"art/a.png\"}")}}
                                         << QStringList{u"art/a.png"_s} << QString();
    QTest::newRow("a name that the build puts together")
        << Tree{{package,
                 electronPackage(",\"build\":{\"icon\":\"art/${channel}.png\",\"mac\":{\"icon\":\"a.icns\"}}")}}
        << QStringList{u"a.icns"_s} << QString();
    QTest::newRow("yaml")
        << Tree{{package, plain},
                {u"electron-builder.yml"_s,
                 "appId: a.b # c\n# mac:\ndirectories:\n    buildResources: 'res'\nmac:\r\n"
                 "    category: x\n    target:\n        icon: no.icns\n    icon: \"art/a.icns\" # own\r\n"
                 "win:\n    icon: art/a.ico # own\nlinux:\n    icon: art\n"}}
        << QStringList{u"art/a.icns"_s, u"art/a.ico"_s} + linuxIcons(u"art"_s) << QString();
    QTest::newRow("json") << Tree{{package, plain},
                                  {u"electron-builder.json"_s, "{\"icon\":\"a.png\"}"},
                                  {u"electron-builder.js"_s, ""}}
                          << QStringList{u"a.png"_s} << QString();
    QTest::newRow("a program") << Tree{{package, plain}, {u"electron-builder.config.js"_s, ""}}
                               << usual + linuxIcons(u"build/icons"_s) << u"electron-builder.config.js"_s;
    QTest::newRow("forge")
        << Tree{{package, electronPackage(",\"config\":{\"forge\":{\"packagerConfig\":{\"icon\":\"./img/a\"}}}")}}
        << QStringList{u"img/a.icns"_s, u"img/a.ico"_s} << QString();
    QTest::newRow("expo, another file") << Tree{{u"app.config.json"_s, "{\"expo\":{\"icon\":\"./a.png\"}}"}}
                                        << QStringList{u"a.png"_s} << QString();
    QTest::newRow("expo, a program beside it")
        << Tree{{u"app.json"_s, "{\"expo\":{\"icon\":\"./a.png\"}}"}, {u"app.config.ts"_s, ""}}
        << QStringList{u"a.png"_s} << u"app.config.ts"_s;
    const QByteArray layers =
        "<icon background=\"r/b.png\" foreground=\"r/f.png\" monochrome=\"r/m.png\" density=\"hdpi\"/>";
    QTest::newRow("cordova, layers") << Tree{{configXml, cordovaWith(layers)}}
                                     << QStringList{u"r/b.png"_s, u"r/f.png"_s, u"r/m.png"_s} << QString();
    QTest::newRow("cordova, a color and a drawing")
        << Tree{{configXml, cordovaWith("<icon background=\"@color/b\" foreground=\"r/f.xml\" src=\"r/l.png\" "
                                        "density=\"hdpi\"/>")}}
        << QStringList{u"r/l.png"_s} << QString();
    QTest::newRow("cordova, layers of another platform")
        << Tree{{configXml,
                 "<widget><platform name=\"ios\"><icon src=\"a.png\" foreground=\"f.png\"/></platform></widget>"}}
        << QStringList{u"a.png"_s} << QString();
}

void NamedIconsTest::places()
{
    QFETCH(Tree, tree);
    QFETCH(QStringList, written);
    QFETCH(QString, unread);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    const Put result = putInto(folder.path(), {}, shape());
    QVERIFY2(!result.failure, result.failure ? qPrintable(result.failure->detail.words()) : "");
    QStringList paths = result.paths();
    paths.sort();
    written.sort();
    QCOMPARE(paths, written);
    QStringList said;
    for (const Derived &derived : result.plan.derived) {
        if (derived.derivation == Derivation::SettingsNotRead)
            said << derived.detail;
    }
    QCOMPARE(said.join(u' '), unread);
}

void NamedIconsTest::outside_data()
{
    QTest::addColumn<QByteArray>("build");
    QTest::newRow("up") << QByteArray("{\"mac\":{\"icon\":\"../a.icns\"}}");
    QTest::newRow("absolute") << QByteArray("{\"linux\":{\"icon\":\"/tmp/icons\"}}");
    QTest::newRow("all") << QByteArray("{\"icon\":\"x/../../a.png\"}");
}

void NamedIconsTest::outside()
{
    QFETCH(QByteArray, build);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), {{package, electronPackage(",\"build\":" + build)}}));
    const Put result = putInto(folder.path());
    QVERIFY(result.failure && result.failure->code == FailureCode::LeadsOutside);
    QCOMPARE(result.failure->subject, folder.filePath(package));
}

void NamedIconsTest::backgrounds_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("written"); ///< invalid if the file stays
    QTest::newRow("derived") << false << QColor() << QColor(Qt::white);
    QTest::newRow("kept") << true << QColor() << QColor();
    QTest::newRow("given") << true << QColor(0x12, 0x34, 0x56) << QColor(0x12, 0x34, 0x56);
}

void NamedIconsTest::backgrounds()
{
    QFETCH(bool, isThere);
    QFETCH(QColor, color);
    QFETCH(QColor, written);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), {{configXml, cordovaWith("<icon background=\"b.png\" foreground=\"f.png\" "
                                                        "density=\"mdpi\"/>")}}));
    const QByteArray old = encodedOpaquePng(opaquePicture(108));
    if (isThere)
        QVERIFY(putFile(folder.filePath(u"b.png"_s), old));
    TodaySources sources = shape();
    if (color.isValid())
        sources.backgroundColor = color;
    const Put result = putInto(folder.path(), {}, sources);
    QVERIFY(!result.failure);
    QCOMPARE(result.plan.derived.contains(Derived{Derivation::BackgroundKept, u"b.png"_s}), !written.isValid());
    const QByteArray content = contentOfFile(folder.filePath(u"b.png"_s));
    QCOMPARE(content == old, !written.isValid());
    if (!written.isValid())
        return;
    const QImage picture = QImage::fromData(content);
    QCOMPARE(picture.size(), QSize(108, 108));
    QCOMPARE(picture.pixelColor(0, 0).rgba(), written.rgba());
    QCOMPARE(picture.pixelColor(54, 54).rgba(), written.rgba());
}

/// A color behind the foreground is only spoken of where no picture lies there.
void NamedIconsTest::backgroundColors()
{
    const QByteArray start = "{\"expo\":{\"android\":{\"adaptiveIcon\":{\"foregroundImage\":\"f.png\"";
    for (const auto &[more, isSaid] : {std::pair{QByteArray(), true}, {",\"backgroundImage\":\"b.png\"", false}}) {
        const QTemporaryDir folder;
        QVERIFY(put(folder.path(), {{u"app.json"_s, start + more + "}}}}"}}));
        const Put result = putInto(folder.path(), {}, shape());
        QCOMPARE(result.linesToAdd.join(u' ').contains(u"backgroundColor"), isSaid);
    }
}

/// Without settings that can be read, nothing is guessed.
void NamedIconsTest::programs()
{
    const QTemporaryDir folder;
    Tree tree{{package, "{\"dependencies\":{\"expo\":\"54\",\"react-native\":\"0.81\"}}"}, {u"app.config.js"_s, "x"}};
    QVERIFY(put(folder.path(), tree));
    const Put alone = putInto(folder.path());
    QVERIFY(alone.failure && alone.failure->code == FailureCode::NotReadable);
    QCOMPARE(alone.failure->subject, folder.filePath(u"app.config.js"_s));
    QVERIFY(putFile(folder.filePath(u"android/app/src/main/AndroidManifest.xml"_s), manifest));
    const Put withPlatform = putInto(folder.path());
    QVERIFY(!withPlatform.failure);
    QVERIFY(withPlatform.paths().contains(u"android/app/src/main/res/mipmap-mdpi/ic_launcher.png"_s));
}

QTEST_APPLESS_MAIN(NamedIconsTest)

#include "NamedIconsTest.moc"
