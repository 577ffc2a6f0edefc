// SPDX-License-Identifier: MIT
#include "app/DropHighlight.h"
#include "app/services/RecordingServices.h"
#include "icons/IconCatalogue.h"
#include "icons/IconRendering.h"
#include "icons/IconView.h"
#include "icons/IconsViewController.h"
#include "resources/Resources.h"
#include "ui_IconsViewController.h"
#include "widgets/Fonts.h"
#include "widgets/Palette.h"
#include "widgets/SFBPopover.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <semaphore>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// The tool in a window, as the shell shows it, with services that remember.
struct Pane
{
    Pane() : tool(services.services()), ui(tool.outlets())
    {
        window.resize(900, 660);
        tool.view()->setParent(&window);
        tool.view()->setGeometry(65, 60, 835, 600);
        tool.popupView()->setAnimates(false);
        window.show();
    }
    QString popupTitle() const
    {
        return tool.popupView()->isVisible() ? tool.popupContentView()->titleLabel()->text() : QString();
    }
    QString popupMessage() const { return tool.popupContentView()->messageLabel()->text(); }
    bool popupIsError() const { return tool.popupView()->borderColor() == palette::errorLight; }
    /// Presses the platform export and confirms the folder.
    void exportTo(const QString &folder)
    {
        ui.generateIconsButton->click();
        services.folderChooser.confirm(folder);
    }
    bool isDone() const { return ui.generateIconsButton->text() == qtTrId("ICONS_DONE"); }

    RecordingServices services;
    QWidget window;
    IconsViewController tool;
    const Ui::IconsViewController &ui;
};

QString savePicture(const QTemporaryDir &folder, const QString &name, QSize size, int dotsPerMeter = 0)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(QColor(200, 30, 60));
    if (dotsPerMeter > 0) {
        picture.setDotsPerMeterX(dotsPerMeter);
        picture.setDotsPerMeterY(dotsPerMeter);
    }
    const QString path = folder.filePath(name);
    return picture.save(path, "PNG") ? path : QString();
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << QDir(folder).relativeFilePath(walk.next());
    files.sort();
    return files;
}

/// Holds an export where it logs that it begins with the Android icons, until the test lets it go on.
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

class IconsPaneTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void beginsWithTheBuiltInPicture()
    {
        Pane pane;
        QCOMPARE(pane.tool.icon().size(), QSize(1024, 1024));
        QCOMPARE(pane.ui.sourceIconTitle->text(), qtTrId("ICONS_SOURCE_TITLE"));
        QCOMPARE(pane.ui.sourceIconSubtitle->text(), qtTrId("ICONS_SOURCE_SUBTITLE"));
        QVERIFY(pane.ui.codeSnippedView->toPlainText().isEmpty());
        QVERIFY(pane.ui.codeSnippedView->isReadOnly());
        QCOMPARE(pane.ui.generateIconsButton->text(), qtTrId("GENERATE"));
        QCOMPARE(pane.ui.platformTitle->font(), latoBold(25));
        QCOMPARE(pane.ui.sourceIconTitle->font(), latoBold(15));
        QCOMPARE(pane.ui.sourceIconSubtitle->font(), latoRegular(13));
        QCOMPARE(pane.ui.codeSnippedView->font(), latoBold(11));
        QCOMPARE(pane.ui.browseButton->normalColor(), palette::icons);
        QCOMPARE(pane.ui.browseButton->hovercolor(), palette::iconsBorder);
    }

    void builtInPictureComesBehindTheFirstFrame()
    {
        const Pane pane;
        QVERIFY(pane.ui.iconPreviewOne->picture().isNull());
        QTRY_VERIFY_WITH_TIMEOUT(!pane.ui.iconPreviewOne->picture().isNull(), 30000);
        QCOMPARE(pane.ui.sourceIconView->picture().width(), pane.ui.sourceIconView->pixelSide());
        QCOMPARE(pane.ui.iconPreviewFive->picture().width(), pane.ui.iconPreviewFive->pixelSide());
    }

    void sourceTakenBeforeTheBuiltInPictureCameStays()
    {
        const QTemporaryDir folder;
        Pane pane;
        pane.tool.createIconFromURL(savePicture(folder, u"mine.png"_s, {1024, 1024}));
        const QImage taken = pane.tool.icon();
        QVERIFY(QTest::qWaitForWindowExposed(&pane.window));
        QTest::qWait(500);
        QCOMPARE(pane.tool.icon(), taken);
        QCOMPARE(pane.ui.iconPreviewOne->picture(), resizeImage(taken, pane.ui.iconPreviewOne->pixelSide()));
    }

    void popupAnchorsSitTwoLevelsBelowTheRoot()
    {
        const Pane pane;
        for (const QWidget *anchor : std::initializer_list<QWidget *>{
                 pane.ui.browseButton, pane.ui.generateIconsButton, pane.ui.generateCustomButton,
                 pane.ui.customIconSizeTextField, pane.ui.codeSnippetCopyButton})
            QCOMPARE(anchor->parentWidget()->parentWidget(), pane.tool.view());
    }

    void sources_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("dotsPerMeter");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("1024 square") << QSize(1024, 1024) << 0 << true;
        QTest::newRow("144 dots per inch change nothing") << QSize(1024, 1024) << 5669 << true;
        QTest::newRow("one less") << QSize(1023, 1023) << 0 << false;
        QTest::newRow("twice as large") << QSize(2048, 2048) << 0 << false;
        QTest::newRow("not square") << QSize(1024, 768) << 0 << false;
    }
    void sources()
    {
        QFETCH(QSize, size);
        QFETCH(int, dotsPerMeter);
        QFETCH(bool, accepted);
        const QTemporaryDir folder;
        Pane pane;
        const QImage before = pane.tool.icon();
        pane.tool.createIconFromURL(savePicture(folder, u"mine.png"_s, size, dotsPerMeter));
        QCOMPARE(pane.tool.icon() == before, !accepted);
        QCOMPARE(pane.popupTitle(), accepted ? QString() : qtTrId("ICONS_ALERT_TITLE"));
        QCOMPARE(pane.ui.sourceIconTitle->text(), accepted ? u"mine.png"_s : qtTrId("ICONS_SOURCE_TITLE"));
        QCOMPARE(pane.ui.sourceIconSubtitle->text(),
                 accepted ? qtTrId("ICONS_SOURCE_SUBTITLE_ACTIVE") : qtTrId("ICONS_SOURCE_SUBTITLE"));
        if (!accepted) {
            QCOMPARE(pane.popupMessage(), qtTrId("ICONS_ALERT_MESSAGE"));
            QVERIFY(pane.popupIsError());
        }
    }

    void unreadableSourceIsRefused()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"text.png"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        Pane pane;
        pane.tool.createIconFromURL(file.fileName());
        QCOMPARE(pane.popupTitle(), qtTrId("ICONS_ALERT_TITLE"));
        Pane another;
        another.tool.createIconFromURL(folder.filePath(u"missing.png"_s));
        QCOMPARE(another.popupTitle(), qtTrId("ICONS_ALERT_TITLE"));
    }

    void onlyTheFirstOfSeveralDroppedFilesCounts()
    {
        const QTemporaryDir folder;
        Pane pane;
        const QString first = savePicture(folder, u"first.png"_s, {1024, 1024});
        pane.ui.dropView->delegate()->dropViewReceivedFiles(
            {first, savePicture(folder, u"second.png"_s, {512, 512}), u"/gone.png"_s});
        QCOMPARE(pane.ui.sourceIconTitle->text(), u"first.png"_s);
        QCOMPARE(pane.tool.browsePath(), folder.path());
        QCOMPARE(pane.popupTitle(), QString());
    }

    void droppedColorsAndEmptyDropsChangeNothing()
    {
        Pane pane;
        const QImage before = pane.tool.icon();
        pane.ui.dropView->delegate()->dropViewReceivedColor(Qt::red);
        pane.ui.dropView->delegate()->dropViewReceivedFiles({});
        QCOMPARE(pane.tool.icon(), before);
        QCOMPARE(pane.popupTitle(), QString());
    }

    void browseButtonRemembersTheFolder()
    {
        const QTemporaryDir folder;
        Pane pane;
        RecordingFileChooser &chooser = pane.services.fileChooser;
        pane.ui.browseButton->click();
        QCOMPARE(chooser.requests.last().message, qtTrId("ICONS_BROWSE"));
        QVERIFY(!chooser.requests.last().severalFiles);
        QCOMPARE(chooser.requests.last().nameFilters, QStringList{qtTrId("FILTER_PNG") + u" (*.png)"_s});
        QCOMPARE(chooser.requests.last().startFolder, QString());
        QCOMPARE(chooser.windows.last(), &pane.window);
        chooser.cancel();
        QCOMPARE(pane.ui.sourceIconTitle->text(), qtTrId("ICONS_SOURCE_TITLE"));
        pane.ui.browseButton->click();
        chooser.confirm({savePicture(folder, u"mine.png"_s, {1024, 1024})});
        QCOMPARE(pane.ui.sourceIconTitle->text(), u"mine.png"_s);
        pane.ui.browseButton->click();
        QCOMPARE(chooser.requests.last().startFolder, folder.path());
    }

    void pasting_data()
    {
        QTest::addColumn<QSize>("imageSize");
        QTest::addColumn<bool>("file");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<bool>("refused");
        QTest::newRow("nothing") << QSize() << false << false << false;
        QTest::newRow("a picture") << QSize(1024, 1024) << false << true << false;
        QTest::newRow("a picture of another size") << QSize(100, 100) << false << false << true;
        QTest::newRow("a file goes before a picture") << QSize(100, 100) << true << true << false;
    }
    void pasting()
    {
        QFETCH(QSize, imageSize);
        QFETCH(bool, file);
        QFETCH(bool, accepted);
        QFETCH(bool, refused);
        const QTemporaryDir folder;
        Pane pane;
        const QImage before = pane.tool.icon();
        if (imageSize.isValid()) {
            pane.services.clipboard.copiedImage = QImage(imageSize, QImage::Format_RGB32);
            pane.services.clipboard.copiedImage.fill(Qt::green);
        }
        if (file)
            pane.services.clipboard.copiedFiles = QStringList{savePicture(folder, u"mine.png"_s, {1024, 1024})};
        pane.tool.paste();
        QCOMPARE(pane.tool.icon() != before, accepted);
        QCOMPARE(!pane.popupTitle().isEmpty(), refused);
    }

    void cornerOptions_data()
    {
        QTest::addColumn<QList<int>>("clicks");
        QTest::addColumn<int>("mode");
        QTest::newRow("none") << QList<int>() << 0;
        QTest::newRow("iOS 6") << QList<int>{6} << 1;
        QTest::newRow("iOS 7") << QList<int>{7} << 2;
        QTest::newRow("from 6 to 7") << QList<int>{6, 7} << 2;
        QTest::newRow("from 7 to 6") << QList<int>{7, 6} << 1;
        QTest::newRow("the one that is on, again") << QList<int>{7, 7} << 0;
    }
    void cornerOptions()
    {
        QFETCH(QList<int>, clicks);
        QFETCH(int, mode);
        Pane pane;
        pane.tool.editPreviewIcon();
        for (const int click : clicks)
            (click == 6 ? pane.ui.customIconRoundedSixCheckbox : pane.ui.customIconRoundedCheckbox)->click();
        QCOMPARE(pane.tool.cornerMode(), mode);
        QCOMPARE(pane.ui.customIconRoundedSixCheckbox->isActive(), mode == 1);
        QCOMPARE(pane.ui.customIconRoundedCheckbox->isActive(), mode == 2);
        const std::array previews = {pane.ui.iconPreviewOne, pane.ui.iconPreviewTwo, pane.ui.iconPreviewThree,
                                     pane.ui.iconPreviewFour, pane.ui.iconPreviewFive};
        const std::array labels = {pane.ui.iconPreviewLabelOne, pane.ui.iconPreviewLabelTwo,
                                   pane.ui.iconPreviewLabelThree, pane.ui.iconPreviewLabelFour,
                                   pane.ui.iconPreviewLabelFive};
        for (std::size_t number = 0; number < previews.size(); ++number) {
            const int side = previews[number]->width();
            QCOMPARE(labels[number]->text(), QString::number(side));
            QCOMPARE(labels[number]->font(), latoBold(13));
            const int pixels = static_cast<int>(side * pane.window.devicePixelRatioF());
            QCOMPARE(previews[number]->picture(), resizeImage(pane.tool.icon(), pixels, mode));
        }
    }

    void previewIsDrawnPixelByPixel()
    {
        Pane pane;
        QVERIFY(QTest::qWaitForWindowExposed(&pane.window));
        pane.tool.editPreviewIcon();
        const QImage shown = pane.ui.iconPreviewTwo->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QImage picture = pane.ui.iconPreviewTwo->picture();
        const QPoint middle = picture.rect().center();
        QCOMPARE(shown.size(), picture.size());
        for (const QPoint offset : {QPoint(0, 0), QPoint(5, 3), QPoint(-7, 9), QPoint(11, -13)})
            QCOMPARE(shown.pixelColor(middle + offset).rgb(), picture.pixelColor(middle + offset).rgb());
    }

    void exportNeedsAPlatform()
    {
        const Pane pane;
        pane.ui.generateIconsButton->click();
        QCOMPARE(pane.popupTitle(), qtTrId("ICONS_NO_PLATFORM_ALERT_TITLE"));
        QCOMPARE(pane.popupMessage(), qtTrId("ICONS_NO_PLATFORM_ALERT_MESSAGE"));
        QVERIFY(pane.popupIsError());
        QVERIFY(!pane.services.folderChooser.isOpen());
    }

    void sizes_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("titleKey");
        const QString wrong = u"ICONS_INCORRECT_SIZE_ALERT_TITLE"_s;
        QTest::newRow("largest") << u"1024"_s << 1024 << QString();
        QTest::newRow("smallest") << u"1"_s << 1 << QString();
        QTest::newRow("leading digits count") << u"64px"_s << 64 << QString();
        QTest::newRow("blanks and a sign") << u"  +12"_s << 12 << QString();
        QTest::newRow("empty") << QString() << 0 << u"ICONS_NO_DIMENSION_ALERT_TITLE"_s;
        QTest::newRow("zero") << u"0"_s << 0 << wrong;
        QTest::newRow("negative") << u"-5"_s << 0 << wrong;
        QTest::newRow("one too large") << u"1025"_s << 0 << wrong;
        QTest::newRow("no number") << u"abc"_s << 0 << wrong;
        QTest::newRow("beyond 32 bits") << u"4294967297"_s << 0 << wrong;
    }
    void sizes()
    {
        QFETCH(QString, typed);
        QFETCH(QString, titleKey);
        Pane pane;
        pane.ui.customIconSizeTextField->setString(typed);
        pane.ui.generateCustomButton->click();
        QTEST(pane.tool.customIconSize(), "size");
        QCOMPARE(pane.services.folderChooser.isOpen(), titleKey.isEmpty());
        QCOMPARE(pane.popupTitle(), titleKey.isEmpty() ? QString() : qtTrId(titleKey.toUtf8().constData()));
        if (!titleKey.isEmpty())
            QVERIFY(pane.popupIsError());
    }

    void customExport_data()
    {
        QTest::addColumn<int>("corner");
        QTest::addColumn<QString>("file");
        QTest::newRow("plain") << 0 << u"icons/Custom/icon_57x57.png"_s;
        QTest::newRow("iOS 6") << 6 << u"icons/Custom/icon_57x57_iOS6.png"_s;
        QTest::newRow("iOS 7") << 7 << u"icons/Custom/icon_57x57_iOS7.png"_s;
    }
    void customExport()
    {
        QFETCH(int, corner);
        const QTemporaryDir folder;
        Pane pane;
        if (corner != 0)
            (corner == 6 ? pane.ui.customIconRoundedSixCheckbox : pane.ui.customIconRoundedCheckbox)->click();
        pane.ui.customIconSizeTextField->setString(u"57"_s);
        pane.ui.generateCustomButton->click();
        QCOMPARE(pane.services.folderChooser.requests.last().message, qtTrId("ICONS_DESTINATION"));
        pane.services.folderChooser.confirm(folder.path());
        const QStringList files = filesBelow(folder.path());
        QCOMPARE(files.size(), 1);
        QTEST(files.first(), "file");
        QCOMPARE(QImage(folder.filePath(files.first())).size(), QSize(57, 57));
        QCOMPARE(pane.ui.generateCustomButton->text(), qtTrId("ICONS_DONE"));
        QCOMPARE(pane.popupTitle(), QString());
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui.generateCustomButton->text(), qtTrId("GENERATE"), 4000);
    }

    void customExportStopsWhereItsFolderCannotBeMade()
    {
        Pane pane;
        pane.ui.customIconSizeTextField->setString(u"57"_s);
        pane.ui.generateCustomButton->click();
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Folder error: "_s));
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^CreateError: "_s));
        pane.services.folderChooser.confirm(u"/proc/nowhere"_s);
        QCOMPARE(pane.ui.generateCustomButton->text(), qtTrId("GENERATE"));
        QCOMPARE(pane.popupTitle(), QString());
    }

    void takenNameIsTold_data()
    {
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QString>("used");
        QTest::addColumn<bool>("told");
        QTest::newRow("two taken") << QStringList{u"icons"_s, u"icons_1"_s} << u"icons_2"_s << true;
        QTest::newRow("only the numbered one") << QStringList{u"icons_1"_s} << u"icons"_s << false;
    }
    void takenNameIsTold()
    {
        QFETCH(QStringList, taken);
        QFETCH(QString, used);
        QFETCH(bool, told);
        const QTemporaryDir folder;
        for (const QString &name : std::as_const(taken))
            QVERIFY(QDir(folder.path()).mkdir(name));
        Pane pane;
        pane.ui.favIconCheckbox->click();
        pane.exportTo(folder.path());
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        QVERIFY(QFileInfo::exists(folder.filePath(used + u"/Favicon/favicon-16.png"_s)));
        QCOMPARE(pane.popupTitle(), told ? qtTrId("ICONS_NEW_FOLDER_ALERT_TITLE") : QString());
        if (told) {
            QVERIFY(pane.popupMessage().contains(used));
            QVERIFY(!pane.popupMessage().contains(u"[FOLDER]"_s));
            QVERIFY(!pane.popupIsError());
        }
    }

    void macExportHoldsTenPicturesAndTheirIconFile()
    {
        const QTemporaryDir folder;
        Pane pane;
        pane.ui.macCheckbox->click();
        pane.exportTo(folder.path());
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui.generateIconsButton->text(), qtTrId("ICONS_EXPORTING"), 30000);
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 60000);
        QStringList expected{u"icons/Mac/icons.icns"_s};
        for (const IconEntry &icon : MacIcons)
            expected << u"icons/Mac/icons.iconset/"_s + QLatin1StringView(icon.name);
        expected.sort();
        QCOMPARE(filesBelow(folder.path()), expected);
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui.generateIconsButton->text(), qtTrId("GENERATE"), 4000);
    }

    void cancelledChooserDoesNothing()
    {
        Pane pane;
        pane.ui.favIconCheckbox->click();
        pane.ui.generateIconsButton->click();
        pane.services.folderChooser.cancel();
        QCOMPARE(pane.tool.savePath(), QString());
        QCOMPARE(pane.ui.generateIconsButton->text(), qtTrId("GENERATE"));
    }

    void chooserOpensWhereTheLastExportWent()
    {
        const QTemporaryDir folder;
        Pane pane;
        pane.ui.favIconCheckbox->click();
        pane.exportTo(folder.path());
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        pane.ui.generateIconsButton->click();
        QCOMPARE(pane.services.folderChooser.requests.last().startFolder, folder.path());
    }

    void failedFoldersAreLoggedAndTheExportEndsAsEver()
    {
        Pane pane;
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
        Pane pane;
        pane.ui.webTouchCheckbox->click();
        pane.exportTo(folder.path());
        QVERIFY(pane.ui.generateIconsButton->isEnabled());
        pane.exportTo(folder.path());
        QTRY_COMPARE_WITH_TIMEOUT(filesBelow(folder.path()).size(), 18, 60000);
        QVERIFY(QFileInfo::exists(folder.filePath(u"icons_1/Web Touch"_s)) ||
                QFileInfo::exists(folder.filePath(u"icons/Web Touch"_s)));
    }

    void sourceTakenDuringAnExportIsForTheNext()
    {
        const QTemporaryDir folder;
        const QTemporaryDir sources;
        Pane pane;
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
        Pane pane;
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
            Pane pane;
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

    void snippets_data()
    {
        QTest::addColumn<QString>("actions");
        QTest::addColumn<QString>("key");
        QTest::newRow("iOS, neither device") << u"0"_s << u"SNIPPET_IOS_UNIVERSAL"_s;
        QTest::newRow("iOS, both devices") << u"hd0"_s << u"SNIPPET_IOS_UNIVERSAL"_s;
        QTest::newRow("iOS, iPhone") << u"h0"_s << u"SNIPPET_IOS"_s;
        QTest::newRow("iOS, iPad") << u"d0"_s << u"SNIPPET_IOS_IPAD"_s;
        QTest::newRow("Mac") << u"1"_s << u"SNIPPET_MACOSX"_s;
        QTest::newRow("Android") << u"2"_s << u"SNIPPET_ANDROID"_s;
        QTest::newRow("Web touch") << u"3"_s << u"SNIPPET_WEB_TOUCH"_s;
        QTest::newRow("Favicon") << u"4"_s << u"SNIPPET_FAVICON"_s;
        QTest::newRow("switching iPad off while iPhone stays on") << u"hd0d"_s << u"SNIPPET_IOS"_s;
        QTest::newRow("the Mac box changes nothing") << u"hd0m"_s << u"SNIPPET_IOS_UNIVERSAL"_s;
        QTest::newRow("with Mac shown, iPhone changes nothing") << u"1h"_s << u"SNIPPET_MACOSX"_s;
        QTest::newRow("toggling iPhone first of all, iOS being selected") << u"h"_s << u"SNIPPET_IOS"_s;
    }
    void snippets()
    {
        QFETCH(QString, actions);
        QFETCH(QString, key);
        Pane pane;
        for (const QChar action : std::as_const(actions)) {
            if (action == u'h')
                pane.ui.iPhoneCheckbox->click();
            else if (action == u'd')
                pane.ui.iPadCheckbox->click();
            else if (action == u'm')
                pane.ui.macCheckbox->click();
            else {
                pane.ui.codeSnippetDropdown->setCurrentIndex(action.digitValue());
                pane.tool.snippetPlatformClicked();
            }
        }
        const QString expected = qtTrId(key.toUtf8().constData());
        QVERIFY(expected != key);
        QCOMPARE(pane.ui.codeSnippedView->toPlainText(), expected);
        QVERIFY(pane.ui.codeSnippedView->isReadOnly());
    }

    void copying()
    {
        const Pane pane;
        pane.ui.codeSnippetCopyButton->click();
        QCOMPARE(pane.services.clipboard.changes, 0);
        QCOMPARE(pane.popupTitle(), QString());
        pane.ui.iPhoneCheckbox->click();
        pane.ui.codeSnippetCopyButton->click();
        QCOMPARE(pane.services.clipboard.text, qtTrId("SNIPPET_IOS"));
        QCOMPARE(pane.popupTitle(), qtTrId("SNIPPETS_TITLE"));
        QCOMPARE(pane.popupMessage(), qtTrId("SNIPPETS_MESSAGE"));
        QVERIFY(!pane.popupIsError());
    }

    void nothingIsClipped_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : availableLanguages())
            QTest::newRow(qPrintable(language)) << language;
    }
    void nothingIsClipped()
    {
        QFETCH(QString, language);
        QTranslator table;
        QVERIFY(table.load(u":/strings/lumora_"_s + language + u".qm"_s));
        QCoreApplication::installTranslator(&table);
        Pane pane;
        QVERIFY(QTest::qWaitForWindowExposed(&pane.window));
        QVERIFY(pane.tool.view()->minimumSizeHint().width() <= 835);
        QVERIFY2(pane.tool.view()->minimumSizeHint().height() <= 600,
                 qPrintable(QString::number(pane.tool.view()->minimumSizeHint().height())));
        pane.ui.generateIconsButton->setText(qtTrId("ICONS_EXPORTING"));
        for (const QWidget *control : pane.tool.view()->findChildren<QAbstractButton *>())
            QVERIFY2(control->width() >= control->sizeHint().width(), qPrintable(control->objectName()));
        for (const QLabel *label : pane.tool.view()->findChildren<QLabel *>()) {
            if (!label->wordWrap())
                QVERIFY2(label->width() >= label->fontMetrics().horizontalAdvance(label->text()),
                         qPrintable(label->objectName()));
        }
        QCoreApplication::removeTranslator(&table);
    }
};

QTEST_MAIN(IconsPaneTest)
#include "IconsPaneTest.moc"
