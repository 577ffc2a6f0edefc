// SPDX-License-Identifier: MIT
#include "widgets/INAppStoreWindow.h"
#include "widgets/INTitlebarView.h"
#include "widgets/INWindowButton.h"
#include "widgets/INWindowButtonGroup.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class AppStoreWindowTest : public QObject
{
    Q_OBJECT

private:
    static INWindowButton *light(const INAppStoreWindow &window, const QString &kind)
    {
        return window.findChild<INWindowButton *>(kind);
    }

private slots:
    void raisesALowTitleBarToTheStandardHeight()
    {
        INAppStoreWindow window;
        QCOMPARE(window.titleBarHeight(), INAppStoreWindow::minimumTitleBarHeight());
        window.setTitleBarHeight(60);
        QCOMPARE(window.titleBarHeight(), 60.0);
        window.setTitleBarHeight(INAppStoreWindow::minimumTitleBarHeight() - 1);
        QCOMPARE(window.titleBarHeight(), INAppStoreWindow::minimumTitleBarHeight());
    }

    void laysOutBarLightsAndContent()
    {
        INAppStoreWindow window;
        window.resize(900, 660);
        window.setTitleBarHeight(60);
        window.setTrafficLightButtonsLeftMargin(60);
        auto *content = new QWidget;
        window.setContentView(content);
        QCOMPARE(window.titleBarView()->geometry(), QRect(0, 0, 900, 60));
        QCOMPARE(content->geometry(), QRect(0, 60, 900, 600));
        QCOMPARE(light(window, u"close"_s)->geometry(), QRect(60, 22, 16, 16));
        QCOMPARE(light(window, u"minimize"_s)->x(), 60 + 16 + window.trafficLightSeparation());
        window.show();
        window.resize(1000, 700);
        QCOMPARE(content->geometry(), QRect(0, 60, 1000, 640));
    }
};

QTEST_MAIN(AppStoreWindowTest)
#include "AppStoreWindowTest.moc"
