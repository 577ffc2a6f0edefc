// SPDX-License-Identifier: MIT
// usage: bench_validator FILE.ipa   The time until the window shows what it finds in the package, and the gaps of the
// event loop until then.
#include "Heartbeat.h"
#include "app/AppDelegate.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "validator/OpacityFade.h"
#include "validator/bundle/WorkFolder.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/progress/LBProgressBar.h"
#include "widgets/style/AppStyle.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QWindow>

int main(int argc, char **argv)
{
    using namespace lumora;
    applyAppStyle();
    const QApplication application(argc, argv);
    QTextStream out(stdout);
    const QString path = QApplication::arguments().value(1);
    const auto workFolder = WorkFolder::make();
    if (!QFileInfo(path).isFile() || !workFolder) {
        out << "bench_validator: needs a package, and a folder to work in\n";
        return 2;
    }
    loadResources();
    installTexts(*qApp, QLocale(QStringLiteral("en_GB")));
    applyAppColors();
    QLoggingCategory::setFilterRules(QStringLiteral("*.info=false"));
    RecordingServices services;
    services.workFolder = workFolder.value()->path();
    services.readerProgram = QStringLiteral(LUMORA_WINDOW_PROGRAM);
    AppDelegate delegate(services.services());
    delegate.applicationDidFinishLaunching();
    delegate.showTool(QStringLiteral("validator"));
    delegate.activate();
    while (!delegate.window()->windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    // The first frames belong to the start, not to the reading.
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 500)
        QApplication::processEvents();

    const auto *box = delegate.window()->findChild<CheckboxButton *>(QStringLiteral("validAppIconsBox"));
    const auto *bar = delegate.window()->findChild<LBProgressBar *>(QStringLiteral("readingBar"));
    qint64 shown = -1;
    clock.restart();
    const Heartbeat heartbeat;
    delegate.applicationOpenFiles({path});
    while (opacity(box) < 1 || shown < 0) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (shown < 0 && opacity(bar) == 0)
            shown = clock.elapsed();
    }
    out << "findings in view after " << shown << " ms\n";
    out << "event loop while " << (QFileInfo(path).size() >> 20) << " MB are read and shown (" << clock.elapsed()
        << " ms), gaps between heartbeats:\n";
    heartbeat.print(out);
}
