// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/doubles/ScriptedFiles.h"
#include "tests/icons/today/TodayPictures.h"

#include <QDir>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class IntoProjectCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_photo = pictureFile(opaquePicture()); }
    void init();

    void intoAProject();
    void intoAProjectThatAStoreRefuses();
    void intoAReadOnlyProject_data();
    void intoAReadOnlyProject();
    void intoNoProject();
    void refusalsSayWhatHelps_data();
    void refusalsSayWhatHelps();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_photo;

    QString at(const QString &name) const { return m_folder->filePath(name); }
    LumoraRun icons(const QStringList &arguments) const
    {
        return LumoraProcess().in(m_folder->path()).run(QStringList{u"icons"_s} + arguments);
    }
};

void IntoProjectCommandTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(putFile(at(u"photo.png"_s), m_photo));
    QVERIFY(putFile(at(u"logo.svg"_s), squareDrawing));
}

void IntoProjectCommandTest::intoAProject()
{
    QVERIFY(putFile(at(u"p/package.json"_s), "{\"devDependencies\":{\"electron\":\"30\"}}"));
    const LumoraRun dry = icons({u"logo.svg"_s, u"--into"_s, u"p"_s, u"--dry-run"_s});
    QCOMPARE(dry.err, QByteArray());
    QCOMPARE(dry.status, 0);
    QVERIFY(dry.out.contains("new: build/icon.icns"));
    QCOMPARE(filesBelowFolder(at(u"p"_s)), QStringList{u"package.json"_s});
    const QJsonObject first = icons({u"logo.svg"_s, u"--into"_s, u"p"_s, u"--json"_s}).json();
    QCOMPARE(first[u"projects"_s].toArray()[0][u"kind"].toString(), u"electron"_s);
    QCOMPARE(first[u"changes"_s].toArray().size(), filesBelowFolder(at(u"p"_s)).size() - 1);
    const LumoraRun second = icons({u"logo.svg"_s, u"--into"_s, u"p"_s});
    QVERIFY(second.out.contains("unchanged: build/icon.icns"));
    QVERIFY(!second.out.contains("new: ") && !second.out.contains("replaced: "));
    QVERIFY(icons({u"photo.png"_s, u"--into"_s, u"p"_s}).out.contains("replaced: build/icon.icns"));
}

/// What the project's own list says is not changed, but judged.
void IntoProjectCommandTest::intoAProjectThatAStoreRefuses()
{
    const QString set = u"ios/App/App/Assets.xcassets/AppIcon.appiconset"_s;
    QVERIFY(putFile(at(u"p/capacitor.config.json"_s), "{}"));
    QVERIFY(putFile(at(u"p/"_s + set + u"/Contents.json"_s),
                    "{\"images\":[{\"idiom\":\"universal\",\"platform\":\"iOS\",\"size\":\"1024x1024\","
                    "\"filename\":\"a.png\"}]}"));
    QCOMPARE(icons({u"logo.svg"_s, u"--into"_s, u"p"_s, u"--dry-run"_s}).status, 0);
    const LumoraRun run = icons({u"logo.svg"_s, u"--into"_s, u"p"_s, u"--json"_s});
    QCOMPARE(run.status, 1);
    QVERIFY(QFile::exists(at(u"p/"_s + set + u"/a.png"_s)));
    const QJsonArray findings = run.json()[u"findings"_s].toArray();
    QVERIFY2(!findings.isEmpty(), run.out);
    QCOMPARE(findings[0][u"id"].toString(), u"platform-name"_s);
    QCOMPARE(findings[0][u"path"].toString(), at(u"p/"_s + set));
}

void IntoProjectCommandTest::intoAReadOnlyProject_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("the icons' folder") << u"p/build"_s;
    QTest::newRow("a folder that is missing in it") << u"p/build/icons"_s;
    QTest::newRow("the project") << u"p"_s;
}

