// SPDX-License-Identifier: MIT
#include "IconsPane.h"
#include "icons/pane/IconView.h"
#include "pictures/PictureOperations.h"
#include "widgets/style/Fonts.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class IconsPaneSourceTest : public QObject
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
        IconsPane pane;
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
        const IconsPane pane;
        QVERIFY(pane.ui.iconPreviewOne->picture().isNull());
        QTRY_VERIFY_WITH_TIMEOUT(!pane.ui.iconPreviewOne->picture().isNull(), 30000);
        QCOMPARE(pane.ui.sourceIconView->picture().width(), pane.ui.sourceIconView->pixelSide());
        QCOMPARE(pane.ui.iconPreviewFive->picture().width(), pane.ui.iconPreviewFive->pixelSide());
    }

    void sourceIsFittedAgainOffTheMainThread()
    {
        IconsPane pane;
        QTRY_VERIFY_WITH_TIMEOUT(!pane.ui.iconPreviewOne->picture().isNull(), 30000);
        const IconView *view = pane.ui.sourceIconView;
        const QImage before = view->picture();
        pane.ui.resultView->setResult({u"1 icon"_s, u"/tmp"_s, {}});
        QVERIFY(view->pixelSide() != before.width());
        // Until then the view stretches what it has, so that the window is not held up.
        QCOMPARE(view->picture(), before);
        QTRY_COMPARE(view->picture().width(), view->pixelSide());
        QCOMPARE(view->picture(), resizeImage(pane.tool.icon(), view->pixelSide()));
    }

    void sourceTakenBeforeTheBuiltInPictureCameStays()
    {
        const QTemporaryDir folder;
        IconsPane pane;
        pane.tool.createIconFromURL(savePicture(folder, u"mine.png"_s, {1024, 1024}));
        const QImage taken = pane.tool.icon();
        QSignalSpy read(&pane.tool, &IconsViewController::builtInIconRead);
        QVERIFY(read.wait(30000));
        QCOMPARE(pane.tool.icon(), taken);
        QCOMPARE(pane.ui.iconPreviewOne->picture(), resizeImage(taken, pane.ui.iconPreviewOne->pixelSide()));
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
        IconsPane pane;
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
            QVERIFY(pane.popupPointsAt(pane.ui.browseButton));
        }
    }

    void unreadableSourceIsRefused()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"text.png"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        IconsPane pane;
        pane.tool.createIconFromURL(file.fileName());
        QCOMPARE(pane.popupTitle(), qtTrId("ICONS_ALERT_TITLE"));
        IconsPane another;
        another.tool.createIconFromURL(folder.filePath(u"missing.png"_s));
        QCOMPARE(another.popupTitle(), qtTrId("ICONS_ALERT_TITLE"));
    }

    void onlyTheFirstOfSeveralDroppedFilesCounts()
    {
        const QTemporaryDir folder;
        IconsPane pane;
        const QString first = savePicture(folder, u"first.png"_s, {1024, 1024});
        pane.ui.dropView->delegate()->dropViewReceivedFiles(
            {first, savePicture(folder, u"second.png"_s, {512, 512}), u"/gone.png"_s});
        QCOMPARE(pane.ui.sourceIconTitle->text(), u"first.png"_s);
        QCOMPARE(pane.tool.browsePath(), folder.path());
        QCOMPARE(pane.popupTitle(), QString());
    }

    void droppedColorsAndEmptyDropsChangeNothing()
    {
        IconsPane pane;
        const QImage before = pane.tool.icon();
        pane.ui.dropView->delegate()->dropViewReceivedColor(Qt::red);
        pane.ui.dropView->delegate()->dropViewReceivedFiles({});
        QCOMPARE(pane.tool.icon(), before);
        QCOMPARE(pane.popupTitle(), QString());
    }

    void browseButtonRemembersTheFolder()
    {
        const QTemporaryDir folder;
        IconsPane pane;
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
        IconsPane pane;
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
};

QTEST_MAIN(IconsPaneSourceTest)
#include "IconsPaneSourceTest.moc"
