// SPDX-License-Identifier: MIT
// The time of tool switches up to the drawn frame, and the gaps of the event loop while all platforms are exported.
#include "Heartbeat.h"
#include "app/AppDelegate.h"
#include "app/ToolTable.h"
#include "app/sidebar/ITSidebar.h"
#include "icons/IconsViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "ui_IconsViewController.h"
#include "widgets/style/AppStyle.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLocale>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QWindow>

#include <vector>

namespace
{

using namespace lumora;

qint64 switchTo(AppDelegate &delegate, qint32 index)
{
    QElapsedTimer clock;
    clock.start();
    delegate.sideBar()->setSelectedIndex(index);
    QApplication::processEvents();
    return clock.nsecsElapsed();
}

void timeSwitches(AppDelegate &delegate, QTextStream &out)
{
    const auto tools = static_cast<qint32>(toolTable().size());
    out << "first switch to each tool:";
    for (qint32 index = 1; index <= tools; ++index) {
        const auto tool = static_cast<std::size_t>(index % tools);
        out << ' ' << toolTable()[tool].name << ' ' << milliseconds(switchTo(delegate, index % tools)) << " ms";
    }
    out << '\n';
    std::vector<qint64> times;
    for (int round = 0; round < 40; ++round) {
        for (qint32 index = 0; index < tools; ++index)
            times.push_back(switchTo(delegate, index));
    }
    std::sort(times.begin(), times.end());
    out << "tool switch to drawn frame, " << times.size() << " switches of " << tools << " tools: median "
        << milliseconds(times[times.size() / 2]) << " ms, 95% " << milliseconds(times[times.size() * 95 / 100])
        << " ms, longest " << milliseconds(times.back()) << " ms\n";
}

/// The parts that are made after the first frame, one per turn: the time of the longest turn.
void timeMaking(AppDelegate &delegate, QTextStream &out)
{
    while (!delegate.window()->windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    qint64 longest = 0;
    QElapsedTimer all;
    all.start();
    while (!delegate.isComplete()) {
        QElapsedTimer turn;
        turn.start();
        QApplication::processEvents();
        longest = std::max(longest, turn.nsecsElapsed());
    }
    out << "made behind the first frame: " << milliseconds(all.nsecsElapsed()) << " ms, longest turn "
        << milliseconds(longest) << " ms\n";
}

void timeStalls(AppDelegate &delegate, RecordingServices &services, QTextStream &out)
{
    auto &icons = static_cast<IconsViewController &>(*delegate.controller(0));
    delegate.sideBar()->setSelectedIndex(0);
    for (CheckboxButton *box :
         {icons.outlets().iPhoneCheckbox, icons.outlets().iPadCheckbox, icons.outlets().macCheckbox,
          icons.outlets().androidCheckbox, icons.outlets().webTouchCheckbox, icons.outlets().favIconCheckbox})
        box->click();
    const QTemporaryDir folder;
    icons.outlets().generateIconsButton->click();
    QElapsedTimer clock;
    clock.start();
    const Heartbeat heartbeat;
    services.folderChooser.confirm(folder.path());
    while (icons.outlets().generateIconsButton->text() != qtTrId("ICONS_DONE"))
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    out << "event loop while all platforms are exported (" << clock.elapsed() << " ms), gaps between heartbeats:\n";
    heartbeat.print(out);
}

} // namespace

int main(int argc, char **argv)
{
    applyAppStyle();
    const QApplication application(argc, argv);
    loadResources();
    installTexts(*qApp, QLocale(QStringLiteral("en_GB")));
    applyAppColors();
    QLoggingCategory::setFilterRules(QStringLiteral("*.info=false"));
    RecordingServices services;
    AppDelegate delegate(services.services());
    delegate.applicationDidFinishLaunching();
    delegate.activate();
    QTextStream out(stdout);
    timeMaking(delegate, out);
    timeSwitches(delegate, out);
    timeStalls(delegate, services, out);
}
