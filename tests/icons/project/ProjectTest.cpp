// SPDX-License-Identifier: MIT
#include "IntoProject.h"
#include "icons/check/IconCheck.h"
#include "icons/check/ProjectCheck.h"
#include "pictures/PictureReader.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace lumora;
using namespace Qt::StringLiterals;

class ProjectTest : public QObject
{
    Q_OBJECT

private slots:
    void recognized_data();
    void recognized();
    void writtenTwice_data();
    void writtenTwice();
    void namesOfTheProject();
    void sizesOfTheProject();
    void flavors();
    void otherSetOfFlutter();
    void unnamedSets_data();
    void unnamedSets();
    void otherFormatsGo();
    void oldMonochromeGoes_data();
    void oldMonochromeGoes();
    void takenColors();
    void readBack_data();
    void readBack();
    void readBackLeavesOthersAlone();
};

void ProjectTest::recognized_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QStringList>("kinds");
    QTest::newRow("flutter") << flutter << QStringList{u"flutter"_s};
    QTest::newRow("capacitor") << capacitor << QStringList{u"capacitor"_s};
    QTest::newRow("cordova") << cordova << QStringList{u"cordova"_s};
    QTest::newRow("react native") << reactNative << QStringList{u"react-native"_s};
    QTest::newRow("expo") << expo << QStringList{u"expo"_s};
    QTest::newRow("tauri") << tauri << QStringList{u"tauri"_s};
    QTest::newRow("electron") << electron << QStringList{u"electron"_s};
    QTest::newRow("maui") << maui << QStringList{u"maui"_s};
    QTest::newRow("xcode") << xcode << QStringList{u"xcode"_s};
    QTest::newRow("gradle") << gradle << QStringList{u"gradle"_s};
    Tree two;
    for (auto file = flutter.begin(); file != flutter.end(); ++file)
        two[u"apps/mobile/"_s + file.key()] = file.value();
    for (auto file = electron.begin(); file != electron.end(); ++file)
        two[u"desktop/"_s + file.key()] = file.value();
    QTest::newRow("several in one tree") << two << QStringList{u"desktop: electron"_s};
    QTest::newRow("nothing") << Tree{{u"pubspec.yaml"_s, "name: package\n"},
                                     {u"package.json"_s, "[]"},
                                     {u"config.xml"_s, "<configuration/>"},
                                     {u"app.json"_s, "{\"expo\":1}"}}
                             << QStringList();
}

void ProjectTest::recognized()
{
    QFETCH(Tree, tree);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    QStringList kinds;
    for (const RecognizedProject &project : recognizeProjects(folder.path()))
        kinds << (project.folder.isEmpty() ? QString() : QString(project.folder + u": "_s)) +
                     QLatin1StringView(infoOf(project.kind).id);
    QTEST(kinds, "kinds");
}

