// SPDX-License-Identifier: MIT
#include "WindowScene.h"
#include "tests/doubles/DrivenClock.h"
#include "widgets/popover/ScreenCoordinates.h"
#include "widgets/window/INTitlebarView.h"
#include "widgets/window/StandardTitleBar.h"

#include <QAccessible>
#include <QPushButton>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class AppStoreWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void startsWithTheDefaults()
    {
        const INAppStoreWindow window;
        QCOMPARE(window.titleBarHeight(), INAppStoreWindow::minimumTitleBarHeight());
        QVERIFY(window.titleBarHeight() >= 16);
        QVERIFY(qobject_cast<INTitlebarView *>(window.titleBarView()));
        QVERIFY(window.showsBaselineSeparator());
        QVERIFY(window.centerTrafficLightButtons());
        QVERIFY(!window.verticalTrafficLightButtons());
        QVERIFY(!window.hideTitleBarInFullScreen());
        QVERIFY(!window.closeButton() && !window.minimizeButton() && !window.zoomButton());
        QVERIFY(!window.fullScreenButton());
        QVERIFY(!window.titleBarStartColor().isValid());
        QVERIFY(!window.baselineSeparatorColor().isValid());
        QVERIFY(!window.inactiveTitleBarEndColor().isValid());
        QVERIFY(!window.titleBarDrawingBlock());
        QVERIFY(!window.showsTitle() && !window.showsTitleInFullscreen() && !window.verticallyCenterTitle());
        QVERIFY(window.centerFullScreenButton());
        QCOMPARE(window.trafficLightButtonsTopMargin(), 0.0);
        QCOMPARE(window.titleBarHeight(), standardTitleBar().height);
        QCOMPARE(window.trafficLightButtonsLeftMargin(), standardTitleBar().trafficLightButtonsLeftMargin);
        QCOMPARE(window.trafficLightSeparation(), standardTitleBar().trafficLightSeparation);
        QCOMPARE(window.fullScreenButtonRightMargin(), standardTitleBar().fullScreenButtonRightMargin);
        QCOMPARE(window.styleMask(), INAppStoreWindow::standardStyleMask);
        QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
        const INAppStoreWindow another;
        QCOMPARE(another.trafficLightSeparation(), window.trafficLightSeparation());
    }

    void raisesALowTitleBarToTheStandardHeight()
    {
        INAppStoreWindow window;
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
        QCOMPARE(light(window, "close")->geometry(), QRect(60, 22, 16, 16));
        window.setTrafficLightSeparation(10);
        QCOMPARE(light(window, "minimize")->geometry(), QRect(86, 22, 16, 16));
        QCOMPARE(light(window, "zoom")->geometry(), QRect(112, 22, 16, 16));
        window.setCenterTrafficLightButtons(false);
        window.setTrafficLightButtonsTopMargin(5);
        QCOMPARE(light(window, "close")->geometry(), QRect(60, 5, 16, 16));
        window.setVerticalTrafficLightButtons(true);
        QCOMPARE(light(window, "minimize")->geometry(), QRect(60, 29, 16, 16));
        window.setFullScreenButtonRightMargin(140);
        QCOMPARE(light(window, "fullscreen")->geometry(), QRect(744, 22, 16, 16));
        window.setCenterFullScreenButton(false);
        window.setFullScreenButtonTopMargin(3);
        QCOMPARE(light(window, "fullscreen")->geometry(), QRect(744, 3, 16, 16));
        window.show();
        window.resize(1000, 700);
        QCOMPARE(content->geometry(), QRect(0, 60, 1000, 640));
    }

    void fillsTheBarWithTheCallersView()
    {
        INAppStoreWindow window;
        show(window);
        window.setTitleBarHeight(60);
        auto *view = new QWidget;
        window.setTitleBarView(view);
        QCOMPARE(window.titleBarView(), view);
        QCOMPARE(view->geometry(), QRect(0, 0, 600, 60));
        window.resize(700, 400);
        QCOMPARE(view->width(), 700);
        // The buttons stay above it.
        QVERIFY(view->parentWidget()->children().indexOf(light(window, "close")) >
                view->parentWidget()->children().indexOf(view));
        window.setTitleBarView(nullptr);
        QVERIFY(qobject_cast<INTitlebarView *>(window.titleBarView()));
        QCOMPARE(window.titleBarView()->geometry(), QRect(0, 0, 700, 60));
    }

    void lightsUpApartFromOtherWindows()
    {
        const INAppStoreWindow window;
        const INAppStoreWindow other;
        QCOMPARE(light(window, "close")->group(), light(window, "fullscreen")->group());
        QVERIFY(light(window, "close")->group() != light(other, "close")->group());
    }

    void movesToItsFrameInSteps_data()
    {
        QTest::addColumn<int>("time");
        QTest::addColumn<QRect>("geometry");
        QTest::newRow("the start") << 0 << QRect(100, 100, 600, 400);
        QTest::newRow("the middle") << 125 << QRect(150, 110, 650, 420);
        QTest::newRow("the end") << 250 << QRect(200, 120, 700, 440);
    }
    void movesToItsFrameInSteps()
    {
        QFETCH(int, time);
        DrivenClock clock;
        INAppStoreWindow window;
        show(window);
        window.setFrame(flippedOnScreen(QRectF(200, 120, 700, 440)), true, true);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        clock.pass(time);
        QTEST(window.geometry(), "geometry");
        QCOMPARE(window.titleBarView()->width(), window.width());
    }

    void framesAContentRect()
    {
        INAppStoreWindow window(QRectF(50, 60, 300, 200));
        const qreal bar = INAppStoreWindow::minimumTitleBarHeight();
        QCOMPARE(window.frame(), QRectF(50, 60, 300, 200 + bar));
        window.setFrame(QRectF(10, 20, 400, 300));
        QCOMPARE(window.frame(), QRectF(10, 20, 400, 300));
    }

    void adjustsSizeLimitsToTheTitleBar()
    {
        INAppStoreWindow window;
        const int standard = qRound(INAppStoreWindow::minimumTitleBarHeight());
        window.setMinSize(QSizeF(400, 300));
        window.setMaxSize(QSizeF(800, 600));
        QCOMPARE(window.minimumSize(), QSize(400, 300));
        window.setTitleBarHeight(standard + 36);
        QCOMPARE(window.minimumSize(), QSize(400, 336));
        QCOMPARE(window.maximumSize(), QSize(800, 636));
    }

    void takesTheCallersButtons()
    {
        INAppStoreWindow window;
        show(window);
        auto *button = new QPushButton;
        button->resize(30, 20);
        window.setTitleBarHeight(60);
        window.setCloseButton(button);
        QVERIFY(!light(window, "close")->isVisible());
        QCOMPARE(button->mapTo(&window, QPoint()), QPoint(qRound(window.trafficLightButtonsLeftMargin()), 20));
        QCOMPARE(light(window, "minimize")->x(),
                 qRound(window.trafficLightButtonsLeftMargin() + 30 + window.trafficLightSeparation()));
        button->click();
        QVERIFY(!window.isVisible());
        window.setCloseButton(nullptr);
        window.show();
        QVERIFY(light(window, "close")->isVisible());
    }

    void namesItsButtons_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("key");
        QTest::newRow("close") << u"close"_s << u"ACCESSIBLE_CLOSE"_s;
        QTest::newRow("minimise") << u"minimize"_s << u"ACCESSIBLE_MINIMIZE"_s;
        QTest::newRow("zoom") << u"zoom"_s << u"ACCESSIBLE_ZOOM"_s;
        QTest::newRow("full screen") << u"fullscreen"_s << u"ACCESSIBLE_FULLSCREEN"_s;
    }
    void namesItsButtons()
    {
        QFETCH(QString, kind);
        const INAppStoreWindow window;
        // No table is installed here, so the key is shown instead of its text.
        QTEST(light(window, kind)->accessibleName(), "key");
        QTEST(light(window, kind)->toolTip(), "key");
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(light(window, kind));
        QCOMPARE(accessible->role(), QAccessible::Button);
        QVERIFY(accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }

    void obeysItsStyleMask()
    {
        INAppStoreWindow window;
        window.setStyleMask(INAppStoreWindow::Titled | INAppStoreWindow::Miniaturizable);
        QVERIFY(!light(window, "close")->isEnabled());
        QVERIFY(light(window, "minimize")->isEnabled());
        QVERIFY(!light(window, "zoom")->isEnabled());
        QVERIFY(!light(window, "fullscreen")->isEnabled());
        QVERIFY(!(window.styleMask() & INAppStoreWindow::FullScreen));
        window.showFullScreen();
        QVERIFY(window.styleMask() & INAppStoreWindow::FullScreen);
    }
};

QTEST_MAIN(AppStoreWindowTest)
#include "AppStoreWindowTest.moc"
