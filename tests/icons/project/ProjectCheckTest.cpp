// SPDX-License-Identifier: MIT
#include "IntoProject.h"
#include "icons/check/IconCheck.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// Expo's settings with every picture that they can name.
const Tree fullExpo = {
    {u"app.json"_s,
     "{\"expo\":{\"icon\":\"./assets/icon.png\",\"ios\":{\"icon\":{\"light\":\"./assets/l.png\","
     "\"dark\":\"./assets/d.png\",\"tinted\":\"./assets/t.png\"}},\"android\":{\"icon\":\"./assets/a.png\","
     "\"adaptiveIcon\":{\"foregroundImage\":\"./assets/f.png\",\"monochromeImage\":\"./assets/m.png\"}},"
     "\"notification\":{\"icon\":\"./assets/n.png\"},\"web\":{\"favicon\":\"./assets/favicon.png\"}}}"},
};
const Tree plainExpo = {{u"app.json"_s, "{\"expo\":{\"name\":\"a\"}}"}};
const Tree fullCordova = {
    {u"config.xml"_s, "<widget xmlns=\"http://www.w3.org/ns/widgets\"><icon src=\"icon.png\"/>"
                      "<platform name=\"ios\"><icon src=\"res/ios/1024.png\" width=\"1024\" height=\"1024\"/>"
                      "<icon src=\"res/ios/60@2x.png\" width=\"120\" height=\"120\"/></platform>"
                      "<platform name=\"android\"><icon src=\"res/a/hdpi.png\" density=\"hdpi\"/></platform></widget>"},
};
const Tree adaptiveCordova = {
    {u"config.xml"_s, "<widget xmlns=\"http://www.w3.org/ns/widgets\"><platform name=\"android\">"
                      "<icon foreground=\"res/f.png\" background=\"res/b.png\" monochrome=\"res/m.png\" "
                      "src=\"res/l.png\" density=\"xhdpi\"/></platform></widget>"},
};
const Tree namedElectron = {
    {u"package.json"_s, "{\"devDependencies\":{\"electron\":\"30\"}}"},
    {u"electron-builder.yml"_s, "mac:\n  icon: art/app.icns\nwin:\n  icon: art/app.ico\nlinux:\n  icon: art/app.png\n"},
};
const Tree plainCordova = {{u"config.xml"_s, "<widget xmlns=\"http://www.w3.org/ns/widgets\"/>"}};
const Tree namedMaui = {
    {u"App.csproj"_s,
     "<Project><PropertyGroup><UseMaui>true</UseMaui></PropertyGroup><ItemGroup>"
     "<MauiIcon Include=\"Resources\\AppIcon\\logo.svg\" ForegroundFile=\"Resources\\AppIcon\\fg.svg\" "
     "Color=\"#512BD4\" /></ItemGroup></Project>"},
    {u"Resources/AppIcon/fg.svg"_s, squareDrawing},
};
const Tree bundledTauri = {
    {u"src-tauri/tauri.conf.json"_s,
     "{\"bundle\":{\"icon\":[\"icons/32x32.png\",\"icons/icon.icns\",\"icons/icon.ico\"]}}"},
};

/// A white shape on nothing and its ground, so that there are dark and themed icons, too; .NET MAUI takes a drawing.
TodaySources sourcesFor(const Tree &tree)
{
    if (tree.contains(u"App.csproj"_s))
        return drawn();
    TodaySources sources = sourcesOf(disk(500, Qt::white));
    sources.flatten = Qt::blue;
    return sources;
}

QStringList errorsIn(const QString &folder)
{
    QStringList errors;
    const QList<IconFinding> findings = checkIcons(folder).value().findings;
    for (const IconFinding &finding : findings) {
        if (infoOf(finding.rule).severity == FindingSeverity::Error)
            errors << QLatin1StringView(infoOf(finding.rule).id) + u' ' + QDir(folder).relativeFilePath(finding.path);
    }
    return errors;
}

bool ruleIsFound(const QString &folder, IconRule rule, const QString &file)
{
    const QList<IconFinding> findings = checkIcons(folder).value().findings;
    return std::any_of(findings.begin(), findings.end(), [&](const IconFinding &finding) {
        return finding.rule == rule && finding.path == folder + u'/' + file;
    });
}

} // namespace

/// A check of a whole project, on its own.
class ProjectCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void everythingWrittenIsJudged_data();
    void everythingWrittenIsJudged();
    void broken_data();
    void broken();
    void accepted_data();
    void accepted();
    void warnings_data();
    void warnings();
    void brokenSettings_data();
    void brokenSettings();
    void belowTheFolder();
    void namesOfMaui();
};

