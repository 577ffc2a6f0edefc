// SPDX-License-Identifier: MIT
// What a start is compared with: a window of the same size with nothing in it.
#include <QApplication>
#include <QWidget>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(900, 660);
    window.show();
    return QApplication::exec();
}
