// SPDX-License-Identifier: MIT
#include "placeholders/MiniatureLayout.h"
#include "placeholders/MiniatureView.h"
#include "placeholders/PlaceholderViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "ui_PlaceholderViewController.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/popover/ScreenCoordinates.h"
#include "widgets/textfield/ZKFieldEditor.h"

#include <QDir>
#include <QImageReader>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class PlaceholderPaneTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<PlaceholderViewController> m_controller;

    const Ui::PlaceholderViewController &ui() const { return m_controller->outlets(); }
    RecordingFolderChooser &chooser() const { return m_services->folderChooser; }
    QString out(const QString &name = {}) const { return m_folder->filePath(name); }
    QString message() const { return m_controller->popupContentView()->titleLabel()->text(); }
    void typeSize(const QString &width, const QString &height) const
    {
        ui().customWidthTextField->setString(width);
        ui().customHeightTextField->setString(height);
    }
    /// Confirms the destination and waits for the final texts.
    void runInto(HoverButton *button) const
    {
        chooser().confirm(m_folder->path());
        QTRY_COMPARE(button->text(), qtTrId("ALL_DONE"));
    }

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_services = std::make_unique<RecordingServices>();
        m_window = std::make_unique<QWidget>();
        m_window->resize(900, 660);
        m_controller = std::make_unique<PlaceholderViewController>(m_services->services());
        m_controller->view()->setParent(m_window.get());
        m_controller->view()->setGeometry(65, 60, 835, 600);
        m_window->show();
    }
    void cleanup()
    {
        m_controller.reset();
        m_window.reset();
    }

    void eachButtonWritesItsSet_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("files");
        QTest::newRow("iOS") << u"iosButton"_s << 9;
        QTest::newRow("Mac") << u"macButton"_s << 4;
    }
    void eachButtonWritesItsSet()
    {
        QFETCH(QString, button);
        QFETCH(int, files);
        auto *pressed = m_controller->view()->findChild<HoverButton *>(button);
        QCOMPARE(pressed->text(), qtTrId("GENERATE"));
        pressed->click();
        QCOMPARE(std::ssize(m_controller->saveImages()), qsizetype(files));
        QCOMPARE(m_controller->selectedButton(), pressed);
        QCOMPARE(chooser().requests.constLast().message, qtTrId("RESIZER_DESTINATION_PANEL"));
        QCOMPARE(chooser().requests.constLast().startFolder, QString());
        QCOMPARE(chooser().windows.constLast(), m_window.get());
        runInto(pressed);
        QVERIFY(m_controller->saveImages().empty());
        QCOMPARE(m_controller->selectedButton(), nullptr);
        QCOMPARE(m_controller->savePath(), m_folder->path());
        QCOMPARE(QDir(out(u"placeholders"_s)).entryList(QDir::Files).size(), qsizetype(files));
        QVERIFY(!m_controller->popupView()->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(pressed->text(), qtTrId("GENERATE"), 4000);
    }

    void customSizes_data()
    {
        QTest::addColumn<QString>("width");
        QTest::addColumn<QString>("height");
        QTest::addColumn<QString>("refusedAt");
        QTest::addColumn<QString>("file");
        const QString none;
        QTest::newRow("ordinary") << u"30"_s << u"20"_s << none << u"placeholder_30x20.png"_s;
        QTest::newRow("letters after the number") << u"300abc"_s << u"2"_s << none << u"placeholder_300x2.png"_s;
        QTest::newRow("a strip") << u"9999"_s << u"1"_s << none << u"placeholder_9999x1.png"_s;
        QTest::newRow("blanks and a sign") << u"  +7"_s << u"8"_s << none << u"placeholder_7x8.png"_s;
        const QString atWidth = u"customWidthTextField"_s;
        const QString atHeight = u"customHeightTextField"_s;
        QTest::newRow("width empty") << none << u"20"_s << atWidth << none;
        QTest::newRow("width zero") << u"0"_s << u"20"_s << atWidth << none;
        QTest::newRow("width negative") << u"-3"_s << u"20"_s << atWidth << none;
        QTest::newRow("width too large") << u"10000"_s << u"20"_s << atWidth << none;
        QTest::newRow("width no number") << u"abc"_s << u"20"_s << atWidth << none;
        QTest::newRow("height empty") << u"20"_s << none << atHeight << none;
        QTest::newRow("height zero") << u"20"_s << u"0"_s << atHeight << none;
        QTest::newRow("height negative") << u"20"_s << u"-1"_s << atHeight << none;
        QTest::newRow("height too large") << u"20"_s << u"10000"_s << atHeight << none;
        QTest::newRow("height no number") << u"20"_s << u"x5"_s << atHeight << none;
        QTest::newRow("both wrong, width first") << u"0"_s << u"0"_s << atWidth << none;
    }
    void customSizes()
    {
        QFETCH(QString, width);
        QFETCH(QString, height);
        QFETCH(QString, refusedAt);
        QFETCH(QString, file);
        typeSize(width, height);
        ui().customButton->click();
        QCOMPARE(m_controller->selectedButton(), ui().customButton);
        if (!refusedAt.isEmpty()) {
            QVERIFY(m_controller->popupView()->isVisible());
            QCOMPARE(message(), qtTrId("PLACEHOLDER_ALERT_TITLE"));
            QVERIFY(!chooser().isOpen());
            auto *field = m_controller->view()->findChild<QWidget *>(refusedAt);
            // In front of one of its edges; which one depends on the space on the screen.
            const QPointF tip = flippedOnScreen(m_controller->popupView()->popoverWindow()->attachmentPoint());
            const QRectF around(field->mapToGlobal(QPoint()), field->size());
            QVERIFY(around.adjusted(-6, -6, 6, 6).contains(tip));
            QVERIFY(!around.contains(tip));
            return;
        }
        runInto(ui().customButton);
        QCOMPARE(QDir(out(u"placeholders"_s)).entryList(QDir::Files), QStringList{file});
    }

    void customNameIsKeptAndNamesNoFile()
    {
        QCOMPARE(m_controller->customName(), QString());
        m_controller->setCustomName(u"banner"_s);
        typeSize(u"30"_s, u"20"_s);
        ui().customButton->click();
        runInto(ui().customButton);
        QCOMPARE(m_controller->customName(), u"banner"_s);
        QCOMPARE(QDir(out(u"placeholders"_s)).entryList(QDir::Files), QStringList{u"placeholder_30x20.png"_s});
    }

    void refusedHeightKeepsTheWidth()
    {
        typeSize(u"42"_s, u""_s);
        ui().customButton->click();
        QCOMPARE(m_controller->customWidth(), 42);
        QCOMPARE(m_controller->customHeight(), 0);
    }

    void cancelDiscardsThePictures()
    {
        ui().iosButton->click();
        chooser().cancel();
        QVERIFY(m_controller->saveImages().empty());
        QCOMPARE(m_controller->selectedButton(), ui().iosButton);
        QVERIFY(!m_controller->popupView()->isVisible());
        QVERIFY(QDir(m_folder->path()).isEmpty());
    }

    void aSecondRunNamesItsFolder()
    {
        ui().macButton->click();
        runInto(ui().macButton);
        QTest::ignoreMessage(QtInfoMsg, "Folder exists!");
        ui().macButton->click();
        QCOMPARE(chooser().requests.constLast().startFolder, m_folder->path());
        chooser().confirm(m_folder->path());
        QTRY_VERIFY(m_controller->popupView()->isVisible());
        QCOMPARE(message(), qtTrId("PLACEHOLDER_NEW_FOLDER_ALERT_TITLE"));
        QVERIFY(m_controller->popupContentView()->messageLabel()->text().contains(u"placeholders_1"_s));
        QVERIFY(!m_controller->popupContentView()->messageLabel()->text().contains(u"[FOLDER]"_s));
        QCOMPARE(QDir(out(u"placeholders_1"_s)).entryList(QDir::Files).size(), 4);
    }

    void aPressDuringARunStartsAnother()
    {
        typeSize(u"3000"_s, u"3000"_s);
        ui().customButton->click();
        chooser().confirm(m_folder->path());
        QTRY_VERIFY(QFileInfo::exists(out(u"placeholders"_s)));
        ui().macButton->click();
        QCOMPARE(m_controller->selectedButton(), ui().macButton);
        QTest::ignoreMessage(QtInfoMsg, "Folder exists!");
        chooser().confirm(m_folder->path());
        // The run that ends first reports at the last pressed button; then no button is left for the other.
        QTRY_COMPARE(ui().macButton->text(), qtTrId("ALL_DONE"));
        QCOMPARE(m_controller->selectedButton(), nullptr);
        QTRY_COMPARE(QDir(out(u"placeholders_1"_s)).entryList(QDir::Files).size(), 4);
        QTRY_COMPARE_WITH_TIMEOUT(QDir(out(u"placeholders"_s)).entryList(QDir::Files).size(), 1, 60000);
        m_controller.reset();
    }

    void failuresAreNotTold()
    {
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Folder error: .+"_s));
        ui().macButton->click();
        chooser().confirm(out(u"missing"_s));
        QTRY_COMPARE(ui().macButton->text(), qtTrId("ALL_DONE"));
        QVERIFY(!m_controller->popupView()->isVisible());
    }

    void theWindowStaysLiveDuringALargeOne()
    {
        typeSize(u"5000"_s, u"5000"_s);
        ui().customButton->click();
        chooser().confirm(m_folder->path());
        int beats = 0;
        QTimer heartbeat;
        connect(&heartbeat, &QTimer::timeout, this, [&] { ++beats; });
        heartbeat.start(10);
        QTRY_COMPARE_WITH_TIMEOUT(ui().customButton->text(), qtTrId("ALL_DONE"), 100000);
        QVERIFY(beats > 5);
        QCOMPARE(QImageReader(out(u"placeholders/placeholder_5000x5000.png"_s)).size(), QSize(5000, 5000));
    }

    void closingDuringARunLeavesWholeFiles()
    {
        ui().iosButton->click();
        chooser().confirm(m_folder->path());
        m_controller.reset();
        QCOMPARE(QDir(out(u"placeholders"_s)).entryList(QDir::Files).size(), 9);
    }

    void theMiniatureFollowsTheFields()
    {
        QVERIFY(ui().customMiniature->pictures().isEmpty());
        ui().customWidthTextField->beginEditing();
        QTest::keyClicks(ui().customWidthTextField->currentFieldEditor(), u"64"_s);
        ui().customHeightTextField->beginEditing();
        QTest::keyClicks(ui().customHeightTextField->currentFieldEditor(), u"48"_s);
        QCOMPARE(ui().customMiniature->pictures(), QList<QSize>{QSize(64, 48)});
        QTest::keyClicks(ui().customHeightTextField->currentFieldEditor(), u"000"_s);
        QVERIFY(ui().customMiniature->pictures().isEmpty());
        QCOMPARE(ui().iosMiniature->pictures().size(), 9);
        QCOMPARE(ui().macMiniature->pictures().size(), 4);
    }

    void miniaturesFit_data()
    {
        QTest::addColumn<QList<QSize>>("pictures");
        QTest::newRow("one") << QList<QSize>{{400, 300}};
        QTest::newRow("one, smaller than the area") << QList<QSize>{{40, 30}};
        QTest::newRow("a strip") << QList<QSize>{{9999, 1}};
        QTest::newRow("a column") << QList<QSize>{{1, 9999}};
        QTest::newRow("several") << QList<QSize>{{1024, 1024}, {1136, 640}, {640, 1136}, {320, 480}, {480, 320}};
    }
    void miniaturesFit()
    {
        QFETCH(QList<QSize>, pictures);
        const QRectF area(10, 20, 200, 260);
        const QList<QRectF> rectangles = miniatureRectangles(pictures, area, 6);
        QCOMPARE(rectangles.size(), pictures.size());
        const double scale = rectangles[0].width() / pictures[0].width();
        QVERIFY(scale <= 1);
        for (qsizetype i = 0; i < pictures.size(); ++i) {
            QVERIFY(area.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(rectangles[i]));
            QVERIFY(std::abs(rectangles[i].height() - pictures[i].height() * scale) < 1e-6);
            for (qsizetype other = 0; other < i; ++other)
                QVERIFY(!rectangles[i].intersects(rectangles[other]));
        }
        QVERIFY(miniatureRectangles(pictures, QRectF(), 6).isEmpty());
    }
};

QTEST_MAIN(PlaceholderPaneTest)
#include "PlaceholderPaneTest.moc"