void ProjectTest::writtenTwice_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("some");
    QTest::newRow("flutter") << flutter << 3 + 3 + 12 + 5 + 1
                             << QStringList{
                                    u"ios/Runner/Assets.xcassets/AppIcon.appiconset/Icon-App-83.5x83.5@2x.png"_s,
                                    u"macos/Runner/Assets.xcassets/AppIcon.appiconset/app_icon_32.png"_s,
                                    u"android/app/src/main/res/mipmap-xxhdpi/ic_launcher.png"_s,
                                    u"web/icons/Icon-maskable-512.png"_s};
    QTest::newRow("capacitor") << capacitor << 1 + 12
                               << QStringList{u"ios/App/App/Assets.xcassets/AppIcon.appiconset/AppIcon-512@2x.png"_s};
    QTest::newRow("cordova") << cordova << 2 << QStringList{u"res/ios/60@2x.png"_s, u"res/a/hdpi.png"_s};
    QTest::newRow("react native") << reactNative << 3 + 18
                                  << QStringList{u"ios/Mine/Images.xcassets/AppIcon.appiconset/AppIcon-Tinted.png"_s,
                                                 u"android/app/src/main/res/mipmap-hdpi/ic_app_round.png"_s};
    QTest::newRow("expo") << expo << 5 << QStringList{u"assets/icon.png"_s, u"assets/f.png"_s};
    QTest::newRow("tauri") << tauri << 4 + 9 + 1 + 2 + 3
                           << QStringList{u"src-tauri/icons/128x128@2x.png"_s, u"src-tauri/icons/icon.icns"_s};
    QTest::newRow("electron") << electron << 3 + 9 << QStringList{u"resources/icons/512x512.png"_s};
    QTest::newRow("maui") << maui << 1 << QStringList{u"Resources/AppIcon/appicon.svg"_s};
    QTest::newRow("xcode") << xcode << 3 + 2
                           << QStringList{u"Mine/Assets.xcassets/Icon.appiconset/AppIcon.png"_s,
                                          u"Watch/Assets.xcassets/Icon.appiconset/AppIcon.png"_s};
    QTest::newRow("gradle") << gradle << 18 + 1 + 1 << QStringList{u"app/src/main/ic_app-playstore.png"_s};
}

void ProjectTest::writtenTwice()
{
    QFETCH(Tree, tree);
    QFETCH(int, count);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    const Put first = putInto(folder.path());
    QVERIFY2(!first.failure, first.failure ? qPrintable(first.failure->subject + first.failure->detail.words()) : "");
    QVERIFY2(first.files.size() == count, qPrintable(first.paths().join(u'\n')));
    QCOMPARE(first.count(FileChange::Unchanged), 0);
    QFETCH(QStringList, some);
    for (const QString &path : some)
        QVERIFY2(first.paths().contains(path), qPrintable(path));
    for (const ProjectFile &file : first.files) {
        if (file.change != FileChange::Removed)
            QCOMPARE(contentOfFile(folder.filePath(file.path)), file.after);
    }
    // What is not the icon's own stays.
    for (auto file = tree.begin(); file != tree.end(); ++file) {
        if (!first.paths().contains(file.key()))
            QCOMPARE(contentOfFile(folder.filePath(file.key())), file.value());
    }
    const Tree written = content(folder.path());
    const Put second = putInto(folder.path());
    QVERIFY(!second.failure);
    QCOMPARE(second.count(FileChange::Unchanged), second.files.size());
    QCOMPARE(content(folder.path()), written);
    const IconCheck check = checkIcons(folder.path()).value();
    for (const IconFinding &finding : check.findings) {
        const bool fits = infoOf(finding.rule).severity != FindingSeverity::Error || finding.path.contains(u"Other");
        QVERIFY2(fits, qPrintable(finding.path + finding.evidence.words()));
    }
    QVERIFY(!checkProject(folder.path(), first.plan).has(FindingSeverity::Error));
}

void ProjectTest::namesOfTheProject()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), reactNative));
    QVERIFY(!putInto(folder.path()).failure);
    const QString set = u"ios/Mine/Images.xcassets/AppIcon.appiconset/"_s;
    const QJsonArray images =
        QJsonDocument::fromJson(contentOfFile(folder.filePath(set + u"Contents.json"_s)))[u"images"_s].toArray();
    QCOMPARE(images[0].toObject()[u"filename"_s].toString(), u"AppIcon.png"_s);
    QCOMPARE(images[1].toObject()[u"filename"_s].toString(), u"AppIcon-Tinted.png"_s);
    // A list whose every slot has its file is the project's own and stays as it is.
    const QTemporaryDir other;
    QVERIFY(put(other.path(), flutter));
    QVERIFY(!putInto(other.path()).failure);
    QCOMPARE(contentOfFile(other.filePath(u"ios/Runner/Assets.xcassets/AppIcon.appiconset/Contents.json"_s)),
             deviceList);
}

