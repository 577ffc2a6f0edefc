// SPDX-License-Identifier: MIT
#include "IntoProject.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class ProjectFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void refused_data();
    void refused();
    void linksThatLeadOutside_data();
    void linksThatLeadOutside();
    void oldFilesComeBack();
    void comparisonIsStopped();
    void sourcesThatDoNotFit();
};

void ProjectFaultsTest::refused_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<FailureCode>("code");
    QTest::addColumn<QString>("named");
    QTest::newRow("no project") << Tree{{u"a.txt"_s, ""}} << FailureCode::NotAProject << u"pubspec.yaml"_s;
    QTest::newRow("a project without platforms")
        << Tree{{u"capacitor.config.json"_s, "{}"}} << FailureCode::NotAProject << u"Capacitor"_s;
    Tree both = flutter;
    both[u"capacitor.config.json"_s] = "{}";
    both[u"ios/App/App/Info.plist"_s] = "";
    QTest::newRow("the same place twice, alike") << both << FailureCode::AmbiguousProject << QString();
    Tree climbing = electron;
    climbing[u"package.json"_s] = "{\"dependencies\":{\"electron\":\"1\"},\"build\":{\"directories\":"
                                  "{\"buildResources\":\"../../out\"}}}";
    QTest::newRow("a folder outside") << climbing << FailureCode::LeadsOutside << u"../../out"_s;
    Tree named = capacitor;
    named[u"ios/App/App/Assets.xcassets/AppIcon.appiconset/Contents.json"_s] =
        "{\"images\":[{\"idiom\":\"universal\",\"size\":\"1024x1024\",\"filename\":\"../../../evil.png\"}]}";
    QTest::newRow("a name that climbs") << named << FailureCode::LeadsOutside << QString();
    Tree placeholder = capacitor;
    placeholder[u"android/app/src/main/AndroidManifest.xml"_s] =
        "<manifest xmlns:android=\"http://schemas.android.com/apk/res/android\"><application "
        "android:icon=\"${appIcon}\"/></manifest>";
    QTest::newRow("a name that only the build knows") << placeholder << FailureCode::AmbiguousProject << u"appIcon"_s;
    Tree broken = xcode;
    broken[u"Mine.xcodeproj/project.pbxproj"_s] = "{ objects = {";
    QTest::newRow("a broken project file") << broken << FailureCode::NotReadable << u"pbxproj"_s;
    Tree blocked = electron;
    blocked[u"resources/icon.icns/file"_s] = "";
    QTest::newRow("a folder in a file's place") << blocked << FailureCode::IsFolder << QString();
    Tree blockedFolder = electron;
    blockedFolder[u"resources"_s] = "a file";
    QTest::newRow("a file in a folder's place") << blockedFolder << FailureCode::NotAFolder << QString();
}

void ProjectFaultsTest::refused()
{
    QFETCH(Tree, tree);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    const Tree before = content(folder.path());
    const Put result = putInto(folder.path());
    if (qstrcmp(QTest::currentDataTag(), "the same place twice, alike") == 0) {
        // Both want the same pictures in the same place, so there is nothing to choose.
        QVERIFY(!result.failure);
        return;
    }
    QVERIFY(result.failure.has_value());
    QTEST(result.failure->code, "code");
    QFETCH(QString, named);
    QVERIFY2(QString(result.failure->subject + result.failure->detail.words()).contains(named),
             qPrintable(result.failure->detail.words()));
    QCOMPARE(content(folder.path()), before);
}

void ProjectFaultsTest::linksThatLeadOutside_data()
{
    QTest::addColumn<QString>("link");
    QTest::newRow("the icon folder") << u"resources"_s;
    QTest::newRow("a folder below") << u"resources/icons"_s;
    QTest::newRow("a file") << u"resources/icon.png"_s;
}

void ProjectFaultsTest::linksThatLeadOutside()
{
    QFETCH(QString, link);
    const QTemporaryDir outside;
    QVERIFY(putFile(outside.filePath(u"icon.png"_s), "mine"));
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), electron));
    QVERIFY(QDir(folder.path()).mkpath(QFileInfo(link).path()));
    const QString target = link.endsWith(u".png") ? outside.filePath(u"icon.png"_s) : outside.path();
    QVERIFY(QFile::link(target, folder.filePath(link)));
    const Put result = putInto(folder.path());
    QVERIFY(result.failure && result.failure->code == FailureCode::LeadsOutside);
    QCOMPARE(filesBelowFolder(outside.path()), QStringList{u"icon.png"_s});
    QCOMPARE(contentOfFile(outside.filePath(u"icon.png"_s)), QByteArray("mine"));
    // One that stays inside is followed.
    const QTemporaryDir inside;
    QVERIFY(put(inside.path(), electron));
    QVERIFY(QDir(inside.path()).mkpath(u"real"_s));
    QVERIFY(QFile::link(inside.filePath(u"real"_s), inside.filePath(u"resources"_s)));
    QVERIFY(!putInto(inside.path()).failure);
    QVERIFY(QFile::exists(inside.filePath(u"real/icon.icns"_s)));
}

void ProjectFaultsTest::oldFilesComeBack()
{
    const QTemporaryDir folder;
    Tree tree = electron;
    tree[u"resources/icon.icns"_s] = "old icns";
    tree[u"resources/icon.ico"_s] = "old ico";
    QVERIFY(put(folder.path(), tree));
    const Motifs motifs(drawn(), MacForm::Body);
    const FilePlan plan = planProjects(folder.path(), motifs, {}).value().files;
    QList<ProjectFile> files = compareWithProject(folder.path(), plan, motifs, {}).value();
    // Between the look and the write something else takes the last one's place.
    QVERIFY(putFile(folder.filePath(files.last().path) + u"/in the way"_s, ""));
    const Tree before = content(folder.path());
    const Outcome written = writeIntoProject(folder.path(), files, {});
    QVERIFY(!written.ok());
    QCOMPARE(content(folder.path()), before);
}

void ProjectFaultsTest::comparisonIsStopped()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), electron));
    const Motifs motifs(drawn(), MacForm::Body);
    const FilePlan plan = planProjects(folder.path(), motifs, {}).value().files;
    QList<qsizetype> numbers;
    const Result<QList<ProjectFile>> files =
        compareWithProject(folder.path(), plan, motifs, [&](qsizetype number, qsizetype count, const QString &path) {
            numbers << number;
            return count == plan.files.size() && path == plan.files[number - 1].path && number < 2;
        });
    QVERIFY(!files && files.failure().code == FailureCode::Stopped);
    QCOMPARE(numbers, (QList<qsizetype>{1, 2}));
}

void ProjectFaultsTest::sourcesThatDoNotFit()
{
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), maui));
    const Put pixels = putInto(folder.path(), {}, sourcesOf(opaquePicture()));
    QVERIFY(pixels.failure && pixels.failure->detail.words().contains(u"SVG"));
    const QTemporaryDir other;
    QVERIFY(put(other.path(), capacitor));
    const Put transparent = putInto(other.path(), {}, sourcesOf(disk(900)));
    QVERIFY(transparent.failure && transparent.failure->code == FailureCode::HasTransparency);
}

QTEST_APPLESS_MAIN(ProjectFaultsTest)

#include "ProjectFaultsTest.moc"
