// SPDX-License-Identifier: MIT
// The reference for a start: an empty window of the same size.
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