void ProjectCheckTest::everythingWrittenIsJudged_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::newRow("flutter") << flutter;
    QTest::newRow("capacitor") << capacitor;
    QTest::newRow("cordova") << cordova;
    QTest::newRow("cordova, every element") << fullCordova;
    QTest::newRow("cordova, adaptive") << adaptiveCordova;
    QTest::newRow("cordova, no element") << plainCordova;
    QTest::newRow("react native") << reactNative;
    QTest::newRow("expo") << expo;
    QTest::newRow("expo, every key") << fullExpo;
    QTest::newRow("expo, no key") << plainExpo;
    QTest::newRow("tauri") << tauri;
    QTest::newRow("tauri, bundled") << bundledTauri;
    QTest::newRow("electron") << electron;
    QTest::newRow("electron, named") << namedElectron;
    QTest::newRow("maui") << maui;
    QTest::newRow("maui, other names") << namedMaui;
    Tree xcodeAlone = xcode;
    xcodeAlone.remove(u"Mine/Assets.xcassets/Other.appiconset/Contents.json"_s);
    QTest::newRow("xcode") << xcodeAlone;
    QTest::newRow("gradle") << gradle;
}

void ProjectCheckTest::everythingWrittenIsJudged()
{
    QFETCH(Tree, tree);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    const Put written = putInto(folder.path(), {}, sourcesFor(tree));
    QVERIFY2(!written.failure, written.failure ? qPrintable(written.failure->detail.words()) : "");
    const QStringList checked = checkIcons(folder.path()).value().checked;
    for (const ProjectFile &file : written.files) {
        if (file.change == FileChange::Removed)
            continue;
        const QString path = folder.filePath(file.path);
        QVERIFY2(std::any_of(checked.begin(), checked.end(),
                             [&path](const QString &part) { return path == part || path.startsWith(part + u'/'); }),
                 qPrintable(file.path));
    }
    QCOMPARE(errorsIn(folder.path()), QStringList());
}

