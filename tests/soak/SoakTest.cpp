// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/HeaderView.h"
#include "app/sidebar/ITSidebar.h"
#include "icons/IconsViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "tests/doubles/ScriptedFiles.h"
#include "ui_IconsViewController.h"
#include "ui_ValidaterViewController.h"
#include "validator/ValidaterViewController.h"
#include "validator/bundle/WorkFolder.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/AppStyle.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>

#include <malloc.h>
#include <unistd.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The memory of the process, in bytes.
struct Memory
{
    qint64 heap = 0;     ///< allocated and not freed: shows every lost byte and nothing else
    qint64 resident = 0; ///< resident memory after returning free heap to the system: what the user sees
};

Memory memory()
{
    // Objects with deleteLater() are deleted in the event loop's next round.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    ::malloc_trim(0);
    const struct mallinfo2 info = ::mallinfo2();
    QFile statm(u"/proc/self/statm"_s);
    if (!statm.open(QIODevice::ReadOnly))
        return {};
    return {static_cast<qint64>(info.uordblks + info.hblkhd),
            statm.readAll().split(' ').at(1).toLongLong() * ::sysconf(_SC_PAGESIZE)};
}

[[maybe_unused]] bool isWithinTenPercent(qint64 now, qint64 before)
{
    return before > 0 && now <= before + before / 10;
}

} // namespace

class SoakTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The free memory in the threads' own heaps depends on timing; a single heap reuses it.
        ::mallopt(M_ARENA_MAX, 1);
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
        applyAppColors();
        // Exports log their steps, and the offscreen platform logs that it cannot raise a window: thousands of lines.
        QLoggingCategory::setFilterRules(u"*.info=false\ndefault.warning=false"_s);
        qputenv("TMPDIR", QFile::encodeName(m_work.path()));
        QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()}));
        auto folder = WorkFolder::make();
        QVERIFY(folder.ok());
        m_workFolder = std::move(folder.value());
        m_services.workFolder = m_workFolder->path();
        m_delegate = std::make_unique<AppDelegate>(m_services.services());
        m_delegate->applicationDidFinishLaunching();
        // A popover that is still fading out would count as visible, and its button would hide it.
        for (SFBPopover *popover : {m_delegate->popupView(), m_delegate->aboutPopupView(), icons().popupView(),
                                    validator().popupView(), validator().validatePopup()})
            popover->setAnimates(false);
        m_delegate->activate();
        QVERIFY(QTest::qWaitForWindowExposed(m_delegate->window()));
        // The memory after ten rounds of each: by that time every pane is laid out and every cache is filled. The
        // resident memory goes up and down by some megabytes with the gaps in the heap; its highest level counts.
        for (int round = 0; round < 10; ++round) {
            switchTool(round);
            exportIcons(round);
            validate(round);
            const Memory now = memory();
            m_before = {now.heap, std::max(now.resident, m_before.resident)};
        }
    }

    void cleanupTestCase()
    {
        m_delegate.reset();
        m_workFolder.reset();
    }

    void fiveHundredToolSwitches()
    {
        for (int round = 10; round < 500; ++round)
            switchTool(round);
        expectTheOldLevel();
    }

    void hundredExports()
    {
        for (int round = 10; round < 100; ++round)
            exportIcons(round);
        expectTheOldLevel();
    }

    void hundredValidations()
    {
        for (int round = 10; round < 100; ++round)
            validate(round);
        expectTheOldLevel();
    }

private:
    IconsViewController &icons() const { return static_cast<IconsViewController &>(*m_delegate->controller(0)); }
    ValidaterViewController &validator() const
    {
        return static_cast<ValidaterViewController &>(*m_delegate->controller(5));
    }

    void expectTheOldLevel()
    {
        const Memory now = memory();
        qDebug("heap %lld KB after ten, %lld KB now; resident %lld KB after ten, %lld KB now", m_before.heap / 1024,
               now.heap / 1024, m_before.resident / 1024, now.resident / 1024);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        // The sanitizers keep freed memory on purpose, and report leaks at the end themselves.
        // The last export's picture may still be fitted into the view on another thread.
        QTRY_VERIFY(isWithinTenPercent(memory().heap, m_before.heap));
        QTRY_VERIFY(isWithinTenPercent(memory().resident, m_before.resident));
#endif
    }

    /// Draws the next tool; then opens its help, or the about panel, which the next switch closes.
    void switchTool(int round)
    {
        m_delegate->sideBar()->setSelectedIndex(round % 6);
        QCoreApplication::processEvents();
        if (round % 2 == 0)
            m_delegate->infoButtonClicked(m_delegate->header()->infoButton());
        else
            m_delegate->iconButtonClicked(m_delegate->header()->iconButton());
        QCoreApplication::processEvents();
        QVERIFY(m_delegate->popupView()->isVisible() || m_delegate->aboutPopupView()->isVisible());
    }

    /// Exports one platform's icons, the platforms in turn, into a folder that already has a set: the message says so.
    void exportIcons(int round)
    {
        m_delegate->sideBar()->setSelectedIndex(0);
        const Ui::IconsViewController &ui = icons().outlets();
        const std::array boxes = {ui.iPhoneCheckbox,  ui.iPadCheckbox,     ui.macCheckbox,
                                  ui.androidCheckbox, ui.webTouchCheckbox, ui.favIconCheckbox};
        CheckboxButton *box = boxes.at(static_cast<std::size_t>(round % 6));
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"icons"_s));
        box->click();
        ui.generateIconsButton->click();
        // The caption of the previous export may still be shown.
        ui.generateIconsButton->setText(u"…"_s);
        m_services.folderChooser.confirm(folder.path());
        QTRY_COMPARE_WITH_TIMEOUT(ui.generateIconsButton->text(), qtTrId("ICONS_DONE"), 60000);
        box->click();
        QVERIFY(!QDir(folder.filePath(u"icons_1"_s)).isEmpty());
        QVERIFY(icons().popupView()->isVisible());
        icons().popupCloseButtonPressed();
    }

    /// Reads and checks one package, and shows one of its explanations.
    void validate(int round)
    {
        m_delegate->sideBar()->setSelectedIndex(5);
        ValidaterViewController &tool = validator();
        const Ui::ValidaterViewController &ui = tool.outlets();
        tool.dropIpaFileFromDelegate(m_packages.filePath(round % 2 == 0 ? u"valid.ipa"_s : u"one icon.ipa"_s));
        QTRY_VERIFY_WITH_TIMEOUT(!ui.appIconField->pixmap().isNull(), 60000);
        QCOMPARE(tool.facts().appName(), u"Demo"_s);
        ui.validAppIconsBox->click();
        QCoreApplication::processEvents();
        QVERIFY(tool.popupView()->isVisible() || tool.validatePopup()->isVisible());
        ui.resetButton->click();
    }

    QTemporaryDir m_work;
    QTemporaryDir m_packages;
    std::unique_ptr<WorkFolder> m_workFolder;
    RecordingServices m_services;
    std::unique_ptr<AppDelegate> m_delegate;
    Memory m_before;
};

QTEST_MAIN(SoakTest)
#include "SoakTest.moc"