void ProjectTest::sizesOfTheProject()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), flutter));
    QVERIFY(!putInto(folder.path()).failure);
    QCOMPARE(storedPixelSize(folder.filePath(u"web/favicon.png"_s)).value(), QSize(16, 16));
    QCOMPARE(
        storedPixelSize(folder.filePath(u"ios/Runner/Assets.xcassets/AppIcon.appiconset/Icon-App-83.5x83.5@2x.png"_s))
            .value(),
        QSize(167, 167));
    QCOMPARE(storedPixelSize(folder.filePath(u"macos/Runner/Assets.xcassets/AppIcon.appiconset/app_icon_1024.png"_s))
                 .value(),
             QSize(1024, 1024));
}

void ProjectTest::flavors()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), flutter));
    const Put unknown = putInto(folder.path(), {u"beta"_s, {}});
    QVERIFY(unknown.failure && unknown.failure->code == FailureCode::AmbiguousProject);
    QVERIFY(unknown.failure->detail.words().contains(u"beta"));
    QVERIFY(putFile(folder.filePath(u"android/app/build.gradle.kts"_s),
                    "android { productFlavors { create(\"beta\") { dimension = \"stage\" } } }"));
    // A project beside it without that flavor stays as it is.
    QVERIFY(putFile(folder.filePath(u"desktop/package.json"_s), "{\"devDependencies\":{\"electron\":\"30\"}}"));
    const Put result = putInto(folder.path(), {u"beta"_s, {}});
    QVERIFY(!result.failure);
    for (const QString &path : result.paths())
        QVERIFY2(path.contains(u"/beta/") || path.contains(u"/AppIcon-beta.appiconset/"), qPrintable(path));
    QVERIFY(result.paths().contains(u"android/app/src/beta/res/mipmap-mdpi/ic_launcher.png"_s));
    QVERIFY(result.paths().contains(u"ios/Runner/Assets.xcassets/AppIcon-beta.appiconset/AppIcon.png"_s));
    QVERIFY(!result.paths().join(u' ').contains(u"src/main"));
}

/// An app whose icon set has another name keeps that one.
void ProjectTest::otherSetOfFlutter()
{
    Tree tree = flutter;
    tree.remove(u"ios/Runner/Assets.xcassets/AppIcon.appiconset/Contents.json"_s);
    tree[u"ios/Runner/Assets.xcassets/Brand.appiconset/Contents.json"_s] = deviceList;
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    const QStringList paths = putInto(folder.path()).paths().filter(u"ios/"_s);
    QVERIFY(!paths.isEmpty());
    for (const QString &path : paths)
        QVERIFY2(path.startsWith(u"ios/Runner/Assets.xcassets/Brand.appiconset/"), qPrintable(path));
}

void ProjectTest::unnamedSets_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<QStringList>("sets");
    QTest::addColumn<QString>("written"); ///< the set; empty if the project is refused
    QTest::addColumn<bool>("isSaid");
    const QByteArray none = xcodeProject({});
    QByteArray whole = xcodeProject({});
    whole.replace("\t};\n\trootObject",
                  "\t\tP0 = {isa = PBXProject; buildConfigurationList = LP; };\n"
                  "\t\tT0 = {isa = PBXNativeTarget; name = App; };\n"
                  "\t\tLP = {isa = XCConfigurationList; buildConfigurations = (CP, ); };\n\t\tCP = {isa = "
                  "XCBuildConfiguration; buildSettings = {ASSETCATALOG_COMPILER_APPICON_NAME = Icon; }; };\n"
                  "\t};\n\trootObject");
    const QByteArray variable = xcodeProject({{"App", "\"AppIcon-$(STAGE)\""}});
    QTest::newRow("the only one") << none << QStringList{u"Logo"_s} << u"Logo"_s << true;
    QTest::newRow("the usual one") << none << QStringList{u"Alternate"_s, u"AppIcon"_s} << u"AppIcon"_s << false;
    QTest::newRow("there is none") << none << QStringList() << u"AppIcon"_s << false;
    QTest::newRow("several") << none << QStringList{u"Logo"_s, u"Other"_s} << QString() << false;
    QTest::newRow("named for all targets") << whole << QStringList{u"Icon"_s, u"Other"_s} << u"Icon"_s << false;
    QTest::newRow("a name of variables") << variable << QStringList{u"Logo"_s} << u"Logo"_s << true;
    QTest::newRow("a name of variables, several")
        << variable << QStringList{u"AppIcon-Beta"_s, u"AppIcon-Live"_s} << QString() << false;
}