void ProjectCheckTest::broken_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content"); ///< in the file's place; empty if it is removed
    QTest::addColumn<QString>("found");
    const QByteArray none;
    const QByteArray wrong = encodedOpaquePng(opaquePicture(50));
    const QByteArray transparent = encodedPng(disk(900));
    const QByteArray cut = encodedPng(opaquePicture(100)).first(900);
    const QString missing = u"file-missing"_s;
    const QString size = u"wrong-size"_s;
    const QString store = u"store-icon-transparent"_s;

    const QString runner = u"ios/Runner/Assets.xcassets/AppIcon.appiconset/Icon-App-1024x1024@1x.png"_s;
    QTest::newRow("flutter, missing") << flutter << runner << none << missing;
    QTest::newRow("flutter, size") << flutter << runner << wrong << size;
    QTest::newRow("flutter, store") << flutter << runner << transparent << store;
    QTest::newRow("flutter, site") << flutter << u"web/icons/Icon-192.png"_s << wrong << size;
    const QString app = u"ios/App/App/Assets.xcassets/AppIcon.appiconset/AppIcon-512@2x.png"_s;
    QTest::newRow("capacitor, missing") << capacitor << app << none << missing;
    QTest::newRow("capacitor, size") << capacitor << app << wrong << size;
    QTest::newRow("capacitor, store") << capacitor << app << transparent << store;
    QTest::newRow("cordova, missing") << fullCordova << u"res/ios/60@2x.png"_s << none << missing;
    QTest::newRow("cordova, size") << fullCordova << u"res/ios/60@2x.png"_s << wrong << size;
    QTest::newRow("cordova, density") << fullCordova << u"res/a/hdpi.png"_s << wrong << size;
    QTest::newRow("cordova, store") << fullCordova << u"res/ios/1024.png"_s << transparent << store;
    QTest::newRow("cordova, cut") << fullCordova << u"icon.png"_s << cut << u"picture-unreadable"_s;
    QTest::newRow("cordova, layer") << adaptiveCordova << u"res/f.png"_s << wrong << size;
    QTest::newRow("cordova, missing layer") << adaptiveCordova << u"res/m.png"_s << none << missing;
    const QString mine = u"ios/Mine/Images.xcassets/AppIcon.appiconset/AppIcon.png"_s;
    QTest::newRow("react native, missing") << reactNative << mine << none << missing;
    QTest::newRow("react native, size") << reactNative << mine << wrong << size;
    QTest::newRow("react native, store") << reactNative << mine << transparent << store;
    QTest::newRow("expo, missing") << fullExpo << u"assets/f.png"_s << none << missing;
    QTest::newRow("expo, size") << fullExpo << u"assets/icon.png"_s << wrong << size;
    QTest::newRow("expo, not square") << fullExpo << u"assets/favicon.png"_s << encodedPng(testPicture(20, 10)) << size;
    QTest::newRow("expo, store") << fullExpo << u"assets/l.png"_s << transparent << store;
    QTest::newRow("expo, the only icon") << plainExpo << u"assets/icon.png"_s << transparent << store;
    QTest::newRow("tauri, missing") << bundledTauri << u"src-tauri/icons/32x32.png"_s << none << missing;
    QTest::newRow("tauri, missing icon file") << bundledTauri << u"src-tauri/icons/icon.icns"_s << none << missing;
    QTest::newRow("tauri, size") << tauri << u"src-tauri/icons/128x128@2x.png"_s << wrong << size;
    QTest::newRow("tauri, store")
        << tauri << u"src-tauri/gen/apple/Assets.xcassets/AppIcon.appiconset/Icon-App-1024x1024@1x.png"_s << transparent
        << store;
    QTest::newRow("electron, size") << electron << u"resources/icons/512x512.png"_s << wrong << size;
    QTest::newRow("electron, too small") << electron << u"resources/icon.png"_s << wrong << size;
    QTest::newRow("electron, missing") << namedElectron << u"art/app.icns"_s << none << missing;
    QTest::newRow("electron, broken") << namedElectron << u"art/app.ico"_s << QByteArray("MZ") << u"icon-file-broken"_s;
    QTest::newRow("electron, cut") << electron << u"resources/icons/64x64.png"_s << cut << u"picture-unreadable"_s;
    QTest::newRow("maui, missing") << namedMaui << u"Resources/AppIcon/logo.svg"_s << none << missing;
    QTest::newRow("maui, missing foreground") << namedMaui << u"Resources/AppIcon/fg.svg"_s << none << missing;
    QTest::newRow("maui, no drawing") << namedMaui << u"Resources/AppIcon/logo.svg"_s << wrong
                                      << u"picture-unreadable"_s;
    QTest::newRow("maui, cut") << maui << u"Resources/AppIcon/appicon.svg"_s << squareDrawing.first(100)
                               << u"picture-unreadable"_s;
    const QString watch = u"Watch/Assets.xcassets/Icon.appiconset/AppIcon.png"_s;
    QTest::newRow("xcode, missing") << xcode << watch << none << missing;
    QTest::newRow("xcode, size") << xcode << watch << wrong << size;
    QTest::newRow("xcode, store") << xcode << watch << transparent << store;
    const QString play = u"app/src/main/ic_app-playstore.png"_s;
    QTest::newRow("gradle, missing") << gradle << u"app/src/main/res/values/ic_app_ground.xml"_s << none
                                     << u"resource-missing"_s;
    QTest::newRow("gradle, size") << gradle << play << wrong << size;
    QTest::newRow("gradle, store") << gradle << play << encodedPng(disk(900, Qt::red, Qt::transparent, 512)) << store;
}

void ProjectCheckTest::broken()
{
    QFETCH(Tree, tree);
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QString, found);
    const QTemporaryDir folder;
    tree.remove(u"Mine/Assets.xcassets/Other.appiconset/Contents.json"_s);
    QVERIFY(put(folder.path(), tree));
    QVERIFY(!putInto(folder.path(), {}, sourcesFor(tree)).failure);
    QCOMPARE(errorsIn(folder.path()), QStringList());
    QVERIFY(QFile::remove(folder.filePath(file)));
    if (!content.isEmpty())
        QVERIFY(putFile(folder.filePath(file), content));
    const QStringList errors = errorsIn(folder.path());
    QVERIFY2(!errors.isEmpty(), "nothing found");
    // Two icons name the color.
    for (const QString &error : errors)
        QVERIFY2(error.startsWith(found) && (error.endsWith(file) || found == u"resource-missing"), qPrintable(error));
}

void ProjectCheckTest::accepted_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a larger icon that the build scales")
        << fullExpo << u"assets/icon.png"_s << encodedOpaquePng(opaquePicture(1200));
    QTest::newRow("a smaller layer that the build scales")
        << fullExpo << u"assets/f.png"_s << encodedPng(disk(500, Qt::red, Qt::transparent, 432));
    QTest::newRow("a favicon of another size")
        << fullExpo << u"assets/favicon.png"_s << encodedPng(testPicture(196, 196));
    QTest::newRow("an icon of no stated size") << fullCordova << u"icon.png"_s << encodedPng(testPicture(300, 300));
    QTest::newRow("a picture that nothing names") << tauri << u"src-tauri/icons/32x32.png"_s << QByteArray();
}

