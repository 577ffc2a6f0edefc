// SPDX-License-Identifier: MIT
#include "RetinaFixtures.h"
#include "resizer/ResizerViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/HeldFiles.h"
#include "tests/doubles/RecordingServices.h"
#include "ui_ResizerViewController.h"
#include "widgets/popover/SFBPopover.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The pane's texts before, during and after a batch.
class ResizerPlanTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ResizerViewController> m_controller;

    const Ui::ResizerViewController &ui() const { return m_controller->outlets(); }
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QString put(const QString &name, QSize size) const
    {
        if (!putFlatPng(at(name), size, Qt::red))
            qFatal("fixture");
        return at(name);
    }
    QString row(int index) const
    {
        const QTreeWidgetItem *item = ui().planView->list()->topLevelItem(index);
        return item->text(0) + u" | "_s + item->text(1) + u" | "_s + item->text(2);
    }
    bool hasRow(int index, const QString &text) const { return row(index) == text; }
    void make()
    {
        m_controller = std::make_unique<ResizerViewController>(m_services->services());
        m_controller->view()->setParent(m_window.get());
        m_controller->popupView()->setAnimates(false);
        m_controller->view()->resize(835, 600);
        m_window->resize(835, 600);
        m_window->show();
    }

private slots:
    void initTestCase() { installTexts(*qApp, QLocale(u"en_GB"_s)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"out"_s));
        m_services = std::make_unique<RecordingServices>();
        m_window = std::make_unique<QWidget>();
    }
    void cleanup()
    {
        m_controller.reset();
        m_window.reset();
    }

    void listsWhatIsTakenAndWhatIsNot()
    {
        make();
        QVERIFY(ui().planView->isHidden());
        const QString text = at(u"text@2x.png"_s);
        QFile file(text);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("text") == 4);
        file.close();
        m_controller->dropViewReceivedFiles({put(u"a@2x.png"_s, {101, 75}), put(u"plain.png"_s, {10, 10}), text,
                                             at(u"gone@2x.png"_s), put(u"one@2x.png"_s, {1, 1})});
        QVERIFY(!ui().planView->isHidden());
        QCOMPARE(ui().planView->summary()->text(), u"To be halved: 4, left out: 1"_s);
        QCOMPARE(ui().planView->list()->topLevelItemCount(), 5);
        QTRY_VERIFY(!row(4).endsWith(u"| "_s));
        QCOMPARE(row(0), u"a@2x.png | 101 × 75 | 50 × 37"_s);
        QCOMPARE(row(1), u"plain.png |  | Left out: is not a .png file marked @2x or -hd"_s);
        QVERIFY2(row(2).startsWith(u"text@2x.png |  | is not a picture that can be read"_s), qPrintable(row(2)));
        QVERIFY2(row(3).startsWith(u"gone@2x.png |  | does not exist"_s), qPrintable(row(3)));
        QCOMPARE(row(4), u"one@2x.png | 1 × 1 | 1 × 1"_s);
    }

    void aRefusedDropSaysWhy()
    {
        make();
        m_controller->dropViewReceivedFiles({put(u"plain.png"_s, {10, 10})});
        QVERIFY(m_controller->popupView()->isVisible());
        QCOMPARE(ui().planView->summary()->text(), u"To be halved: 0, left out: 1"_s);
        QVERIFY(ui().planView->goOnButton()->isHidden());
        QVERIFY(!m_services->folderChooser.isOpen());
    }

    void sourcesOfTheSameNameAreMarked()
    {
        make();
        QVERIFY(QDir(m_folder->path()).mkdir(u"one"_s) && QDir(m_folder->path()).mkdir(u"two"_s));
        m_controller->dropViewReceivedFiles({put(u"one/a@2x.png"_s, {8, 6}), put(u"one/b@2x.png"_s, {8, 6}),
                                             put(u"two/a-hd.png"_s, {10, 6}), put(u"two/a@2x.png"_s, {12, 6})});
        QTRY_COMPARE(row(3), u"a@2x.png | 12 × 6 | 6 × 3"_s);
        QCOMPARE(row(0), u"one/a@2x.png | 8 × 6 | 4 × 3 · overwritten by two/a@2x.png"_s);
        QCOMPARE(row(1), u"b@2x.png | 8 × 6 | 4 × 3"_s);
        QCOMPARE(row(2), u"two/a-hd.png | 10 × 6 | 5 × 3 · overwritten by two/a@2x.png"_s);
    }

    void theFolderMayBeChosenLater()
    {
        make();
        m_controller->dropViewReceivedFiles({put(u"a@2x.png"_s, {8, 6})});
        m_services->folderChooser.cancel();
        QVERIFY(!ui().planView->isHidden());
        ui().planView->goOnButton()->click();
        m_services->folderChooser.confirm(at(u"out"_s));
        QVERIFY(ui().planView->isHidden());
        QTRY_VERIFY(!ui().resultView->isHidden());
        QVERIFY2(ui().resultView->text().startsWith(u"1 picture in "_s), qPrintable(ui().resultView->text()));
        QVERIFY(QFileInfo::exists(at(u"out/a.png"_s)));
        // The next drop begins with a clean pane.
        m_controller->dropViewReceivedFiles({at(u"a@2x.png"_s)});
        m_services->folderChooser.confirm(at(u"out"_s));
        QVERIFY(ui().resultView->isHidden());
    }

    void failuresAreListed()
    {
        make();
        m_controller->dropViewReceivedFiles({put(u"a@2x.png"_s, {8, 6}), at(u"gone@2x.png"_s)});
        m_services->folderChooser.confirm(at(u"out"_s));
        QTRY_VERIFY(!ui().resultView->isHidden());
        const JobResult result = ui().resultView->result();
        QVERIFY2(result.summary.startsWith(u"1 of 2 pictures in "_s), qPrintable(result.summary));
        QCOMPARE(result.failures.size(), 1);
        QVERIFY2(result.failures.first().contains(u"gone@2x.png: does not exist"_s),
                 qPrintable(result.failures.first()));
    }

    void anUnwritableFolderIsNamed()
    {
        make();
        m_controller->dropViewReceivedFiles({put(u"a@2x.png"_s, {8, 6}), put(u"b@2x.png"_s, {8, 6})});
        m_services->folderChooser.confirm(u"/proc/nowhere"_s);
        QTRY_VERIFY(!ui().resultView->isHidden());
        const JobResult result = ui().resultView->result();
        QCOMPARE(result.summary, u"Nothing was written to proc/nowhere"_s);
        QCOMPARE(result.failures.size(), 1);
        QVERIFY2(result.failures.first().startsWith(u"nowhere/a.png and 1 more: could not be written"_s),
                 qPrintable(result.failures.first()));
    }

    void aBatchCanBeCanceled()
    {
        make();
        QStringList files;
        for (int number = 0; number < 300; ++number)
            files << put(u"p%1@2x.png"_s.arg(number), {64, 64});
        m_controller->dropViewReceivedFiles(files);
        m_services->folderChooser.confirm(at(u"out"_s));
        QVERIFY(!ui().cancelButton->isHidden());
        QCOMPARE(ui().currentLabel->text(), u"p0@2x.png"_s);
        ui().cancelButton->click();
        QTRY_VERIFY(!ui().browseButton->isHidden());
        QVERIFY(ui().cancelButton->isHidden() && ui().progressBar->isHidden() && ui().alertLabel->isHidden());
        const auto written = QDir(at(u"out"_s)).entryList(QDir::Files).size();
        QVERIFY(written > 0 && written < files.size());
        const JobResult result = ui().resultView->result();
        QVERIFY2(result.summary.startsWith(u"%1 of 300 pictures in "_s.arg(written)), qPrintable(result.summary));
        QCOMPARE(result.failures, QStringList{qtTrId("RESULT_CANCELED")});
        // And the next one runs to its end.
        m_controller->dropViewReceivedFiles(files.first(2));
        m_services->folderChooser.confirm(at(u"out"_s));
        QVERIFY(ui().cancelButton->isEnabled());
        QTRY_VERIFY(ui().resultView->text().startsWith(u"2 pictures in "_s));
    }

    void theKeyboardGoesToCancelAndBackToBrowse()
    {
        make();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        ui().browseButton->setFocus();
        m_controller->dropViewReceivedFiles({put(u"a@2x.png"_s, {8, 6})});
        m_services->folderChooser.confirm(at(u"out"_s));
        QCOMPARE(QApplication::focusWidget(), ui().cancelButton);
        QTRY_VERIFY(!ui().resultView->isHidden());
        QTRY_COMPARE(QApplication::focusWidget(), ui().browseButton);
    }

    void aStalledShareHoldsUpNothing()
    {
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        const QString path = put(u"a@2x.png"_s, {8, 6});
        m_controller->dropViewReceivedFiles({path});
        share->waitForBegun(1);
        QCOMPARE(row(0), u"a@2x.png |  | "_s);
        share->release(path);
        QTRY_COMPARE(row(0), u"a@2x.png | 8 × 6 | 4 × 3"_s);
        // Another drop while one is held, and the end.
        m_controller->dropViewReceivedFiles({put(u"b@2x.png"_s, {8, 6})});
        share->waitForBegun(2);
        m_controller.reset();
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
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        const QString first = put(u"a@2x.png"_s, {8, 6});
        m_controller->dropViewReceivedFiles({first, put(u"b@2x.png"_s, {8, 6})});
        share->release(first);
        m_services->folderChooser.confirm(at(u"out"_s));
        QTRY_COMPARE(ui().currentLabel->text(), u"b@2x.png"_s);
        if (closes) {
            m_controller.reset();
        } else {
            ui().cancelButton->click();
            QTRY_VERIFY(!ui().resultView->isHidden());
            QVERIFY2(ui().resultView->text().startsWith(u"1 of 2 pictures in "_s), qPrintable(ui().resultView->text()));
        }
        QCOMPARE(QDir(at(u"out"_s)).entryList(QDir::Files), QStringList{u"a.png"_s});
        share->releaseAll();
    }
};

QTEST_MAIN(ResizerPlanTest)
#include "ResizerPlanTest.moc"
