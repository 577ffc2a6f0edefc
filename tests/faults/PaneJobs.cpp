// SPDX-License-Identifier: MIT
// usage: pane_jobs icons|placeholders OUT, pane_jobs downscale OUT FILE..., pane_jobs validate FILE
// Does one job as the window does it, all panes in place, and ends when the pane says that it is done. What a user
// would click and choose is given.
#include "app/AppDelegate.h"
#include "app/sidebar/ITSidebar.h"
#include "icons/IconsViewController.h"
#include "placeholders/PlaceholderViewController.h"
#include "resizer/ResizerViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "ui_IconsViewController.h"
#include "ui_PlaceholderViewController.h"
#include "ui_ResizerViewController.h"
#include "ui_ValidaterViewController.h"
#include "validator/ValidaterViewController.h"
#include "validator/bundle/WorkFolder.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <functional>

using namespace lumora;

namespace
{

enum Tool : std::uint8_t { Icons = 0, Placeholders = 1, Resizer = 2, Validator = 5 };

template <typename Controller> Controller &show(AppDelegate &delegate, Tool tool)
{
    delegate.sideBar()->setSelectedIndex(tool);
    return static_cast<Controller &>(*delegate.controller(tool));
}

void waitUntil(const std::function<bool()> &done)
{
    while (!done())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

bool run(AppDelegate &delegate, RecordingServices &services, const QString &job, const QStringList &files)
{
    if (job == QStringLiteral("icons")) {
        const Ui::IconsViewController &ui = show<IconsViewController>(delegate, Icons).outlets();
        ui.webTouchCheckbox->click();
        ui.favIconCheckbox->click();
        ui.generateIconsButton->click();
        services.folderChooser.confirm(files.first());
        waitUntil([&ui] { return ui.generateIconsButton->text() == qtTrId("ICONS_DONE"); });
    } else if (job == QStringLiteral("placeholders")) {
        const Ui::PlaceholderViewController &ui = show<PlaceholderViewController>(delegate, Placeholders).outlets();
        ui.iosButton->click();
        services.folderChooser.confirm(files.first());
        waitUntil([&ui] { return ui.iosButton->text() == qtTrId("ALL_DONE"); });
    } else if (job == QStringLiteral("downscale")) {
        auto &tool = show<ResizerViewController>(delegate, Resizer);
        tool.dropViewReceivedFiles(files.sliced(1));
        services.folderChooser.confirm(files.first());
        waitUntil([&tool] { return !tool.outlets().alertLabel->isHidden(); });
    } else if (job == QStringLiteral("validate")) {
        auto &tool = show<ValidaterViewController>(delegate, Validator);
        tool.dropViewReceivedFiles(files);
        waitUntil([&tool] { return !tool.outlets().appIconField->pixmap().isNull(); });
    } else {
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    // Exports log their steps, and the offscreen platform logs that it cannot raise a window.
    QLoggingCategory::setFilterRules(QStringLiteral("*.info=false\ndefault.warning=false"));
    loadResources();
    installTexts(*qApp, QLocale(QStringLiteral("en_GB")));
    RecordingServices services;
    const auto workFolder = WorkFolder::make();
    services.workFolder = workFolder ? workFolder.value()->path() : QString();
    AppDelegate delegate(services.services());
    delegate.applicationDidFinishLaunching();
    if (arguments.size() >= 3 && run(delegate, services, arguments.at(1), arguments.sliced(2)))
        return 0;
    std::fputs("usage: pane_jobs icons|placeholders OUT, pane_jobs downscale OUT FILE..., pane_jobs validate FILE\n",
               stderr);
    return 2;
}