void ProjectCheckTest::accepted()
{
    QFETCH(Tree, tree);
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    QVERIFY(!putInto(folder.path(), {}, sourcesFor(tree)).failure);
    QVERIFY(QFile::remove(folder.filePath(file)));
    if (!content.isEmpty())
        QVERIFY(putFile(folder.filePath(file), content));
    QCOMPARE(errorsIn(folder.path()), QStringList());
}

void ProjectCheckTest::warnings_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<IconRule>("rule");
    QTest::newRow("an opaque alpha channel")
        << plainExpo << u"assets/icon.png"_s << encodedPng(opaquePicture()) << IconRule::AlphaChannel;
    QTest::newRow("a transparent icon beside the store's")
        << fullExpo << u"assets/icon.png"_s << encodedPng(disk(900)) << IconRule::IconTransparent;
    QTest::newRow("a transparent icon on a phone")
        << fullCordova << u"res/ios/60@2x.png"_s << encodedPng(disk(900, Qt::red, Qt::transparent, 120))
        << IconRule::IconTransparent;
    QTest::newRow("colors in the tinted icon")
        << fullExpo << u"assets/t.png"_s << encodedOpaquePng(opaquePicture()) << IconRule::TintedColors;
    QTest::newRow("a layer that masks cut")
        << fullExpo << u"assets/f.png"_s << encodedPng(disk(900)) << IconRule::OutsideSafeZone;
    QTest::newRow("a themed layer without a shape")
        << fullExpo << u"assets/m.png"_s << encodedPng(opaquePicture()) << IconRule::MonochromeOpaque;
    QTest::newRow("a transparent maskable picture")
        << flutter << u"web/icons/Icon-maskable-512.png"_s << encodedPng(disk(900, Qt::red, Qt::transparent, 512))
        << IconRule::IconTransparent;
}

void ProjectCheckTest::warnings()
{
    QFETCH(Tree, tree);
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(IconRule, rule);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    QVERIFY(!putInto(folder.path(), {}, sourcesFor(tree)).failure);
    QVERIFY(!ruleIsFound(folder.path(), rule, file));
    QVERIFY(QFile::remove(folder.filePath(file)));
    QVERIFY(putFile(folder.filePath(file), content));
    QVERIFY(ruleIsFound(folder.path(), rule, file));
    QCOMPARE(errorsIn(folder.path()), QStringList());
}

void ProjectCheckTest::brokenSettings_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QString>("error");
    QTest::newRow("settings cut off") << Tree{{u"config.xml"_s, "<widget><icon src=\"a.png\"/>"}}
                                      << u"contents-unreadable config.xml"_s;
    QTest::newRow("resources elsewhere") << Tree{{u"package.json"_s,
                                                  "{\"devDependencies\":{\"electron\":\"30\"},"
                                                  "\"build\":{\"directories\":{\"buildResources\":\"../x\"}}}"}}
                                         << u"file-outside package.json"_s;
}

void ProjectCheckTest::brokenSettings()
{
    QFETCH(Tree, tree);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    QTEST(errorsIn(folder.path()).join(u' '), "error");
}

void ProjectCheckTest::belowTheFolder()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.filePath(u"apps/mobile"_s), fullExpo));
    QVERIFY(errorsIn(folder.path()).contains(u"file-missing apps/mobile/assets/icon.png"_s));
}

/// The drawings take the names in the project's file; a foreground that would cover the icon is spoken of.
void ProjectCheckTest::namesOfMaui()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), namedMaui));
    const Put alone = putInto(folder.path());
    QCOMPARE(alone.paths(), QStringList{u"Resources/AppIcon/logo.svg"_s});
    QCOMPARE(alone.linesToAdd, QStringList{u"App.csproj: <MauiIcon Include=\"Resources\\AppIcon\\logo.svg\" />"_s});
    TodaySources sources = drawn();
    sources.foreground = sources.icon;
    const Put both = putInto(folder.path(), {}, sources);
    QVERIFY(both.paths().contains(u"Resources/AppIcon/fg.svg"_s));
    QCOMPARE(both.linesToAdd, QStringList());
}

QTEST_APPLESS_MAIN(ProjectCheckTest)

#include "ProjectCheckTest.moc"
