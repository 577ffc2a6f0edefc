// SPDX-License-Identifier: MIT
// Another program's view of the clipboard: waits until it holds the text given, prints what it holds, and answers 0 if
// it is that text, 1 if another stays there for five seconds. Under Wayland only a window that has the keyboard hears
// of the clipboard, so there it shows a small one for that time.
#include <QClipboard>
#include <QGuiApplication>
#include <QRasterWindow>
#include <QTextStream>
#include <QTimer>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QString wanted = application.arguments().value(1);
    QRasterWindow window;
    window.resize(100, 100);
    window.setVisible(QGuiApplication::platformName() == QStringLiteral("wayland"));
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &application, [&] {
        if (QGuiApplication::clipboard()->text() == wanted)
            QCoreApplication::exit(0);
    });
    poll.start(100);
    QTimer::singleShot(5000, &application, [] { QCoreApplication::exit(1); });
    const int status = QCoreApplication::exec();
    QTextStream(stdout) << QGuiApplication::clipboard()->text() << '\n';
    return status;
}
