// SPDX-License-Identifier: MIT
#include "icons/check/CheckParts.h"
#include "icons/check/IconCheck.h"
#include "tests/doubles/FilesOnDisk.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// Which folders and files a check looks at.
class CheckedPlacesTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingToCheck();
    void noFolder();
    void whatWasBuiltIsPassedOver();
    void linksAreNotFollowed();
    void sizesByName_data();
    void sizesByName();
};

void CheckedPlacesTest::nothingToCheck()
{
    const QTemporaryDir folder;
    QVERIFY(putFile(folder.filePath(u"a/b.txt"_s), "c"));
    QVERIFY(putFile(folder.filePath(u"manifest.json"_s), "{\"name\":\"an extension\"}"));
    QVERIFY(putFile(folder.filePath(u"node_modules/x/A.appiconset/a.png"_s), "c"));
    const Result<IconCheck> check = checkIcons(folder.path());
    QVERIFY(check.ok());
    QVERIFY(check.value().checked.isEmpty());
    QVERIFY(check.value().findings.isEmpty());
}

void CheckedPlacesTest::noFolder()
{
    const QTemporaryDir folder;
    QCOMPARE(checkIcons(folder.filePath(u"none"_s)).failure().code, FailureCode::NotFound);
    QVERIFY(putFile(folder.filePath(u"file"_s), "c"));
    QCOMPARE(checkIcons(folder.filePath(u"file"_s)).failure().code, FailureCode::NotAFolder);
}

void CheckedPlacesTest::whatWasBuiltIsPassedOver()
{
    const QTemporaryDir folder;
    QVERIFY(putFile(folder.filePath(u"build/web/favicon.ico"_s), "c"));
    QVERIFY(checkIcons(folder.path()).value().checked.isEmpty());
    // Electron's packagers keep their icons there.
    QVERIFY(putFile(folder.filePath(u"build/icon.ico"_s), "c"));
    QVERIFY(checkIcons(folder.path()).value().checked.contains(folder.filePath(u"build/icon.ico"_s)));
    QVERIFY(checkIcons(folder.filePath(u"build"_s)).value().checked.contains(folder.filePath(u"build/icon.ico"_s)));
}

void CheckedPlacesTest::linksAreNotFollowed()
{
    const QTemporaryDir catalogue;
    QVERIFY(putFile(catalogue.filePath(u"A.appiconset/Contents.json"_s), "{}"));
    QCOMPARE(checkIcons(catalogue.path()).value().checked.size(), 1);
    const QTemporaryDir folder;
    QVERIFY(QFile::link(catalogue.path(), folder.filePath(u"link"_s)));
    QVERIFY(QFile::link(folder.path(), folder.filePath(u"itself"_s)));
    QVERIFY(checkIcons(folder.path()).value().checked.isEmpty());
}

void CheckedPlacesTest::sizesByName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    QTest::newRow("theme") << u"a/hicolor/48x48/apps/b.png"_s << QSize(48, 48);
    QTest::newRow("theme, doubled") << u"a/hicolor/48x48@2/apps/b.png"_s << QSize(96, 96);
    QTest::newRow("no app") << u"a/hicolor/48x48/places/b.png"_s << QSize();
    QTest::newRow("target size") << u"AppList.targetsize-20_altform-unplated.png"_s << QSize(20, 20);
    QTest::newRow("square logo") << u"Square150x150Logo.scale-125.png"_s << QSize(188, 188);
    QTest::newRow("wide logo") << u"Wide310x150Logo.scale-200.png"_s << QSize(620, 300);
    QTest::newRow("tile") << u"SmallTile.scale-150.png"_s << QSize(107, 107);
    QTest::newRow("another's") << u"Logo.scale-150.png"_s << QSize();
}

void CheckedPlacesTest::sizesByName()
{
    QFETCH(QString, path);
    QTEST(hicolorSize(path).value_or(windowsAssetSize(path).value_or(QSize())), "size");
}

QTEST_APPLESS_MAIN(CheckedPlacesTest)

#include "CheckedPlacesTest.moc"