void ProjectTest::unnamedSets()
{
    QFETCH(QByteArray, project);
    QFETCH(QStringList, sets);
    QFETCH(QString, written);
    QFETCH(bool, isSaid);
    const QTemporaryDir folder;
    const QString catalogue = u"Mine/Assets.xcassets/"_s;
    Tree tree{{u"Mine.xcodeproj/project.pbxproj"_s, project}, {catalogue + u"Contents.json"_s, "{}"}};
    for (const QString &set : std::as_const(sets))
        tree[catalogue + set + u".appiconset/Contents.json"_s] = universalList;
    QVERIFY(put(folder.path(), tree));
    const Put result = putInto(folder.path());
    QCOMPARE(result.failure.has_value(), written.isEmpty());
    if (result.failure) {
        QCOMPARE(result.failure->code, FailureCode::AmbiguousProject);
        QCOMPARE(result.failure->subject, folder.path());
        QVERIFY2(result.failure->detail.words().contains(sets.join(u", "_s)),
                 qPrintable(result.failure->detail.words()));
        return;
    }
    for (const QString &path : result.paths())
        QVERIFY2(path.startsWith(catalogue + written + u".appiconset/"_s), qPrintable(path));
    QCOMPARE(result.plan.derived.contains(Derived{Derivation::OnlyIconSet, written}), isSaid);
}

void ProjectTest::otherFormatsGo()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), gradle));
    const Put result = putInto(folder.path());
    QCOMPARE(result.count(FileChange::Removed), 1);
    QVERIFY(!QFile::exists(folder.filePath(u"app/src/main/res/mipmap-hdpi/ic_app.webp"_s)));
}

void ProjectTest::oldMonochromeGoes_data()
{
    QTest::addColumn<QImage>("icon");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("an icon without a shape") << opaquePicture() << false;
    QTest::newRow("an icon with a shape") << disk(800) << true;
}

void ProjectTest::oldMonochromeGoes()
{
    QFETCH(QImage, icon);
    QFETCH(bool, isKept);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), gradle));
    const QString layer = u"app/src/main/res/mipmap-hdpi/ic_app_monochrome.png"_s;
    const QString other = u"app/src/main/res/mipmap-hdpi/other_monochrome.png"_s;
    QVERIFY(put(folder.path(), {{layer, "old"}, {other, "another's"}}));
    TodaySources sources = sourcesOf(icon);
    sources.flatten = Qt::white;
    QVERIFY(!putInto(folder.path(), {}, sources).failure);
    QCOMPARE(QFile::exists(folder.filePath(layer)), isKept);
    QVERIFY(QFile::exists(folder.filePath(other)));
}

void ProjectTest::takenColors()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), gradle));
    QVERIFY(!putInto(folder.path()).failure);
    QVERIFY(
        contentOfFile(folder.filePath(u"app/src/main/res/values/ic_app_ground.xml"_s)).contains("\"ic_app_ground\""));
    QVERIFY(contentOfFile(folder.filePath(u"app/src/main/res/mipmap-anydpi-v26/ic_app.xml"_s))
                .contains("@color/ic_app_ground"));
}

