// SPDX-License-Identifier: MIT
#include "resizer/pane/TodayScaling.h"
#include "foundation/WholeFile.h"
#include "pictures/PictureReader.h"
#include "resizer/ResizerViewController.h"
#include "resizer/pane/ScalingChoices.h"
#include "resizer/pane/ScalingPlanView.h"
#include "resizer/pane/TodayResizerPane.h"
#include "resources/Resources.h"
#include "tests/doubles/HeldFiles.h"
#include "tests/doubles/RecordingServices.h"
#include "tests/resizer/RetinaFixtures.h"
#include "tool/DropView.h"
#include "tool/JobProgress.h"
#include "tool/JobResultView.h"
#include "tool/style/ElidedLabel.h"
#include "ui_ResizerViewController.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/progress/LBProgressBar.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The down-scaler's side of today, from the drop to the written files.
class TodayScalingTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<ResizerViewController> m_controller;

    TodayScaling *scaling() const { return m_controller->today(); }
    TodayResizerPane *pane() const { return scaling()->pane(); }
    ScalingChoices *choices() const { return pane()->choices(); }
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QString put(const QString &name, QSize size) const
    {
        if (!QDir().mkpath(QFileInfo(at(name)).path()) || !putFlatPng(at(name), size, Qt::red))
            qFatal("fixture");
        return at(name);
    }
    QByteArray content(const QString &name) const { return readWholeFile(at(name), 1 << 20).value(); }
    static void press(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }
    CheckboxButton *box(const QString &text) const
    {
        const auto boxes = choices()->findChildren<CheckboxButton *>();
        return *std::ranges::find(boxes, text, &CheckboxButton::text);
    }
    bool summaryIs(const QString &text) const { return pane()->summary()->text() == text; }
    QStringList rows() const
    {
        QStringList lines;
        for (QTreeWidgetItemIterator item(pane()->planView()); *item != nullptr; ++item)
            lines << (*item)->text(0) + u'|' + (*item)->text(1) + u'|' + (*item)->text(2);
        return lines;
    }

