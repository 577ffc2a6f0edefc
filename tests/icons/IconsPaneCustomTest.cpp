// SPDX-License-Identifier: MIT
#include "IconsPane.h"
#include "icons/pane/IconView.h"
#include "pictures/PictureOperations.h"
#include "widgets/style/Fonts.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class IconsPaneCustomTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
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
        IconsPane pane;
        pane.ui.customIconSizeTextField->setString(typed);
        pane.ui.generateCustomButton->click();
        QTEST(pane.tool.customIconSize(), "size");
        QCOMPARE(pane.services.folderChooser.isOpen(), titleKey.isEmpty());
        QCOMPARE(pane.popupTitle(), titleKey.isEmpty() ? QString() : qtTrId(titleKey.toUtf8().constData()));
        if (!titleKey.isEmpty()) {
            QVERIFY(pane.popupIsError());
            QVERIFY(pane.popupPointsAt(pane.ui.customIconSizeTextField));
        }
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
        IconsPane pane;
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
        pane.letTimePass();
        QCOMPARE(pane.ui.generateCustomButton->text(), qtTrId("GENERATE"));
    }

    void customExportNeedsASource_data()
    {
        QTest::addColumn<bool>("chosen");
        QTest::newRow("before the folder is asked for") << false;
        QTest::newRow("after the folder was chosen") << true;
    }
    void customExportNeedsASource()
    {
        QFETCH(bool, chosen);
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.customIconSizeTextField->setString(u"57"_s);
        if (chosen) {
            pane.ui.generateCustomButton->click();
            pane.tool.setIcon({});
            pane.services.folderChooser.confirm(folder.path());
        } else {
            pane.tool.setIcon({});
            pane.ui.generateCustomButton->click();
            QVERIFY(!pane.services.folderChooser.isOpen());
        }
        QCOMPARE(pane.popupTitle(), qtTrId("ICONS_NO_SOURCE_ALERT_TITLE"));
        QCOMPARE(pane.popupMessage(), qtTrId("ICONS_NO_SOURCE_ALERT_MESSAGE"));
        QVERIFY(pane.popupIsError());
        QVERIFY(pane.popupPointsAt(pane.ui.browseButton));
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void customExportTellsOfATakenName()
    {
        const QTemporaryDir folder;
        QFile taken(folder.filePath(u"icons"_s));
        QVERIFY(taken.open(QIODevice::WriteOnly));
        IconsPane pane;
        pane.ui.customIconSizeTextField->setString(u"57"_s);
        pane.ui.generateCustomButton->click();
        pane.services.folderChooser.confirm(folder.path());
        QVERIFY(QFileInfo::exists(folder.filePath(u"icons_1/Custom/icon_57x57.png"_s)));
        QCOMPARE(pane.popupTitle(), qtTrId("ICONS_NEW_FOLDER_ALERT_TITLE"));
        QVERIFY(pane.popupMessage().contains(u"icons_1"_s));
        QVERIFY(!pane.popupIsError());
        QVERIFY(pane.popupPointsAt(pane.ui.generateCustomButton));
    }

    void customExportStopsWhereItsFolderCannotBeMade()
    {
        IconsPane pane;
        pane.ui.customIconSizeTextField->setString(u"57"_s);
        pane.ui.generateCustomButton->click();
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Folder error: "_s));
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^CreateError: "_s));
        pane.services.folderChooser.confirm(u"/proc/nowhere"_s);
        QCOMPARE(pane.ui.generateCustomButton->text(), qtTrId("GENERATE"));
        QCOMPARE(pane.popupTitle(), QString());
    }

    void cornerOptions_data()
    {
        QTest::addColumn<QList<int>>("clicks");
        QTest::addColumn<CornerMode>("mode");
        QTest::newRow("none") << QList<int>() << CornerMode::None;
        QTest::newRow("iOS 6") << QList<int>{6} << CornerMode::Ios6;
        QTest::newRow("iOS 7") << QList<int>{7} << CornerMode::Ios7;
        QTest::newRow("from 6 to 7") << QList<int>{6, 7} << CornerMode::Ios7;
        QTest::newRow("from 7 to 6") << QList<int>{7, 6} << CornerMode::Ios6;
        QTest::newRow("the one that is on, again") << QList<int>{7, 7} << CornerMode::None;
    }
    void cornerOptions()
    {
        QFETCH(QList<int>, clicks);
        QFETCH(CornerMode, mode);
        IconsPane pane;
        pane.tool.editPreviewIcon();
        for (const int click : clicks)
            (click == 6 ? pane.ui.customIconRoundedSixCheckbox : pane.ui.customIconRoundedCheckbox)->click();
        QCOMPARE(pane.tool.cornerMode(), mode);
        QCOMPARE(pane.ui.customIconRoundedSixCheckbox->isActive(), mode == CornerMode::Ios6);
        QCOMPARE(pane.ui.customIconRoundedCheckbox->isActive(), mode == CornerMode::Ios7);
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
            QCOMPARE(previews[number]->picture(), resizeImage(pane.tool.icon(), pixels, static_cast<int>(mode)));
        }
    }
};

QTEST_MAIN(IconsPaneCustomTest)
#include "IconsPaneCustomTest.moc"