void ProjectTest::readBack_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content"); ///< in the file's place; empty if it is removed
    QTest::addColumn<QString>("found");      ///< the rule, empty for none
    const QString store = u"ios/Runner/Assets.xcassets/AppIcon.appiconset/Icon-App-1024x1024@1x.png"_s;
    const QString adaptive = u"app/src/main/res/mipmap-anydpi-v26/ic_app.xml"_s;
    QTest::newRow("nothing wrong") << electron << QString() << QByteArray() << QString();
    QTest::newRow("slot without its file") << flutter << store << QByteArray() << u"file-missing"_s;
    QTest::newRow("slot of another size")
        << flutter << store << encodedOpaquePng(opaquePicture(512)) << u"wrong-size"_s;
    QTest::newRow("store icon with transparency")
        << flutter << store << encodedPng(disk(900)) << u"store-icon-transparent"_s;
    QTest::newRow("broken list") << flutter << u"macos/Runner/Assets.xcassets/AppIcon.appiconset/Contents.json"_s
                                 << QByteArray("{") << u"contents-unreadable"_s;
    QTest::newRow("broken adaptive icon") << gradle << adaptive << QByteArray("<adaptive-icon") << QString();
    QTest::newRow("layer of another size") << gradle << u"app/src/main/res/mipmap-hdpi/ic_app_foreground.png"_s
                                           << encodedPng(disk(100, Qt::red, Qt::transparent, 49)) << u"wrong-size"_s;
    QTest::newRow("play picture that is not there")
        << gradle << u"app/src/main/ic_app-playstore.png"_s << QByteArray() << u"file-missing"_s;
    QTest::newRow("icon by a settings file of another size")
        << expo << u"assets/icon.png"_s << encodedOpaquePng(opaquePicture(512)) << u"wrong-size"_s;
    QTest::newRow("broken ico") << electron << u"resources/icon.ico"_s << QByteArray("MZ") << u"icon-file-broken"_s;
    QTest::newRow("broken icns") << electron << u"resources/icon.icns"_s << QByteArray("MZ") << u"icon-file-broken"_s;
    QTest::newRow("cut picture") << electron << u"resources/icons/512x512.png"_s
                                 << encodedPng(opaquePicture(512)).first(3000) << u"picture-unreadable"_s;
}

void ProjectTest::readBack()
{
    QFETCH(Tree, tree);
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    const Put written = putInto(folder.path());
    QVERIFY(!written.failure);
    if (!file.isEmpty())
        QVERIFY(QFile::remove(folder.filePath(file)));
    if (!content.isEmpty())
        QVERIFY(putFile(folder.filePath(file), content));
    QStringList errors;
    for (const IconFinding &finding : checkProject(folder.path(), written.plan).findings) {
        if (infoOf(finding.rule).severity == FindingSeverity::Error)
            errors << QLatin1StringView(infoOf(finding.rule).id) + u' ' + finding.path;
    }
    QFETCH(QString, found);
    QCOMPARE(errors, found.isEmpty() ? QStringList() : QStringList{found + u' ' + folder.filePath(file)});
}

/// What was broken before, and is not the icon's, is no error of the run.
void ProjectTest::readBackLeavesOthersAlone()
{
    const QTemporaryDir folder;
    Tree tree = gradle;
    const QString res = u"app/src/main/res/"_s;
    tree[res + u"mipmap-anydpi-v26/ic_other.xml"_s] =
        "<adaptive-icon xmlns:android=\"http://schemas.android.com/apk/res/android\">"
        "<foreground android:drawable=\"@mipmap/none\"/></adaptive-icon>";
    tree[u"app/old/favicon.ico"_s] = "MZ";
    QVERIFY(put(folder.path(), tree));
    const Put written = putInto(folder.path());
    QVERIFY(!written.failure);
    QVERIFY(checkIcons(folder.path()).value().has(FindingSeverity::Error));
    QVERIFY(!checkProject(folder.path(), written.plan).has(FindingSeverity::Error));
}

QTEST_APPLESS_MAIN(ProjectTest)

#include "ProjectTest.moc"