private slots:
    void initTestCase() { installTexts(*qApp, QLocale(u"en_GB"_s)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_services = std::make_unique<RecordingServices>();
        make();
    }
    void make()
    {
        m_controller = std::make_unique<ResizerViewController>(m_services->services());
        m_controller->view()->resize(835, 600);
        m_controller->view()->show();
        QVERIFY(pane() == nullptr);
        m_controller->sides()->show(ToolSide::Today);
        QVERIFY(pane()->isVisible());
    }
    void cleanup() { m_controller.reset(); }

    void aDropIsPlannedAndNothingIsWritten()
    {
        put(u"art/a@3x.png"_s, {91, 62});
        put(u"art/a.png"_s, {7, 7});
        QVERIFY(writeWholeFile(at(u"art/bad@3x.png"_s), "none").ok());
        QVERIFY(!pane()->writeButton()->isEnabled());
        m_controller->dropViewReceivedFiles({at(u"art"_s)});
        QTRY_VERIFY(summaryIs(u"1 file to write · 1 kept · 1 rounded · 1 left out"_s));
        QVERIFY(pane()->planView()->isVisible());
        QCOMPARE(rows(), (QStringList{u"a@3x.png|91 × 62|3x"_s, u"a@2x.png|61 × 41|rounded to whole pixels"_s,
                                      u"a.png|30 × 21|exists, is kept"_s, u"bad@3x.png||"_s,
                                      u"left out: is not a picture that can be read||"_s}));
        QVERIFY(!QFile::exists(at(u"art/a@2x.png"_s)));
        QVERIFY(pane()->writeButton()->isEnabled());
        // The classic side takes nothing meanwhile.
        QVERIFY(m_controller->sourceImages().isEmpty());
    }

    void theChoicesMakeThePlan_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("summary");
        QTest::addColumn<QString>("lastRow");
        QTest::newRow("ios") << 0 << 0 << 0 << u"2 files to write"_s << u"a.png|30 × 20|"_s;
        QTest::newRow("ios from 2x") << 0 << 4 << 0 << u"0 files to write · 1 left out"_s
                                     << u"left out: no picture to scale down from||"_s;
        QTest::newRow("ios from svg") << 0 << 1 << 0 << u"3 files to write"_s << u"d.png|24 × 24|"_s;
        QTest::newRow("ios, webp") << 0 << 0 << 3 << u"2 files to write"_s << u"a.webp|30 × 20|"_s;
        QTest::newRow("android") << 1 << 0 << 0 << u"4 files to write"_s << u"drawable-mdpi/e.png|24 × 12|"_s;
        QTest::newRow("android from xhdpi")
            << 1 << 4 << 0 << u"0 files to write · 1 left out"_s << u"left out: no picture to scale down from||"_s;
        QTest::newRow("react native") << 3 << 0 << 0 << u"3 files to write"_s << u"a.png|30 × 20|"_s;
    }
    void theChoicesMakeThePlan()
    {
        QFETCH(int, layout);
        QFETCH(int, from);
        QFETCH(int, format);
        QFETCH(QString, summary);
        put(u"a@3x.png"_s, {90, 60});
        put(u"drawable-xxxhdpi/e.png"_s, {96, 48});
        QVERIFY(
            writeWholeFile(at(u"d.svg"_s), "<svg xmlns='http://www.w3.org/2000/svg' width='24' height='24'/>").ok());
        m_controller->dropViewReceivedFiles({m_folder->path()});
        choices()->layouts()->setCurrentIndex(layout);
        choices()->froms()->setCurrentIndex(from);
        choices()->formats()->setCurrentIndex(format);
        QTRY_VERIFY2(summaryIs(summary), qPrintable(pane()->summary()->text()));
        QTEST(rows().constLast(), "lastRow");
    }

    void everyFileThatIsDroppedIsAccountedFor()
    {
        const QString source = put(u"a@3x.png"_s, {90, 60});
        const QString target = put(u"a.png"_s, {30, 20});
        const QString small = put(u"small.png"_s, {30, 20});
        const QString other = put(u"other.png"_s, {30, 20});
        m_controller->dropViewReceivedFiles({source, target, small, other});
        QTRY_VERIFY2(summaryIs(u"1 file to write · 1 kept · 2 left out"_s), qPrintable(pane()->summary()->text()));
        QVERIFY(rows().contains(u"small.png||"_s) && rows().contains(u"other.png||"_s));
        // In a folder, pictures of the smallest density are nothing to speak of.
        m_controller->dropViewReceivedFiles({m_folder->path()});
        QTRY_VERIFY2(summaryIs(u"1 file to write · 1 kept"_s), qPrintable(pane()->summary()->text()));
        // None of several is of use.
        m_controller->dropViewReceivedFiles({small, other});
        QTRY_VERIFY2(summaryIs(u"0 files to write · 2 left out"_s), qPrintable(pane()->summary()->text()));
    }

    void withoutADensityNothingIsPlanned()
    {
        m_controller->dropViewReceivedFiles({put(u"a@3x.png"_s, {90, 60})});
        QTRY_VERIFY(summaryIs(u"2 files to write"_s));
        press(box(u"1x"_s));
        QTRY_VERIFY(summaryIs(u"1 file to write"_s));
        press(box(u"2x"_s));
        press(box(u"3x"_s));
        QTRY_VERIFY(summaryIs(u"Tick at least one density"_s));
        QVERIFY(!pane()->writeButton()->isEnabled());
        choices()->froms()->setCurrentIndex(3);
        QVERIFY(!box(u"3x"_s)->isEnabled());
        QVERIFY(box(u"2x"_s)->isEnabled());
    }

    void whatIsPlannedIsWritten()
    {
        put(u"art/a@3x.png"_s, {90, 60});
        m_controller->dropViewReceivedFiles({at(u"art"_s)});
        QTRY_VERIFY(pane()->writeButton()->isEnabled());
        press(pane()->writeButton());
        QVERIFY(pane()->progress()->cancelButton()->isVisible());
        QVERIFY(!choices()->isEnabled());
        QTRY_VERIFY(!scaling()->isWriting());
        QVERIFY(!pane()->progress()->cancelButton()->isVisible());
        QVERIFY(choices()->isEnabled());
        QCOMPARE(QImage(at(u"art/a@2x.png"_s)).size(), QSize(60, 40));
        QCOMPARE(QImage(at(u"art/a.png"_s)).size(), QSize(30, 20));
        QVERIFY(pane()->resultView()->text().startsWith(u"2 pictures in "_s));
        press(pane()->resultView()->showButton());
        QCOMPARE(m_services->fileManager.shown, QStringList{at(u"art"_s)});
        press(pane()->resultView()->copyButton());
        QCOMPARE(m_services->clipboard.text, at(u"art"_s));
        QTRY_VERIFY(summaryIs(u"0 files to write · 2 kept"_s));
        QVERIFY(!pane()->writeButton()->isEnabled());
    }

    void existingFilesAreReplacedOnlyWhereAsked()
    {
        put(u"a@3x.png"_s, {90, 60});
        put(u"a@2x.png"_s, {7, 7});
        put(u"a.png"_s, {7, 7});
        const QByteArray source = content(u"a@3x.png"_s);
        m_controller->dropViewReceivedFiles({m_folder->path()});
        QTRY_VERIFY(summaryIs(u"0 files to write · 2 kept"_s));
        press(choices()->replaceBox());
        QTRY_VERIFY(summaryIs(u"2 files to write · 2 replaced"_s));
        QCOMPARE(rows().constLast(), u"a.png|30 × 20|exists, is replaced"_s);
        press(pane()->writeButton());
        QTRY_VERIFY(!scaling()->isWriting());
        QCOMPARE(QImage(at(u"a@2x.png"_s)).size(), QSize(60, 40));
        QCOMPARE(content(u"a@3x.png"_s), source);
    }

    void theResultsMayGoElsewhere()
    {
        m_controller->dropViewReceivedFiles({put(u"art/a@3x.png"_s, {90, 60})});
        press(choices()->placeButton());
        m_services->folderChooser.confirm(at(u"out"_s));
        choices()->formats()->setCurrentIndex(3);
        choices()->quality()->setValue(10);
        QVERIFY(choices()->quality()->isVisible());
        QTRY_VERIFY(summaryIs(u"2 files to write"_s));
        press(pane()->writeButton());
        QTRY_VERIFY(!scaling()->isWriting());
        QCOMPARE(QImage(at(u"out/a@2x.webp"_s)).size(), QSize(60, 40));
        QCOMPARE(pane()->resultView()->result().folder, at(u"out"_s));
        press(choices()->placeButton());
        QCOMPARE(choices()->destination(), QString());
    }

    void aBatchCanBeCanceled()
    {
        for (int number = 0; number < 60; ++number)
            put(u"p%1@3x.png"_s.arg(number), {600, 600});
        m_controller->dropViewReceivedFiles({m_folder->path()});
        QTRY_VERIFY(summaryIs(u"120 files to write"_s));
        press(pane()->writeButton());
        press(pane()->progress()->cancelButton());
        QVERIFY(!pane()->progress()->cancelButton()->isEnabled());
        QTRY_VERIFY(!scaling()->isWriting());
        const QString text = pane()->resultView()->text();
        QVERIFY2(text.contains(u"of 120 pictures"_s) && text.endsWith(u"Stopped before the end."_s), qPrintable(text));
        QVERIFY(QDir(m_folder->path()).count() < 180);
        // The rest follows.
        QTRY_VERIFY(pane()->writeButton()->isEnabled());
        press(pane()->writeButton());
        QTRY_VERIFY_WITH_TIMEOUT(!scaling()->isWriting(), 60000);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 180);
    }

    void aFileThatComesMeanwhileStays()
    {
        m_controller->dropViewReceivedFiles({put(u"a@3x.png"_s, {90, 60})});
        QTRY_VERIFY(pane()->writeButton()->isEnabled());
        put(u"a.png"_s, {7, 7});
        press(pane()->writeButton());
        QTRY_VERIFY(!scaling()->isWriting());
        QCOMPARE(QImage(at(u"a.png"_s)).size(), QSize(7, 7));
        QVERIFY(pane()->resultView()->text().startsWith(u"1 of 2 pictures in "_s));
    }

    void aSlowPlanIsStopped()
    {
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        const QString held = put(u"a@3x.png"_s, {90, 60});
        m_controller->dropViewReceivedFiles({held});
        QTRY_VERIFY(pane()->progress()->isVisible());
        QVERIFY(!pane()->filesButton()->isVisible());
        press(pane()->progress()->cancelButton());
        QVERIFY(pane()->filesButton()->isVisible());
        QVERIFY2(summaryIs(QString()), qPrintable(pane()->summary()->text()));
        // Its answer comes too late, and is not part of the next plan.
        share->releaseAll();
        m_controller->dropViewReceivedFiles({put(u"b@3x.png"_s, {60, 60})});
        QTRY_COMPARE(rows().value(0), u"b@3x.png|60 × 60|3x"_s);
        QVERIFY(pane()->filesButton()->isVisible());
        QVERIFY(!pane()->progress()->bar()->isAnimating());
    }

    void aStalledShareHoldsUpNoPlan()
    {
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        const QString held = put(u"a@3x.png"_s, {90, 60});
        const QString answered = put(u"b@3x.png"_s, {60, 60});
        share->release(answered);
        m_controller->dropViewReceivedFiles({held});
        share->waitForBegun(1);
        QVERIFY2(summaryIs(u"Reading…"_s), qPrintable(pane()->summary()->text()));
        QVERIFY(!pane()->writeButton()->isEnabled());
        m_controller->dropViewReceivedFiles({answered});
        QTRY_COMPARE(rows().value(0), u"b@3x.png|60 × 60|3x"_s);
        // The answer to the drop before comes too late.
        share->release(held);
        m_controller->dropViewReceivedFiles({put(u"c@3x.png"_s, {30, 60})});
        share->waitForBegun(3);
        QElapsedTimer time;
        time.start();
        m_controller.reset();
        QVERIFY(!time.hasExpired(BackgroundJobs::patience.count()));
        share->releaseAll();
    }

    void aStalledShareEndsWithItsBatch_data()
    {
        QTest::addColumn<bool>("closes");
        QTest::newRow("the window closes") << true;
        QTest::newRow("the user cancels") << false;
    }
    void aStalledShareEndsWithItsBatch()
    {
        QFETCH(bool, closes);
        const QString first = put(u"a@3x.png"_s, {90, 60});
        const QString second = put(u"b@3x.png"_s, {90, 60});
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        share->answer(second, 1);
        share->release(first);
        m_controller->dropViewReceivedFiles({first, second});
        QTRY_VERIFY(summaryIs(u"4 files to write"_s));
        press(pane()->writeButton());
        // Both for the plan, and both for the batch.
        share->waitForBegun(4);
        QTRY_COMPARE(pane()->progress()->nameLabel()->text(), u"b@3x.png"_s);
        if (closes) {
            QElapsedTimer time;
            time.start();
            m_controller.reset();
            QVERIFY(!time.hasExpired(BackgroundJobs::patience.count()));
        } else {
            press(pane()->progress()->cancelButton());
            QTRY_VERIFY(!scaling()->isWriting());
            QVERIFY2(pane()->resultView()->text().startsWith(u"2 of 4 pictures in "_s),
                     qPrintable(pane()->resultView()->text()));
        }
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files),
                 (QStringList{u"a.png"_s, u"a@2x.png"_s, u"a@3x.png"_s, u"b@3x.png"_s}));
        share->releaseAll();
    }

    void filesAndFoldersAreChosen()
    {
        const QString file = put(u"a@3x.png"_s, {90, 60});
        m_controller->browseButtonPressed();
        QCOMPARE(m_services->fileChooser.requests.constLast().nameFilters,
                 QStringList{u"Pictures and drawings (*.png *.webp *.jpg *.jpeg *.svg)"_s});
        m_services->fileChooser.confirm({file});
        QTRY_VERIFY(summaryIs(u"2 files to write"_s));
        press(pane()->folderButton());
        m_services->folderChooser.confirm(m_folder->path());
        QTRY_VERIFY(summaryIs(u"2 files to write"_s));
        m_services->clipboard.copiedFiles = {at(u"gone@3x.png"_s)};
        m_controller->paste();
        QTRY_VERIFY(summaryIs(u"0 files to write · 1 left out"_s));
    }

    void theClassicSideIsAsItWas()
    {
        m_controller->dropViewReceivedFiles({put(u"a@2x.png"_s, {90, 60})});
        QVERIFY(!m_services->folderChooser.isOpen());
        m_controller->sides()->show(ToolSide::Classic);
        m_controller->dropViewReceivedFiles({at(u"a@2x.png"_s)});
        QVERIFY(m_services->folderChooser.isOpen());
        QCOMPARE(m_controller->sourceImages(), QStringList{at(u"a@2x.png"_s)});
    }
};

QTEST_MAIN(TodayScalingTest)
#include "TodayScalingTest.moc"
