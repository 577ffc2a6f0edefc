// SPDX-License-Identifier: MIT
#include "WindowProgram.h"

#include "AppDelegate.h"
#include "AppMenu.h"
#include "BusApplication.h"
#include "Display.h"
#include "FileOpenFilter.h"
#include "FontPreparation.h"
#include "TerminationSignals.h"
#include "WindowArguments.h"
#include "cli/CommandLine.h"
#include "cli/commands/CommandTable.h"
#include "cli/console/CommandText.h"
#include "cli/console/Console.h"
#include "foundation/Log.h"
#include "foundation/Version.h"
#include "resources/Resources.h"
#include "tool/PaneSides.h"
#include "validator/bundle/WorkFolder.h"
#include "validator/review/ReaderCall.h"
#include "widgets/style/AppStyle.h"
#include "widgets/style/FrameClock.h"
#include "widgets/style/NamedImage.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTimer>

#include <variant>

#include <unistd.h>

namespace lumora
{

namespace
{

void nameApplication()
{
    QApplication::setApplicationName(QStringLiteral("lumora"));
    QApplication::setApplicationVersion(QLatin1StringView(versionText));
    // The toolkit's dialogs would store settings of their own; here they have no place for them.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    QApplication::setDesktopFileName(QLatin1StringView(applicationId));
}

QStringList windowArguments(int argc, char **argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << QFile::decodeName(argv[index]);
    return arguments;
}

Complaint noDisplay()
{
    return {Complaint::Kind::Failure,
            QStringLiteral("no-display"),
            {},
            commandText("CLI_NO_DISPLAY", {{"[WORDS]", commandNames().join(QStringLiteral(", "))}}),
            {}};
}

/// Null if it cannot be made; the validator then reports it.
std::unique_ptr<WorkFolder> makeWorkFolder()
{
    auto folder = WorkFolder::make();
    if (folder)
        return std::move(folder.value());
    logLine(QStringLiteral("CreateError: ") + folder.failure().detail.words());
    return nullptr;
}

void connectBus(BusApplication &bus, AppDelegate &delegate)
{
    QObject::connect(&bus, &BusApplication::activated, &delegate, &AppDelegate::applicationShouldOpenUntitledFile);
    QObject::connect(&bus, &BusApplication::filesOpened, &delegate, &AppDelegate::applicationOpenFiles);
    QObject::connect(&bus, &BusApplication::toolRequested, &delegate, [&delegate](const QString &name) {
        delegate.activate();
        delegate.showTool(name);
    });
    QObject::connect(&bus, &BusApplication::todayRequested, &delegate, [&delegate] {
        delegate.activate();
        delegate.showSide(ToolSide::Today);
    });
}

/// Reads one package, locked in, for a window that started this process.
int runReader(int argc, char **argv, const QStringList &arguments)
{
    QCoreApplication application(argc, argv);
    loadResources();
    installTexts(application, QLocale::system(), ToolkitTexts::LeaveOut);
    return answerReaderCall(arguments, STDOUT_FILENO);
}

} // namespace

int runWindow(int argc, char **argv)
{
    const QStringList arguments = windowArguments(argc, argv);
    if (isReaderCall(arguments))
        return runReader(argc, argv, arguments);
    const std::variant<OpenRequest, Complaint> parsed = parseWindowArguments(arguments);
    if (std::holds_alternative<Complaint>(parsed))
        return endWithComplaint(argc, argv, ExitStatus::Usage,
                                [&arguments] { return std::get<Complaint>(parseWindowArguments(arguments)); });
    const auto &request = std::get<OpenRequest>(parsed);
    const Display display;
    if (!display.isReachable())
        return endWithComplaint(argc, argv, ExitStatus::Refused, &noDisplay);

    // After the display's changes to the environment, which the other thread reads.
    FontPreparation fonts;
    applyAppStyle();
    const QApplication application(argc, argv);
    nameApplication();
    BusApplication bus;
    if (bus.start(request) == BusApplication::Start::Forwarded)
        return 0;

    loadResources();
    QApplication::setLayoutDirection(installTexts(*qApp, QLocale::system()).textDirection());
    QApplication::setApplicationDisplayName(qtTrId("APP_DEFAULT"));
    fonts.wait();
    applyAppColors();
    const FrameClock frames;

    const std::unique_ptr<WorkFolder> workFolder = makeWorkFolder();
    DesktopServices desktop;
    Services services = desktop.services();
    services.workFolder = workFolder ? workFolder->path() : QString();
    services.readerProgram = QStringLiteral("/proc/self/exe");
    AppDelegate delegate(services);
    delegate.applicationDidFinishLaunching();
    const AppMenu menu(delegate);
    FileOpenFilter filter(delegate);
    qApp->installEventFilter(&filter);
    connectBus(bus, delegate);
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::terminated, delegate.window(), &INAppStoreWindow::performClose);

    if (request.today)
        delegate.showSide(ToolSide::Today);
    delegate.showTool(request.tool);
    delegate.activate();
    if (!request.files.isEmpty())
        delegate.applicationOpenFiles(request.files);
    // For task bars and window lists; it may come after the window is shown.
    QTimer::singleShot(std::chrono::milliseconds(100), qApp,
                       [] { QApplication::setWindowIcon(NamedImage(QStringLiteral("app_icon")).icon()); });
    return QApplication::exec();
}

} // namespace lumora
