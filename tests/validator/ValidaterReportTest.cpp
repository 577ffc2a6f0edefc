// SPDX-License-Identifier: MIT
#include "PaneInWindow.h"
#include "resources/Resources.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/ReasonView.h"
#include "validator/ReportBody.h"
#include "validator/SizeChips.h"
#include "widgets/progress/LBProgressBar.h"

#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The pane's texts about a package as a whole, and about files that are not packages.
class ValidaterReportTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
        qputenv("TMPDIR", QFile::encodeName(m_work.path()));
        QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()}));
        QVERIFY(runScript(u"make_no_packages.py"_s, {m_packages.path()}));
    }

    void saysItsSumFirst_data()
    {
        QTest::addColumn<QString>("sum");
        QTest::newRow("valid") << u"All 6 checks passed"_s;
        QTest::newRow("one icon") << u"1 of 6 checks failed"_s;
        QTest::newRow("no launch image") << u"3 of 6 checks failed"_s;
        QTest::newRow("no links") << u"All 4 checks passed"_s;
    }
    void saysItsSumFirst()
    {
        PaneInWindow pane;
        read(pane, QString::fromUtf8(QTest::currentDataTag()));
        QTEST(pane.ui().sumLabel->text(), "sum");
        QCOMPARE(pane.ui().fileLabel->text(), QString::fromUtf8(QTest::currentDataTag()) + u".ipa"_s);
        QVERIFY(pane.ui().sumLabel->isVisible());
        const auto top = [&pane](const QWidget *part) { return part->mapTo(pane.tool.view(), QPoint()).y(); };
        QVERIFY(top(pane.ui().sumLabel) < top(pane.ui().appNameField));
    }

    void givesEachReasonInItsRow()
    {
        PaneInWindow pane;
        read(pane, u"no launch image"_s);
        QVERIFY(pane.ui().appIconsReason->isHidden());
        QCOMPARE(pane.ui().defaultImagesReason->sizes(),
                 (QStringList{u"640x960"_s, u"960x640"_s, u"640x1136"_s, u"1136x640"_s, u"320x480"_s, u"480x320"_s}));
        QVERIFY2(pane.ui().defaultImagesReason->reason().endsWith(u"480x320"_s), "who listens hears the sizes");
        QCOMPARE(pane.ui().bundleIdentifierReason->reason(), qtTrId("VALIDATER_REASON_NO_PROFILE"));
        QCOMPARE(pane.ui().localizationsReason->reason(), qtTrId("VALIDATER_REASON_LOCALIZATIONS"));
        read(pane, u"other identifier"_s);
        QVERIFY(pane.ui().defaultImagesReason->isHidden());
        QVERIFY(pane.ui().bundleIdentifierReason->reason().contains(u"com.other"_s));
        read(pane, u"no list"_s);
        QCOMPARE(pane.ui().bundleIdentifierReason->reason(), qtTrId("VALIDATER_REASON_NO_BUNDLE_ID"));
        QCOMPARE(pane.ui().noteLabel->text(), qtTrId("VALIDATER_NOTE_NO_LIST"));
    }

    void saysWhatIsNoPackage_data()
    {
        QTest::addColumn<QString>("words");
        const auto row = [](const char *name, const char *key) { QTest::newRow(name) << qtTrId(key); };
        row("an empty file", "VALIDATER_FOUND_EMPTY_FILE");
        row("a text", "VALIDATER_FOUND_TEXT");
        row("a picture", "VALIDATER_FOUND_PICTURE");
        row("an empty archive", "VALIDATER_FOUND_EMPTY_ARCHIVE");
        row("an archive cut off", "VALIDATER_FOUND_BROKEN_ARCHIVE");
        row("a folder", "VALIDATER_FOUND_FOLDER");
        row("a pipe", "VALIDATER_FOUND_DEVICE");
        row("gone", "VALIDATER_FOUND_NOTHING");
        row("an empty payload", "VALIDATER_FOUND_EMPTY_PAYLOAD");
        QTest::newRow("an archive without a payload")
            << u"file 0.txt, file 1.txt, file 2.txt, file 3.txt, file 4.txt and 2 more"_s;
        QTest::newRow("a payload without an app") << u"no app, but: Demo.APP, readme.txt"_s;
        QTest::newRow("an app that is a file") << u"no app, but: Demo.app"_s;
    }
    void saysWhatIsNoPackage()
    {
        QFETCH(QString, words);
        PaneInWindow pane;
        read(pane, QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(pane.ui().sumLabel->text(), qtTrId("VALIDATER_SUM_NO_PACKAGE"));
        QVERIFY2(pane.ui().noteLabel->accessibleName().contains(words),
                 qPrintable(pane.ui().noteLabel->accessibleName()));
        QVERIFY(pane.ui().noteLabel->isVisible());
        QVERIFY2(!pane.ui().validAppIconsBox->isVisible(), "no verdict on what is no app");
        QVERIFY2(!pane.ui().appBuildField->isVisible(), "no facts of what is no app");
        QVERIFY(pane.tool.reportText().contains(words));
        QVERIFY(!pane.tool.reportText().contains(u"passed"_s));
        // The next one is an app again; nothing of the last one is shown meanwhile.
        pane.tool.dropIpaFileFromDelegate(package(u"valid"_s));
        QVERIFY(pane.ui().noteLabel->isHidden());
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
        QVERIFY(pane.ui().validAppIconsBox->isVisible());
        QVERIFY(pane.ui().appBuildField->isVisible());
        QVERIFY(pane.ui().noteLabel->isHidden());
    }

    void showsADashForAnEmptyFact()
    {
        PaneInWindow pane;
        read(pane, u"no list"_s);
        QVERIFY(pane.ui().appNameField->text().contains(u'–'));
        QVERIFY(!pane.ui().appBuildField->text().contains(u'–'));
        QVERIFY(pane.tool.reportText().contains(u"Name: –\n"_s));
    }

    void copiesTheReport()
    {
        PaneInWindow pane;
        read(pane, u"one icon"_s);
        QTest::mouseClick(pane.ui().copyReportButton, Qt::LeftButton);
        QCOMPARE(pane.ui().copyReportButton->text(), qtTrId("COPIED"));
        QCOMPARE(pane.services.clipboard.text,
                 u"one icon.ipa\n1 of 6 checks failed\n\nName: Demo\nVersion: 1.2.3\nPlatform: iPhone\n"
                 "Oldest iOS: 7.0\nBundle ID: com.example.app\nBuild: Debug\n\nApp icons: problems found\n"
                 "  Missing, in pixels: 114x114, 60x60, 120x120, 29x29, 58x58, 40x40, 80x80, 512x512, 1024x1024\n"
                 "Launch images: passed\nBundle identifier: passed\nLocalizations: passed\nURL schemes: passed\n"
                 "Facebook app ID: passed\n"_s);
    }

    void drawsTheAppsIconWithTheScreensPixels_data()
    {
        QTest::addColumn<int>("scale");
        QTest::addColumn<QSize>("size");
        QTest::newRow("a pixel for each point") << 1 << QSize(128, 128);
        QTest::newRow("two") << 2 << QSize(256, 256);
        QTest::newRow("three") << 3 << QSize(384, 384);
    }
    void drawsTheAppsIconWithTheScreensPixels()
    {
        QFETCH(int, scale);
        const auto folder = WorkFolder::make();
        const auto decoder = systemProfileDecoder();
        const InspectionSite site{folder.value()->path(), *decoder, {}, {}, scale};
        QTEST(inspectPackage(package(u"valid"_s), site).artwork.appIcon.size(), "size");
        // Here no picture is as large; the first one stands in.
        const QImage small = inspectPackage(package(u"icons by order"_s), site).artwork.appIcon;
        QTEST(small.size(), "size");
        QCOMPARE(QColor(small.pixel(small.rect().center())).name(), u"#ff0000"_s);
    }

    void namesTheExplanationsScrollArea()
    {
        PaneInWindow pane;
        read(pane, u"one icon"_s);
        QTest::mouseClick(pane.ui().validAppIconsBox, Qt::LeftButton);
        QCOMPARE(pane.tool.validatePopupContentView()->scrollArea()->accessibleName(), qtTrId("VALIDATE_ICONS_TITLE"));
        QVERIFY(!pane.ui().validURLSchemesBox->toolTip().isEmpty());
    }

    void checksAgainWhatLiesThereNow()
    {
        PaneInWindow pane;
        const QString path = package(u"changing"_s);
        QVERIFY(QFile::copy(package(u"one icon"_s), path));
        read(pane, u"changing"_s);
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::copy(package(u"valid"_s), path));
        QTest::mouseClick(pane.ui().checkAgainButton, Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui().sumLabel->text(), u"All 6 checks passed"_s, readingTime);
        QVERIFY(pane.ui().appIconsReason->isHidden());
    }

    void showsThatItReadsAndCanBeCanceled()
    {
        PaneInWindow pane;
        pane.tool.dropIpaFileFromDelegate(package(u"valid"_s));
        QVERIFY(pane.ui().readingBar->isVisible());
        QVERIFY(pane.ui().readingBar->isAnimating());
        QVERIFY(pane.ui().cancelButton->isVisible());
        QTest::mouseClick(pane.ui().cancelButton, Qt::LeftButton);
        QCOMPARE(opacity(pane.ui().dropView), 1.0);
        QVERIFY(pane.ui().browseButton->isEnabled());
        QVERIFY(!pane.ui().readingBar->isAnimating());
        QVERIFY(pane.ui().cancelButton->isHidden());
        // All results of the first reading arrive before the end of another.
        read(pane, u"one icon"_s);
        QCOMPARE(pane.ui().sumLabel->text(), u"1 of 6 checks failed"_s);
        QVERIFY(!pane.ui().readingBar->isAnimating());
        QVERIFY(pane.ui().cancelButton->isHidden());
    }

    void takesTheKeyboardAndGivesItBack()
    {
        PaneInWindow pane;
        pane.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&pane.window));
        pane.ui().browseButton->setFocus(Qt::TabFocusReason);
        pane.tool.dropIpaFileFromDelegate(package(u"one icon"_s));
        QTRY_VERIFY_WITH_TIMEOUT(pane.ui().cancelButton->isHidden(), readingTime);
        QVERIFY2(pane.ui().reportArea->hasFocus(), "while it still fades in");
        QCOMPARE(pane.ui().reportArea->accessibleName(), u"Report on one icon.ipa: 1 of 6 checks failed"_s);
        QTRY_VERIFY(pane.hasFacts());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        pane.ui().resetButton->setFocus(Qt::TabFocusReason);
        QTest::keyClick(pane.ui().resetButton, Qt::Key_Space);
        QCOMPARE(QApplication::focusWidget(), pane.ui().browseButton);
    }

    void leavesTheKeyboardElsewhere()
    {
        PaneInWindow pane;
        auto *other = new QPushButton(&pane.window);
        other->show();
        pane.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&pane.window));
        other->setFocus(Qt::TabFocusReason);
        read(pane, u"valid"_s);
        QCOMPARE(QApplication::focusWidget(), other);
    }

    void scrollsWhatDoesNotFit()
    {
        PaneInWindow pane;
        read(pane, u"long names"_s);
        pane.tool.view()->resize(835, 400);
        QScrollBar *bar = pane.ui().reportArea->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        bar->setValue(bar->maximum());
        const QWidget *last = pane.ui().validBundleIdentifier;
        const QRect shown(last->mapTo(pane.ui().reportArea->viewport(), QPoint()), last->size());
        QVERIFY(pane.ui().reportArea->viewport()->rect().contains(shown));
    }

    void usesTheSideOfALargeWindow()
    {
        PaneInWindow pane;
        read(pane, u"one icon"_s);
        QVERIFY(!pane.ui().reportBody->isWide());
        const auto place = [&pane](const QWidget *part) { return part->mapTo(pane.tool.view(), QPoint()); };
        QVERIFY(place(pane.ui().validAppIconsBox).y() > place(pane.ui().appBuildField).y());
        pane.tool.view()->resize(1500, 800);
        QTRY_VERIFY(pane.ui().reportBody->isWide());
        QTRY_VERIFY(place(pane.ui().validAppIconsBox).x() > place(pane.ui().appNameField).x() + 100);
        QTRY_VERIFY(place(pane.ui().validAppIconsBox).y() < place(pane.ui().appBuildField).y());
        pane.tool.view()->resize(835, 595);
        QTRY_VERIFY(place(pane.ui().validAppIconsBox).y() > place(pane.ui().appBuildField).y());
    }

    void placesChips_data()
    {
        QTest::addColumn<int>("rowWidth");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QList<QRect>>("chips");
        constexpr int h = SizeChips::height;
        constexpr int step = SizeChips::height + SizeChips::gap;
        QTest::newRow("one row") << 200 << Qt::LeftToRight
                                 << QList<QRect>{{0, 0, 50, h}, {56, 0, 60, h}, {122, 0, 40, h}};
        QTest::newRow("just wide enough")
            << 162 << Qt::LeftToRight << QList<QRect>{{0, 0, 50, h}, {56, 0, 60, h}, {122, 0, 40, h}};
        QTest::newRow("two rows") << 161 << Qt::LeftToRight
                                  << QList<QRect>{{0, 0, 50, h}, {56, 0, 60, h}, {0, step, 40, h}};
        QTest::newRow("right to left") << 161 << Qt::RightToLeft
                                       << QList<QRect>{{111, 0, 50, h}, {45, 0, 60, h}, {121, step, 40, h}};
        QTest::newRow("too narrow for one")
            << 45 << Qt::LeftToRight << QList<QRect>{{0, 0, 45, h}, {0, step, 45, h}, {0, 2 * step, 40, h}};
    }
    void placesChips()
    {
        QFETCH(int, rowWidth);
        QFETCH(Qt::LayoutDirection, direction);
        QTEST(SizeChips::placed({50, 60, 40}, rowWidth, direction), "chips");
    }

private:
    QString package(const QString &name) const { return m_packages.filePath(name + u".ipa"_s); }
    void read(PaneInWindow &pane, const QString &name)
    {
        pane.tool.dropIpaFileFromDelegate(package(name));
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
    }

    QTemporaryDir m_packages;
    QTemporaryDir m_work;
};

QTEST_MAIN(ValidaterReportTest)
#include "ValidaterReportTest.moc"
