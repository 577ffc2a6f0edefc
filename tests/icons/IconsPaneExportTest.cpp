// SPDX-License-Identifier: MIT
#include "IconsPane.h"
#include "icons/IconCatalogue.h"
#include "pictures/PictureOperations.h"

#include <QRegularExpression>
#include <QTest>

#include <semaphore>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// Stops an export at the log line of the Android icons until the test continues it.
struct ExportHeldAtAndroid
{
    ExportHeldAtAndroid() { before = qInstallMessageHandler(&ExportHeldAtAndroid::handle); }
    ~ExportHeldAtAndroid() { qInstallMessageHandler(before); }
    Q_DISABLE_COPY_MOVE(ExportHeldAtAndroid)

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &line)
    {
        if (line == u"Export android icons"_s) {
            reached.release();
            goOn.acquire();
        }
        before(type, context, line);
    }
    static inline std::binary_semaphore reached{0};
    static inline std::binary_semaphore goOn{0};
    static inline QtMessageHandler before = nullptr;
};

} // namespace

class IconsPaneExportTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void exportNeedsAPlatform()
    {
        const IconsPane pane;
        pane.ui.generateIconsButton->click();
        QCOMPARE(pane.popupTitle(), qtTrId("ICONS_NO_PLATFORM_ALERT_TITLE"));
        QCOMPARE(pane.popupMessage(), qtTrId("ICONS_NO_PLATFORM_ALERT_MESSAGE"));
        QVERIFY(pane.popupIsError());
        QVERIFY(pane.popupPointsAt(pane.ui.generateIconsButton));
        QVERIFY(!pane.services.folderChooser.isOpen());
    }

    void exportNeedsASource_data()
    {
        QTest::addColumn<bool>("chosen");
        QTest::newRow("before the folder is asked for") << false;
        QTest::newRow("after the folder was chosen") << true;
    }
    void exportNeedsASource()
    {
        QFETCH(bool, chosen);
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.favIconCheckbox->click();
        if (chosen) {
            pane.ui.generateIconsButton->click();
            pane.tool.setIcon({});
            pane.services.folderChooser.confirm(folder.path());
            QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
            QCOMPARE(filesBelow(folder.path()), QStringList());
        } else {
            pane.tool.setIcon({});
            pane.ui.generateIconsButton->click();
            QVERIFY(!pane.services.folderChooser.isOpen());
        }
        QCOMPARE(pane.popupTitle(), qtTrId("ICONS_NO_SOURCE_ALERT_TITLE"));
        QCOMPARE(pane.popupMessage(), qtTrId("ICONS_NO_SOURCE_ALERT_MESSAGE"));
        QVERIFY(pane.popupIsError());
        QVERIFY(pane.popupPointsAt(pane.ui.browseButton));
    }

    void takenNameIsTold_data()
    {
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QString>("used");
        QTest::addColumn<bool>("told");
        QTest::newRow("two taken") << QStringList{u"icons"_s, u"icons_1"_s} << u"icons_2"_s << true;
        QTest::newRow("a file's name") << QStringList{u"icons.file"_s} << u"icons_1"_s << true;
        QTest::newRow("only the numbered one") << QStringList{u"icons_1"_s} << u"icons"_s << false;
    }
    void takenNameIsTold()
    {
        QFETCH(QStringList, taken);
        QFETCH(QString, used);
        QFETCH(bool, told);
        const QTemporaryDir folder;
        for (const QString &name : std::as_const(taken)) {
            QFile file(folder.filePath(QFileInfo(name).baseName()));
            QVERIFY(name.endsWith(u".file"_s) ? file.open(QIODevice::WriteOnly) : QDir(folder.path()).mkdir(name));
        }
        IconsPane pane;
        pane.ui.favIconCheckbox->click();
        pane.exportTo(folder.path());
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        QVERIFY(QFileInfo::exists(folder.filePath(used + u"/Favicon/favicon-16.png"_s)));
        QCOMPARE(pane.popupTitle(), told ? qtTrId("ICONS_NEW_FOLDER_ALERT_TITLE") : QString());
        if (told) {
            QVERIFY(pane.popupMessage().contains(used));
            QVERIFY(!pane.popupMessage().contains(u"[FOLDER]"_s));
            QVERIFY(!pane.popupIsError());
            QVERIFY(pane.popupPointsAt(pane.ui.generateIconsButton));
        }
    }

    void macExportHoldsTenPicturesAndTheirIconFile()
    {
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.macCheckbox->click();
        pane.exportTo(folder.path());
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui.generateIconsButton->text(), qtTrId("ICONS_EXPORTING"), 30000);
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 60000);
        QStringList expected{u"icons/Mac/icons.icns"_s};
        for (const IconEntry &icon : MacIcons)
            expected << u"icons/Mac/icons.iconset/"_s + QLatin1StringView(icon.name);
        expected.sort();
        QCOMPARE(filesBelow(folder.path()), expected);
        pane.letTimePass();
        QCOMPARE(pane.ui.generateIconsButton->text(), qtTrId("GENERATE"));
    }

    void canceledChooserDoesNothing()
    {
        IconsPane pane;
        pane.ui.favIconCheckbox->click();
        pane.ui.generateIconsButton->click();
        pane.services.folderChooser.cancel();
        QCOMPARE(pane.tool.savePath(), QString());
        QCOMPARE(pane.ui.generateIconsButton->text(), qtTrId("GENERATE"));
    }

    void chooserOpensWhereTheLastExportWent()
    {
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.favIconCheckbox->click();
        pane.exportTo(folder.path());
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        pane.ui.generateIconsButton->click();
        QCOMPARE(pane.services.folderChooser.requests.last().startFolder, folder.path());
    }

    void failedFoldersAreLoggedAndTheExportEndsAsEver()
    {
        IconsPane pane;
        pane.ui.favIconCheckbox->click();
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Folder error: "_s));
        QTest::ignoreMessage(QtInfoMsg, u"Export favicons icons"_s.toUtf8().constData());
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^CreateError: "_s));
        pane.exportTo(u"/proc/nowhere"_s);
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        QCOMPARE(pane.popupTitle(), QString());
    }

    void secondExportMayStartWhileOneRuns()
    {
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.webTouchCheckbox->click();
        pane.exportTo(folder.path());
        QVERIFY(pane.ui.generateIconsButton->isEnabled());
        pane.exportTo(folder.path());
        QTRY_COMPARE_WITH_TIMEOUT(filesBelow(folder.path()).size(), 18, 60000);
        for (const QString &name : {u"icons/Web Touch"_s, u"icons_1/Web Touch"_s})
            QCOMPARE(filesBelow(folder.filePath(name)).size(), 9);
    }

    void sourceTakenDuringAnExportIsForTheNext()
    {
        const QTemporaryDir folder;
        const QTemporaryDir sources;
        IconsPane pane;
        const QImage before = pane.tool.icon();
        pane.ui.favIconCheckbox->click();
        pane.exportTo(folder.path());
        pane.tool.createIconFromURL(savePicture(sources, u"red.png"_s, {1024, 1024}));
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        const QImage written = QImage(folder.filePath(u"icons/Favicon/favicon-128.png"_s));
        const QImage expected = resizeImage(before, 128);
        for (const QPoint opaque : {QPoint(64, 64), QPoint(30, 90), QPoint(100, 40)})
            QCOMPARE(written.pixelColor(opaque), expected.pixelColor(opaque));
    }

    void platformsAreAskedForOneByOne_data()
    {
        QTest::addColumn<bool>("chosenBefore");
        QTest::newRow("dropped while an earlier platform is exported") << true;
        QTest::newRow("chosen while an earlier platform is exported") << false;
    }
    void platformsAreAskedForOneByOne()
    {
        QFETCH(bool, chosenBefore);
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.androidCheckbox->click();
        if (chosenBefore)
            pane.ui.favIconCheckbox->click();
        const ExportHeldAtAndroid held;
        pane.exportTo(folder.path());
        ExportHeldAtAndroid::reached.acquire();
        pane.ui.favIconCheckbox->click();
        ExportHeldAtAndroid::goOn.release();
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        QVERIFY(QFileInfo::exists(folder.filePath(u"icons/Android"_s)));
        QCOMPARE(QFileInfo::exists(folder.filePath(u"icons/Favicon"_s)), !chosenBefore);
    }

    void closingWaitsForTheFilesBeingWritten()
    {
        const QTemporaryDir folder;
        {
            IconsPane pane;
            for (CheckboxButton *box : {pane.ui.iPhoneCheckbox, pane.ui.favIconCheckbox})
                box->click();
            pane.exportTo(folder.path());
        }
        const QStringList files = filesBelow(folder.path());
        QCOMPARE(files.size(), iPhoneIcons.size() + FavIcons.size());
        for (const QString &file : files) {
            QFile written(folder.filePath(file));
            QVERIFY(written.open(QIODevice::ReadOnly));
            QVERIFY2(written.readAll().endsWith("IEND\xae\x42\x60\x82"), qPrintable(file));
        }
    }
};

QTEST_MAIN(IconsPaneExportTest)
#include "IconsPaneExportTest.moc"
