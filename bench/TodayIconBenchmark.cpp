// SPDX-License-Identifier: MIT
// The icon tool's side of today: the time from a drop to all previews, and the longest gaps in the event loop during
// drops and while all sets are written. Runs without a screen: QT_QPA_PLATFORM=offscreen bench_icons_today SOURCE...
#include "Heartbeat.h"
#include "icons/IconsViewController.h"
#include "icons/pane/EntryField.h"
#include "icons/pane/SetGeneration.h"
#include "icons/pane/TodayIconPane.h"
#include "icons/pane/TodayIcons.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/buttons/HoverButton.h"

#include <QApplication>
#include <QEventLoop>
#include <QTemporaryDir>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr int drops = 15;

/// Does it, and returns the time until the signal in milliseconds.
template <typename Sender, typename Signal, typename Work> double timeUntil(Sender *sender, Signal signal, Work work)
{
    QEventLoop loop;
    QObject::connect(sender, signal, &loop, &QEventLoop::quit);
    QElapsedTimer clock;
    clock.start();
    work();
    loop.exec();
    return milliseconds(clock.nsecsElapsed());
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    installTexts(*QCoreApplication::instance(), QLocale(u"en"_s));
    QTextStream out(stdout);
    RecordingServices services;
    services.fileReader = std::make_shared<DiskReader>();
    IconsViewController tool(services.services());
    tool.view()->resize(835, 600);
    tool.sides()->show(ToolSide::Today);
    TodayIcons *today = tool.today();
    timeUntil(today, &TodayIcons::previewsShown, [&] { tool.view()->show(); });
    const QStringList sources = QCoreApplication::arguments().sliced(1);
    for (const QString &source : sources) {
        std::vector<double> times;
        const Heartbeat heartbeat;
        for (int drop = 0; drop < drops; ++drop)
            times.push_back(
                timeUntil(today, &TodayIcons::previewsShown, [&] { tool.dropViewReceivedFiles({source}); }));
        std::sort(times.begin(), times.end());
        out << source << ": from the drop to all previews, median " << times[times.size() / 2] << " ms, longest "
            << times.back() << " ms\n";
        heartbeat.print(out);
    }
    const QTemporaryDir folder;
    today->pane()->flattenField()->setText(u"white"_s);
    today->pane()->allButton()->click();
    const Heartbeat heartbeat;
    const double time = timeUntil(today->generation(), &SetGeneration::ended, [&] {
        today->pane()->generateButton()->click();
        services.folderChooser.confirm(folder.path());
    });
    out << "all sets written in " << time << " ms\n";
    heartbeat.print(out);
    return 0;
}
