// SPDX-License-Identifier: MIT
#include "ButtonPage.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    lumora::gallery::ButtonPage page;
    QPalette colors = page.palette();
    colors.setColor(QPalette::Window, Qt::white);
    page.setPalette(colors);
    page.show();
    return QApplication::exec();
}
