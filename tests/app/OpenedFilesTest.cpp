// SPDX-License-Identifier: MIT
#include "ShellFixture.h"
#include "app/FileOpenFilter.h"
#include "app/sidebar/ITSidebar.h"
#include "resources/Resources.h"
#include "ui_IconsViewController.h"
#include "validator/ValidaterViewController.h"

#include <QFileOpenEvent>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class OpenedFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void openedFiles_data()
    {
        QTest::addColumn<qint32>("before");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<qint32>("current");
        constexpr qint32 none = -1;
        QTest::newRow("a picture while the validator is current") << validator << QStringList{u"one.png"_s} << icons;
        QTest::newRow("a picture while the icons are current") << icons << QStringList{u"one.png"_s} << icons;
        QTest::newRow("a package while the icons are current") << icons << QStringList{u"app.ipa"_s} << validator;
        QTest::newRow("a package while the devices are current") << 4 << QStringList{u"app.ipa"_s} << validator;
        QTest::newRow("capitals are not routed, picture") << validator << QStringList{u"one.PNG"_s} << none;
        QTest::newRow("capitals are not routed, package") << icons << QStringList{u"app.IPA"_s} << none;
        QTest::newRow("another kind is not routed") << validator << QStringList{u"one.jpg"_s} << none;
        QTest::newRow("no extension") << validator << QStringList{u"png"_s} << none;
        QTest::newRow("only the last extension counts") << icons << QStringList{u"one.png.ipa"_s} << validator;
        QTest::newRow("the first of several, a picture")
            << validator << QStringList{u"one.png"_s, u"app.ipa"_s} << icons;
        QTest::newRow("the first of several, a package")
            << icons << QStringList{u"app.ipa"_s, u"one.png"_s} << validator;
        QTest::newRow("the first of several, of no known kind")
            << validator << QStringList{u"notes.txt"_s, u"one.png"_s} << none;
        QTest::newRow("blanks and other scripts in the name")
            << validator << QStringList{u"my 画像 ü #1 100%.png"_s} << icons;
        QTest::newRow("no file at all") << validator << QStringList() << none;
    }
    void openedFiles()
    {
        QFETCH(qint32, before);
        QFETCH(QStringList, names);
        QFETCH(qint32, current);
        const QTemporaryDir folder;
        QStringList paths;
        for (const QString &name : std::as_const(names))
            paths << savePicture(folder, name);
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.sideBar()->setSelectedIndex(before);
        delegate.window()->hide();
        int refreshed = 0;
        connect(&delegate, &AppDelegate::toolChanged, this, [&refreshed] { ++refreshed; });
        delegate.applicationOpenFiles(paths);
        QVERIFY(delegate.window()->isVisible());
        const bool routed = current >= 0;
        QCOMPARE(refreshed, routed ? 2 : 1);
        QCOMPARE(delegate.sideBar()->selectedIndex(), routed ? current : before);
        QCOMPARE(application.icons().outlets().sourceIconTitle->text(),
                 current == icons ? names.first() : qtTrId("ICONS_SOURCE_TITLE"));
        const auto &package = static_cast<ValidaterViewController &>(*delegate.controller(validator));
        QCOMPARE(package.ipaPath(), current == validator ? paths.first() : QString());
    }

    void openedFileReachesAToolThatWasNeverShown()
    {
        const QTemporaryDir folder;
        RecordingServices services;
        AppDelegate delegate(services.services());
        delegate.applicationDidFinishLaunching();
        const QString package = savePicture(folder, u"app.ipa"_s);
        delegate.applicationOpenFiles({package});
        QCOMPARE(delegate.sideBar()->selectedIndex(), validator);
        QCOMPARE(static_cast<ValidaterViewController &>(*delegate.controller(validator)).ipaPath(), package);
    }

    void eventsOfOtherPlatformsOpenFilesToo()
    {
        const QTemporaryDir folder;
        Application application;
        AppDelegate &delegate = application.delegate;
        FileOpenFilter filter(delegate);
        qApp->installEventFilter(&filter);
        delegate.sideBar()->setSelectedIndex(validator);
        QFileOpenEvent picture(savePicture(folder, u"one picture.png"_s));
        QCoreApplication::sendEvent(qApp, &picture);
        QCOMPARE(delegate.sideBar()->selectedIndex(), icons);
        QCOMPARE(application.icons().outlets().sourceIconTitle->text(), u"one picture.png"_s);
        QFileOpenEvent package(QUrl::fromLocalFile(folder.filePath(u"app.ipa"_s)));
        QCoreApplication::sendEvent(qApp, &package);
        QCOMPARE(delegate.sideBar()->selectedIndex(), validator);
    }

private:
    static constexpr qint32 icons = 0;
    static constexpr qint32 validator = 5;
};

QTEST_MAIN(OpenedFilesTest)
#include "OpenedFilesTest.moc"