void IntoProjectCommandTest::intoAReadOnlyProject()
{
    QFETCH(QString, folder);
    QVERIFY(putFile(at(u"p/package.json"_s), "{\"devDependencies\":{\"electron\":\"30\"}}"));
    if (folder != u"p")
        QVERIFY(putFile(at(u"p/build/icon.icns"_s), "old") && QDir().mkpath(at(folder)));
    const QMap<QString, QString> before = treeBelow(at(u"p"_s));
    const auto mode = [this, &folder](QFileDevice::Permissions permissions) {
        return QFile::setPermissions(at(folder), permissions);
    };
    constexpr QFileDevice::Permissions readable = QFileDevice::ReadUser | QFileDevice::ExeUser;
    QVERIFY(mode(readable));
    const LumoraRun run =
        LumoraProcess().in(m_folder->path()).underPermissions().run({u"icons"_s, u"logo.svg"_s, u"--into"_s, u"p"_s});
    QVERIFY(mode(readable | QFileDevice::WriteUser));
    QCOMPARE(run.status, 1);
    QVERIFY2(run.err.contains(at(folder).toUtf8()), run.err);
    QCOMPARE(treeBelow(at(u"p"_s)), before);
}

void IntoProjectCommandTest::intoNoProject()
{
    QVERIFY(putFile(at(u"p/a.txt"_s), ""));
    const LumoraRun run = icons({u"logo.svg"_s, u"--into"_s, u"p"_s});
    QCOMPARE(run.status, 1);
    QVERIFY(run.err.contains("pubspec.yaml") && run.err.contains("settings.gradle"));
}

void IntoProjectCommandTest::refusalsSayWhatHelps_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("advice"); ///< empty if the icons are written
    QTest::newRow("several icon sets") << QStringList{u"x"_s} << QByteArray("choose one with --target");
    QTest::newRow("an unknown one") << QStringList{u"x"_s, u"--target"_s, u"C"_s}
                                    << QByteArray("choose one with --target");
    QTest::newRow("a chosen one") << QStringList{u"x"_s, u"--target"_s, u"B"_s} << QByteArray();
    QTest::newRow("a target where there are none")
        << QStringList{u"e"_s, u"--target"_s, u"B"_s} << QByteArray("leave --target out");
    QTest::newRow("several flavors") << QStringList{u"f"_s} << QByteArray("choose one with --flavor");
    QTest::newRow("a chosen flavor") << QStringList{u"f"_s, u"--flavor"_s, u"dev"_s} << QByteArray();
    QTest::newRow("an unknown flavor") << QStringList{u"a"_s, u"--flavor"_s, u"beta"_s} << QByteArray("productFlavors");
    QTest::newRow("a manifest that the build fills in") << QStringList{u"a"_s} << QByteArray("@mipmap/ic_launcher");
    QTest::newRow("two projects in one place") << QStringList{u"two"_s} << QByteArray("name the folder of one of them");
}

void IntoProjectCommandTest::refusalsSayWhatHelps()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, advice);
    QVERIFY(
        putFile(at(u"x/M.xcodeproj/project.pbxproj"_s), "{objects = {T = {isa = PBXNativeTarget; name = App; };};}"));
    for (const char *set : {"A", "B"})
        QVERIFY(putFile(at(u"x/M/M.xcassets/%1.appiconset/Contents.json"_s.arg(QLatin1StringView(set))), "{}"));
    QVERIFY(putFile(at(u"f/pubspec.yaml"_s), "flutter:\n"));
    for (const char *flavor : {"dev", "prod"})
        QVERIFY(putFile(
            at(u"f/ios/Runner/Assets.xcassets/AppIcon-%1.appiconset/Contents.json"_s.arg(QLatin1StringView(flavor))),
            "{}"));
    QVERIFY(putFile(at(u"e/package.json"_s), "{\"devDependencies\":{\"electron\":\"30\"}}"));
    QVERIFY(putFile(at(u"a/settings.gradle"_s), ""));
    QVERIFY(putFile(at(u"a/app/src/main/AndroidManifest.xml"_s),
                    "<manifest xmlns:android=\"http://schemas.android.com/apk/res/android\">"
                    "<application android:icon=\"${icon}\"/></manifest>"));
    QVERIFY(putFile(at(u"two/package.json"_s),
                    "{\"devDependencies\":{\"electron\":\"30\"},"
                    "\"build\":{\"directories\":{\"buildResources\":\"src-tauri/icons\"}}}"));
    QVERIFY(putFile(at(u"two/src-tauri/tauri.conf.json"_s), "{}"));
    const LumoraRun run = icons(QStringList{u"logo.svg"_s, u"--dry-run"_s, u"--into"_s} + arguments);
    QCOMPARE(run.status, advice.isEmpty() ? 0 : 1);
    QVERIFY2(run.err.contains(advice), run.err);
}

QTEST_GUILESS_MAIN(IntoProjectCommandTest)

#include "IntoProjectCommandTest.moc"
