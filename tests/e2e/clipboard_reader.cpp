// SPDX-License-Identifier: MIT
// Another program's view of the clipboard: waits until it has the given text, prints its content, and returns 0 for
// that text, 1 if another text stays there for five seconds. Under Wayland only a window with the keyboard can read the
// clipboard, so there it shows a small window for that time.
#include <QClipboard>
#include <QGuiApplication>
#include <QRasterWindow>
#include <QTextStream>
#include <QTimer>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QString wanted = QGuiApplication::arguments().value(1);
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
