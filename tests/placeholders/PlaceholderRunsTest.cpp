// SPDX-License-Identifier: MIT
#include "placeholders/PlaceholderViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "ui_PlaceholderViewController.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/popover/ScreenCoordinates.h"

#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The y of the baseline of the label's first line, in its window.
int baseline(const QLabel *label)
{
    const QFontMetrics metrics(label->font());
    const bool atTop = label->alignment().testFlag(Qt::AlignTop);
    const int above = atTop ? 0 : (label->height() - metrics.height()) / 2;
    return label->mapTo(label->window(), QPoint(0, above)).y() + metrics.ascent();
}

} // namespace

/// The pane's texts about its runs, also about two at a time.
class PlaceholderRunsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<PlaceholderViewController> m_controller;

    const Ui::PlaceholderViewController &ui() const { return m_controller->outlets(); }
    RecordingFolderChooser &chooser() const { return m_services->folderChooser; }
    QString name() const { return QFileInfo(m_folder->path()).fileName(); }
    /// In front of the lower or the upper edge of the control, at its place beside a result.
    bool popupPointsAt(const QWidget *control) const
    {
        m_controller->view()->layout()->activate();
        const QPointF arrow = flippedOnScreen(m_controller->popupView()->popoverWindow()->attachmentPoint());
        const QRectF around(control->mapToGlobal(QPoint()), control->size());
        return qAbs(arrow.x() - around.center().x()) < 1 && around.adjusted(0, -6, 0, 6).contains(arrow);
    }

private slots:
    void initTestCase() { installTexts(*qApp, QLocale(u"en_GB"_s)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_services = std::make_unique<RecordingServices>();
        m_window = std::make_unique<QWidget>();
        m_window->resize(900, 660);
        m_controller = std::make_unique<PlaceholderViewController>(m_services->services());
        m_controller->view()->setParent(m_window.get());
        m_controller->view()->setGeometry(65, 60, 835, 600);
        m_controller->popupView()->setAnimates(false);
        m_window->show();
    }
    void cleanup()
    {
        m_controller.reset();
        m_window.reset();
    }

    void theSubtitlesFollowTheTitles()
    {
        QCOMPARE(baseline(ui().iosSubtitle) - baseline(ui().iosTitle), 20);
        QCOMPARE(baseline(ui().macSubtitle) - baseline(ui().macTitle), 20);
        QCOMPARE(baseline(ui().customSubtitle) - baseline(ui().customTitle), 20);
    }

    void aRunSaysWhatItLeft()
    {
        ui().macButton->click();
        chooser().confirm(m_folder->path());
        QVERIFY(ui().resultView->isHidden());
        QTRY_VERIFY(!ui().resultView->isHidden());
        QCOMPARE(ui().resultView->text(), u"4 pictures in %1/placeholders"_s.arg(name()));
        ui().resultView->showButton()->click();
        QCOMPARE(m_services->fileManager.shown, QStringList{m_folder->filePath(u"placeholders"_s)});
    }

    void aRunThatWroteNothingSaysSo()
    {
        ui().macButton->click();
        chooser().confirm(u"/proc/nowhere"_s);
        QTRY_VERIFY(!ui().resultView->isHidden());
        const JobResult result = ui().resultView->result();
        QCOMPARE(result.summary, u"Nothing was written to nowhere/placeholders"_s);
        QCOMPARE(result.failures.size(), 1);
        QVERIFY(!m_controller->popupView()->isVisible());
    }

    void aRunClosesAtItsOwnButton()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"placeholders"_s));
        ui().iosButton->click();
        chooser().confirm(m_folder->path());
        // Another run begins before the first one has ended.
        ui().macButton->click();
        QTRY_COMPARE(ui().iosButton->text(), qtTrId("ALL_DONE"));
        QVERIFY(m_controller->popupView()->isVisible());
        QVERIFY(popupPointsAt(ui().iosButton));
        QCOMPARE(ui().macButton->text(), qtTrId("GENERATE"));
        QCOMPARE(m_controller->selectedButton(), ui().macButton);
        m_controller->popupCloseButtonPressed();

        chooser().confirm(m_folder->path());
        QTRY_COMPARE(ui().macButton->text(), qtTrId("ALL_DONE"));
        QTRY_VERIFY(m_controller->popupView()->isVisible());
        QVERIFY(popupPointsAt(ui().macButton));
        QCOMPARE(m_controller->selectedButton(), nullptr);
    }
};

QTEST_MAIN(PlaceholderRunsTest)
#include "PlaceholderRunsTest.moc"
