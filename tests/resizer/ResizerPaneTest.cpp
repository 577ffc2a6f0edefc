// SPDX-License-Identifier: MIT
#include "RetinaFixtures.h"
#include "resizer/ResizerViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "ui_ResizerViewController.h"
#include "widgets/popover/SFBPopover.h"

#include <QDir>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include <ctime>

using namespace lumora;
using namespace Qt::StringLiterals;

class ResizerPaneTest : public QObject
{
    Q_OBJECT

private:
    QList<std::pair<QString, double>> m_seen; ///< what label and bar said before each update that the job sent
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ResizerViewController> m_controller;

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (qobject_cast<BackgroundJobs *>(receiver) != nullptr && event->type() >= QEvent::User)
            m_seen.push_back({ui().progressLabel->text(), ui().progressBar->doubleValue()});
        return false;
    }
    const Ui::ResizerViewController &ui() const { return m_controller->outlets(); }
    RecordingFolderChooser &folders() const { return m_services->folderChooser; }
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QStringList putPictures(int count) const
    {
        QStringList paths;
        for (int i = 0; i < count; ++i) {
            paths << at(u"p%1@2x.png"_s.arg(i));
            if (!putFlatPng(paths.constLast(), {8, 6}, Qt::red))
                qFatal("fixture");
        }
        return paths;
    }
    bool isReady() const
    {
        return !ui().dropView->isHidden() && !ui().dropImage->isHidden() && !ui().browseLabel->isHidden() &&
               !ui().browseButton->isHidden() && ui().progressBar->isHidden() && ui().progressLabel->isHidden() &&
               ui().alertImage->isHidden() && ui().alertLabel->isHidden();
    }
    bool isWorking() const
    {
        return ui().dropView->isHidden() && ui().dropImage->isHidden() && ui().browseLabel->isHidden() &&
               ui().browseButton->isHidden() && !ui().progressBar->isHidden() && !ui().progressLabel->isHidden() &&
               ui().alertImage->isHidden() && ui().alertLabel->isHidden();
    }
    bool isDone() const
    {
        return ui().dropView->isHidden() && ui().browseButton->isHidden() && ui().progressBar->isHidden() &&
               ui().progressLabel->isHidden() && !ui().alertImage->isHidden() && !ui().alertLabel->isHidden();
    }

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"out"_s));
        m_services = std::make_unique<RecordingServices>();
        m_window = std::make_unique<QWidget>();
        m_controller = std::make_unique<ResizerViewController>(m_services->services());
        m_controller->view()->setParent(m_window.get());
        m_window->show();
    }
    void cleanup()
    {
        m_controller.reset();
        m_window.reset();
    }

    void takesMarkedFilesOnly_data()
    {
        QTest::addColumn<QStringList>("dropped");
        QTest::addColumn<QStringList>("taken");
        QTest::newRow("one") << QStringList{u"/a/b@2x.png"_s} << QStringList{u"/a/b@2x.png"_s};
        QTest::newRow("some left out, order kept")
            << QStringList{u"/z/y-hd.png"_s, u"/a/b.png"_s, u"/a/c@2x.PNG"_s, u"/a/d@2X.png"_s, u"/a/e@2x.jpg"_s}
            << QStringList{u"/z/y-hd.png"_s, u"/a/d@2X.png"_s};
        QTest::newRow("marker in a folder") << QStringList{u"/art-HD/b.png"_s} << QStringList{u"/art-HD/b.png"_s};
        QTest::newRow("upper-case extension only") << QStringList{u"/a/icon@2x.PNG"_s} << QStringList{};
        QTest::newRow("another format only") << QStringList{u"/a/icon@2x.jpg"_s} << QStringList{};
        QTest::newRow("nothing") << QStringList{} << QStringList{};
    }
    void takesMarkedFilesOnly()
    {
        QFETCH(QStringList, dropped);
        QFETCH(QStringList, taken);
        m_controller->dropViewReceivedFiles(dropped);
        QCOMPARE(m_controller->sourceImages(), taken);
        QCOMPARE(folders().isOpen(), !taken.isEmpty());
        QCOMPARE(m_controller->popupView()->isVisible(), taken.isEmpty());
        if (taken.isEmpty()) {
            QCOMPARE(m_controller->popupContentView()->titleLabel()->text(), qtTrId("RESIZER_ALERT_TITLE"));
            QCOMPARE(m_controller->savePath(), QString());
            return;
        }
        const QString folder = taken.constFirst().section(u'/', 0, -2);
        QCOMPARE(m_controller->savePath(), folder);
        QCOMPARE(m_controller->browsePath(), folder);
        QCOMPARE(folders().requests.constLast().startFolder, folder);
        QCOMPARE(folders().requests.constLast().message, qtTrId("RESIZER_DESTINATION_PANEL"));
    }

    void aDropOnTheAreaArrives()
    {
        QMimeData content;
        content.setUrls({QUrl::fromLocalFile(u"/a/b@2x.png"_s)});
        ui().dropView->performDragOperation(content, DragOperation::Link);
        QCOMPARE(m_controller->sourceImages(), QStringList{u"/a/b@2x.png"_s});
    }

    void browsingIsADrop()
    {
        ui().browseButton->click();
        QCOMPARE(m_services->fileChooser.requests.constLast().message, qtTrId("RESIZER_BROWSE_PANEL"));
        QVERIFY(m_services->fileChooser.requests.constLast().severalFiles);
        QCOMPARE(m_services->fileChooser.requests.constLast().startFolder, QString());
        m_services->fileChooser.confirm({u"/z/a@2x.png"_s, u"/a/b@2x.png"_s});
        QCOMPARE(m_controller->sourceImages(), (QStringList{u"/z/a@2x.png"_s, u"/a/b@2x.png"_s}));
        folders().cancel();
        ui().browseButton->click();
        QCOMPARE(m_services->fileChooser.requests.constLast().startFolder, u"/z"_s);
    }

    void cancelingTheDestinationWritesNothing()
    {
        const QStringList paths = putPictures(1);
        m_controller->dropViewReceivedFiles(paths);
        folders().cancel();
        QVERIFY(isReady());
        QCOMPARE(m_controller->sourceImages(), paths);
        QVERIFY(!QFile::exists(at(u"p0.png"_s)));
    }

    void eachFileAddsAStep()
    {
        m_seen.clear();
        qApp->installEventFilter(this);
        m_controller->dropViewReceivedFiles(putPictures(3));
        folders().confirm(at(u"out"_s));
        QTRY_VERIFY(isDone());
        qApp->removeEventFilter(this);
        m_seen.push_back({ui().progressLabel->text(), ui().progressBar->doubleValue()});
        const double step = 33.333332F;
        QCOMPARE(m_seen, (QList<std::pair<QString, double>>{{u"Picture 0 of 3"_s, 0},
                                                            {u"Picture 1 of 3"_s, step},
                                                            {u"Picture 2 of 3"_s, step + step},
                                                            {u"Picture 3 of 3"_s, 0}}));
    }

    void goesThroughItsStates()
    {
        m_controller->dropViewReceivedFiles(putPictures(3));
        QVERIFY(isReady());
        QStringList texts;
        QList<double> values;
        folders().confirm(at(u"out"_s));
        QCOMPARE(m_controller->savePath(), at(u"out"_s));
        QVERIFY(isWorking());
        // Only the main thread's events change the label; each is checked as it comes.
        while (!isDone()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            if (texts.isEmpty() || texts.constLast() != ui().progressLabel->text())
                texts << ui().progressLabel->text();
        }
        QCOMPARE(texts.constLast(), u"Picture 3 of 3"_s);
        QCOMPARE(ui().progressBar->doubleValue(), 0.0);
        QCOMPARE(QDir(at(u"out"_s)).entryList(QDir::Files), (QStringList{u"p0.png"_s, u"p1.png"_s, u"p2.png"_s}));
        QTRY_VERIFY_WITH_TIMEOUT(isReady(), 4000);
    }

    void anUnreadableFileCountsToo()
    {
        QStringList paths = putPictures(2);
        paths.insert(1, at(u"missing@2x.png"_s));
        m_controller->dropViewReceivedFiles(paths);
        folders().confirm(at(u"out"_s));
        QTRY_VERIFY(isDone());
        QCOMPARE(ui().progressLabel->text(), u"Picture 3 of 3"_s);
        QVERIFY(!m_controller->popupView()->isVisible());
        QCOMPARE(QDir(at(u"out"_s)).entryList(QDir::Files), (QStringList{u"p0.png"_s, u"p1.png"_s}));
    }

    void failedWritesAreNotTold()
    {
        m_controller->dropViewReceivedFiles(putPictures(2));
        folders().confirm(at(u"missing"_s));
        QTRY_VERIFY(isDone());
        QVERIFY(!m_controller->popupView()->isVisible());
    }

    void aMarkedFolderMayBeItsOwnDestination()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"art-hd"_s));
        QVERIFY(putFlatPng(at(u"art-hd/a.png"_s), {20, 10}, Qt::red));
        m_controller->dropViewReceivedFiles({at(u"art-hd/a.png"_s)});
        folders().confirm(at(u"art-hd"_s));
        QTRY_VERIFY(isDone());
        QCOMPARE(QImage(at(u"art-hd/a.png"_s)).size(), QSize(10, 5));
    }

    void theShortcutsRestWhileItWorks()
    {
        m_controller->dropViewReceivedFiles(putPictures(1));
        folders().confirm(at(u"out"_s));
        m_controller->browseButtonPressed();
        m_services->clipboard.copiedFiles = QStringList{u"/a/b@2x.png"_s};
        m_controller->paste();
        QVERIFY(m_services->fileChooser.requests.isEmpty());
        QCOMPARE(folders().requests.size(), 1);
        QTRY_VERIFY(isDone());
    }

    void pastedFilesAreADrop()
    {
        m_services->clipboard.copiedFiles = QStringList{u"/a/b@2x.png"_s};
        m_controller->paste();
        QCOMPARE(m_controller->sourceImages(), QStringList{u"/a/b@2x.png"_s});
    }

    void thousandsStaySmooth()
    {
        const QString one = putPictures(1).constFirst();
        QStringList paths;
        for (int i = 0; i < 3000; ++i)
            paths << one;
        m_controller->dropViewReceivedFiles(paths);
        folders().confirm(at(u"out"_s));
        // Processor time of this thread only, so that a busy machine does not matter.
        const auto used = [] {
            timespec time{};
            ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
            return static_cast<double>(time.tv_sec) * 1000 + static_cast<double>(time.tv_nsec) / 1e6;
        };
        double longest = 0;
        while (!isDone()) {
            const double before = used();
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            longest = std::max(longest, used() - before);
        }
        // A round of the event loop that takes longer than a frame of the screen would be visible.
        QVERIFY2(longest < 16, qPrintable(QString::number(longest)));
        QCOMPARE(ui().progressLabel->text(), u"Picture 3000 of 3000"_s);
    }

    void closingDuringABatchLeavesWholeFiles()
    {
        m_controller->dropViewReceivedFiles(putPictures(60));
        folders().confirm(at(u"out"_s));
        m_controller.reset();
        const QDir out(at(u"out"_s));
        for (const QString &name : out.entryList(QDir::Files))
            QCOMPARE(QImage(out.filePath(name)).size(), QSize(4, 3));
    }
};

QTEST_MAIN(ResizerPaneTest)
#include "ResizerPaneTest.moc"
