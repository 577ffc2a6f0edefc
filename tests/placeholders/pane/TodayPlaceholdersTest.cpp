// SPDX-License-Identifier: MIT
#include "placeholders/pane/TodayPlaceholders.h"
#include "foundation/WholeFile.h"
#include "placeholders/PlaceholderViewController.h"
#include "placeholders/pane/ColorEntry.h"
#include "placeholders/pane/LookFields.h"
#include "placeholders/pane/ScreenshotReport.h"
#include "placeholders/pane/SetTile.h"
#include "placeholders/pane/SetTiles.h"
#include "placeholders/pane/TodayPlaceholderPane.h"
#include "resources/Resources.h"
#include "tests/doubles/HeldFiles.h"
#include "tests/doubles/RecordingServices.h"
#include "tool/DropView.h"
#include "tool/JobProgress.h"
#include "tool/JobResultView.h"
#include "tool/style/ElidedLabel.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/popover/SFBPopover.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The placeholder tool's side of today: sets, sizes and looks become files; dropped screenshots become findings.
class TodayPlaceholdersTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<PlaceholderViewController> m_controller;

    TodayPlaceholders *today() const { return m_controller->today(); }
    TodayPlaceholderPane *pane() const { return today()->pane(); }
    LookFields *fields() const { return pane()->fields(); }
    SetTile *tile(const QString &name) const
    {
        return *std::ranges::find(pane()->tiles()->tiles(), name, &SetTile::text);
    }
    QString at(const QString &name) const { return m_folder->filePath(name); }
    static void press(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }
    bool summaryIs(const QString &text) const { return pane()->summary()->text() == text; }
    QStringList rows() const
    {
        QStringList lines;
        for (QTreeWidgetItemIterator item(pane()->report()->list()); *item != nullptr; ++item)
            lines << (*item)->text(0);
        return lines;
    }
    void put(const QString &name, QSize size, QImage::Format format = QImage::Format_RGB32) const
    {
        QImage picture(size, format);
        picture.fill(Qt::darkCyan);
        QVERIFY(QDir().mkpath(QFileInfo(at(name)).path()));
        QVERIFY(picture.save(at(name)));
    }
    void generate()
    {
        press(pane()->generateButton());
        m_services->folderChooser.confirm(m_folder->path());
        QTRY_VERIFY(!today()->isWriting());
    }
    QStringList written() const { return QDir(at(u"placeholders"_s)).entryList(QDir::Files); }

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
        m_controller = std::make_unique<PlaceholderViewController>(m_services->services());
        m_controller->popupView()->setAnimates(false);
        m_controller->view()->resize(835, 600);
        m_controller->view()->show();
        QVERIFY(!m_controller->takesFiles());
        QVERIFY(pane() == nullptr);
        m_controller->sides()->show(ToolSide::Today);
        QVERIFY(m_controller->takesFiles());
    }
    void cleanup() { m_controller.reset(); }

    void tickedSetsAreWritten()
    {
        QVERIFY(summaryIs(u"Choose sets, or type sizes"_s));
        QVERIFY(!pane()->generateButton()->isEnabled());
        press(tile(u"Google Play"_s));
        QVERIFY(summaryIs(u"4 pictures"_s));
        press(tile(u"Feature graphic"_s));
        press(tile(u"Google Play"_s));
        QVERIFY(summaryIs(u"1 picture"_s));
        generate();
        QCOMPARE(written(), QStringList{u"placeholder_1024x500.png"_s});
        QVERIFY(pane()->resultView()->text().startsWith(u"1 picture in "_s));
        press(pane()->resultView()->showButton());
        QCOMPARE(m_services->fileManager.shown, QStringList{at(u"placeholders"_s)});
    }

    void everySetHasATile()
    {
        QStringList names;
        for (SetTile *one : pane()->tiles()->tiles()) {
            names << one->text();
            QVERIFY(!one->sizes().empty() && !one->accessibleDescription().isEmpty());
        }
        QCOMPARE(names, (QStringList{u"App Store"_s, u"Google Play"_s, u"Feature graphic"_s, u"Apple TV"_s,
                                     u"Apple Watch"_s, u"Social cards"_s, u"Launch screens"_s}));
    }

    void ownSizesAreWrittenAndKept()
    {
        fields()->sizesField()->setText(u"60x40 50x50@2x"_s);
        QVERIFY(summaryIs(u"2 pictures"_s));
        press(fields()->keepButton());
        QCOMPARE(fields()->sizesField()->text(), QString());
        QVERIFY(tile(u"60x40, 50x50@2x"_s)->isChecked());
        QVERIFY(summaryIs(u"2 pictures"_s));
        // The same sizes again are the same set.
        fields()->sizesField()->setText(u"60x40 50x50@2x"_s);
        press(fields()->keepButton());
        QCOMPARE(pane()->tiles()->tiles().size(), std::size_t{8});
        generate();
        QCOMPARE(written(), (QStringList{u"placeholder_50x50@2x.png"_s, u"placeholder_60x40.png"_s}));
        // It stays while the program runs.
        m_controller->sides()->show(ToolSide::Classic);
        m_controller->sides()->show(ToolSide::Today);
        QVERIFY(tile(u"60x40, 50x50@2x"_s)->isChecked());
    }

    void theLookIsThatOfTheFields()
    {
        fields()->sizesField()->setText(u"60x40"_s);
        fields()->textField()->clear();
        fields()->background()->setText(u"#f00"_s);
        generate();
        const QImage red(at(u"placeholders/placeholder_60x40.png"_s));
        QCOMPARE(red.pixelColor(30, 20), QColor(255, 0, 0));
        QVERIFY(!red.hasAlphaChannel());
    }

    void theFormatIsTheChosenOne_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("png") << 0 << u"placeholder_60x40.png"_s << QByteArray("\x89PNG");
        QTest::newRow("lossless") << 1 << u"placeholder_60x40.webp"_s << QByteArray("RIFF");
        QTest::newRow("smaller") << 2 << u"placeholder_60x40.webp"_s << QByteArray("RIFF");
        QTest::newRow("svg") << 3 << u"placeholder_60x40.svg"_s << QByteArray("<svg");
    }
    void theFormatIsTheChosenOne()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, begin);
        fields()->sizesField()->setText(u"60x40"_s);
        QFETCH(int, format);
        fields()->formats()->setCurrentIndex(format);
        generate();
        QCOMPARE(written(), QStringList{file});
        const QByteArray bytes = readWholeFile(at(u"placeholders/"_s + file), 1 << 20).value();
        QVERIFY2(bytes.contains(begin), bytes.first(10));
    }

    void whatCannotBeMadeIsSaidInPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("color");
        QTest::addColumn<QString>("sizes");
        QTest::addColumn<QString>("refusal");
        QTest::newRow("nothing wrong") << u"{size}"_s << u"tomato"_s << u"60x40"_s << QString();
        QTest::newRow("no color") << u"{size}"_s << u"#ff"_s << u"60x40"_s
                                  << u"A color is a code such as #ff8800 or a name"_s;
        QTest::newRow("no size") << u"{size}"_s << u"#fff"_s << u"60x40 12"_s
                                 << u"“12” is not a size such as 800x600@2x"_s;
        QTest::newRow("no shape") << u"a\u4e2d"_s << u"#fff"_s << u"60x40"_s << u"The font has no shape for “\u4e2d”"_s;
    }
    void whatCannotBeMadeIsSaidInPlace()
    {
        QFETCH(QString, text);
        QFETCH(QString, color);
        QFETCH(QString, sizes);
        QFETCH(QString, refusal);
        press(tile(u"Google Play"_s));
        fields()->textField()->setText(text);
        fields()->foreground()->setText(color);
        fields()->sizesField()->setText(sizes);
        QCOMPARE(fields()->refusal(), refusal);
        QCOMPARE(pane()->generateButton()->isEnabled(), refusal.isEmpty());
    }

    void colorsAreReadFromText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("color");
        QTest::newRow("short") << u"#f80"_s << u"#ffff8800"_s;
        QTest::newRow("without a sign") << u" FF8800 "_s << u"#ffff8800"_s;
        QTest::newRow("with opacity") << u"#ff880080"_s << u"#80ff8800"_s;
        QTest::newRow("a name") << u"Tomato"_s << u"#ffff6347"_s;
        QTest::newRow("too short") << u"#f"_s << QString();
        QTest::newRow("no code") << u"#gggggg"_s << QString();
        QTest::newRow("nothing") << QString() << QString();
    }
    void colorsAreReadFromText()
    {
        QFETCH(QString, text);
        const std::optional<QColor> color = colorFromText(text);
        QTEST(color ? color->name(QColor::HexArgb) : QString(), "color");
    }

    void aRunCanBeCanceled()
    {
        press(tile(u"Launch screens"_s));
        press(pane()->generateButton());
        m_services->folderChooser.confirm(m_folder->path());
        QVERIFY(pane()->progress()->cancelButton()->isVisible());
        press(pane()->progress()->cancelButton());
        QTRY_VERIFY(!today()->isWriting());
        QVERIFY(!pane()->progress()->cancelButton()->isVisible());
        QVERIFY2(pane()->resultView()->text().endsWith(u"Stopped before the end."_s),
                 qPrintable(pane()->resultView()->text()));
        QVERIFY(written().size() < 55);
    }

    void droppedScreenshotsAreChecked()
    {
        put(u"shots/a.png"_s, {100, 100});
        put(u"shots/b.png"_s, {1320, 2868}, QImage::Format_ARGB32);
        m_controller->dropViewReceivedFiles({at(u"shots"_s)});
        QTRY_VERIFY(summaryIs(u"2 pictures · 2 findings"_s));
        QVERIFY(pane()->showsReport());
        QCOMPARE(rows(),
                 (QStringList{u"a.png"_s, u"error: The size is one that neither store takes (100 x 100 pixels)"_s,
                              u"Take it on a device or simulator of a size in the stores' lists"_s, u"b.png"_s,
                              u"error: A screenshot may have no alpha channel (it has an alpha channel)"_s,
                              u"Save it without transparency, even where every pixel is opaque"_s}));
        pane()->report()->stores()->setCurrentIndex(1);
        QVERIFY(rows().contains(u"error: The App Store takes no screenshot of this size (100 x 100 pixels)"_s));
        press(pane()->backButton());
        QVERIFY(summaryIs(u"Choose sets, or type sizes"_s));
    }

    void filesAndTheirFoldersCount_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QString>("summary");
        QTest::newRow("a sound file") << QStringList{u"en/a.png"_s} << u"1 picture · no findings"_s;
        // Play wants two of them.
        QTest::newRow("in a folder of Play") << QStringList{u"phoneScreenshots/b.png"_s} << u"1 picture · 1 finding"_s;
        QTest::newRow("twice") << QStringList{u"en/a.png"_s, u"en/a.png"_s} << u"1 picture · no findings"_s;
        QTest::newRow("no picture") << QStringList{u"none.txt"_s} << u"1 picture · 1 finding"_s;
        QTest::newRow("an empty folder") << QStringList{u"empty"_s} << u"0 pictures · 1 finding"_s;
    }
    void filesAndTheirFoldersCount()
    {
        QFETCH(QStringList, paths);
        QFETCH(QString, summary);
        put(u"en/a.png"_s, {1320, 2868});
        put(u"phoneScreenshots/b.png"_s, {1080, 1920});
        QVERIFY(QDir().mkpath(at(u"empty"_s)) && writeWholeFile(at(u"none.txt"_s), "none").ok());
        for (QString &path : paths)
            path = at(path);
        m_services->clipboard.copiedFiles = paths;
        m_controller->paste();
        QTRY_VERIFY2(summaryIs(summary), qPrintable(pane()->summary()->text()));
    }

    void aSlowCheckIsStopped()
    {
        put(u"en/a.png"_s, {1320, 2868});
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        const QString before = pane()->summary()->text();
        m_controller->dropViewReceivedFiles({at(u"en"_s)});
        QTRY_VERIFY(pane()->progress()->isVisible());
        QVERIFY2(summaryIs(u"Reading…"_s), qPrintable(pane()->summary()->text()));
        press(pane()->progress()->cancelButton());
        QVERIFY(pane()->checkButton()->isVisible());
        QCOMPARE(pane()->summary()->text(), before);
        share->releaseAll();
        m_controller->dropViewReceivedFiles({at(u"en"_s)});
        QTRY_VERIFY(pane()->showsReport());
        QVERIFY(pane()->checkButton()->isVisible());
    }

    void aStalledShareHoldsUpNothing()
    {
        put(u"en/a.png"_s, {1320, 2868});
        put(u"de/b.png"_s, {1320, 2868});
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        share->release(at(u"de/b.png"_s));
        m_controller->dropViewReceivedFiles({at(u"en"_s)});
        share->waitForBegun(1);
        QVERIFY2(summaryIs(u"Reading…"_s), qPrintable(pane()->summary()->text()));
        QVERIFY(!pane()->showsReport());
        // Other screenshots, and placeholders meanwhile.
        m_controller->dropViewReceivedFiles({at(u"de"_s)});
        QTRY_VERIFY(summaryIs(u"1 picture · no findings"_s));
        press(pane()->backButton());
        press(tile(u"Feature graphic"_s));
        m_controller->dropViewReceivedFiles({at(u"en"_s)});
        share->waitForBegun(3);
        press(pane()->generateButton());
        m_services->folderChooser.confirm(m_folder->path());
        QTRY_COMPARE(written().size(), qsizetype{1});
        QTRY_VERIFY(!today()->isWriting());
        QElapsedTimer time;
        time.start();
        m_controller.reset();
        QVERIFY(!time.hasExpired(BackgroundJobs::patience.count()));
        share->releaseAll();
    }

    void whatIsGoneIsSaid()
    {
        m_controller->browseButtonPressed();
        m_services->folderChooser.confirm(at(u"gone"_s));
        QTRY_VERIFY(m_controller->popupView()->isVisible());
        QVERIFY(!pane()->showsReport());
    }

    void theClassicSideTakesNoFiles()
    {
        m_controller->sides()->show(ToolSide::Classic);
        QVERIFY(!m_controller->takesFiles());
        QVERIFY(!pane()->dropView()->isEnabled());
        m_controller->browseButtonPressed();
        QVERIFY(!m_services->folderChooser.isOpen());
    }
};

QTEST_MAIN(TodayPlaceholdersTest)
#include "TodayPlaceholdersTest.moc"
