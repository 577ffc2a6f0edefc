// SPDX-License-Identifier: MIT
#include "tests/widgets/Pointer.h"
#include "widgets/INAppStoreWindow.h"
#include "widgets/INTitlebarView.h"
#include "widgets/INWindowButton.h"
#include "widgets/TitleBarAppearance.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

class FixedPreference final : public DoubleClickPreference
{
public:
    explicit FixedPreference(bool miniaturizes) : m_miniaturizes(miniaturizes) {}
    bool miniaturizesOnDoubleClick() const override { return m_miniaturizes; }

private:
    bool m_miniaturizes;
};

/// Writes down what it hears.
class RecordingDelegate final : public INAppStoreWindowDelegate
{
public:
    bool windowShouldClose(INAppStoreWindow *) override
    {
        heard << u"shouldClose"_s;
        return allowsClosing;
    }
    void windowWillClose(INAppStoreWindow *) override { heard << u"willClose"_s; }
    void windowDidBecomeKey(INAppStoreWindow *) override { heard << u"becomeKey"_s; }
    void windowDidResignKey(INAppStoreWindow *) override { heard << u"resignKey"_s; }
    void windowDidBecomeMain(INAppStoreWindow *) override { heard << u"becomeMain"_s; }
    void windowDidResignMain(INAppStoreWindow *) override { heard << u"resignMain"_s; }
    void windowDidMove(INAppStoreWindow *) override { heard << u"move"_s; }
    void windowDidResize(INAppStoreWindow *) override { heard << u"resize"_s; }
    void windowDidMiniaturize(INAppStoreWindow *) override { heard << u"miniaturize"_s; }
    void windowDidDeminiaturize(INAppStoreWindow *) override { heard << u"deminiaturize"_s; }
    void windowWillEnterFullScreen(INAppStoreWindow *) override { heard << u"willEnter"_s; }
    void windowDidEnterFullScreen(INAppStoreWindow *) override { heard << u"didEnter"_s; }
    void windowWillExitFullScreen(INAppStoreWindow *) override { heard << u"willExit"_s; }
    void windowDidExitFullScreen(INAppStoreWindow *) override { heard << u"didExit"_s; }

    bool allowsClosing = true;
    QStringList heard;
};

} // namespace

class AppStoreWindowTest : public QObject
{
    Q_OBJECT

private:
    static INWindowButton *light(const INAppStoreWindow &window, const QString &kind)
    {
        return window.findChild<INWindowButton *>(kind);
    }

    /// A window of 600 × 400 at (100, 100), away from the platform's pointer, shown and active.
    static void show(INAppStoreWindow &window)
    {
        window.setGeometry(100, 100, 600, 400);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    static void doubleClick(const INAppStoreWindow &window, const QPoint &at)
    {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, at);
    }

    static QStringList without(QStringList heard, const QStringList &noise)
    {
        for (const QString &word : noise)
            heard.removeAll(word);
        return heard;
    }

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
        QCOMPARE(light(window, u"close"_s)->geometry(), QRect(60, 22, 16, 16));
        window.setTrafficLightSeparation(10);
        QCOMPARE(light(window, u"minimize"_s)->geometry(), QRect(86, 22, 16, 16));
        QCOMPARE(light(window, u"zoom"_s)->geometry(), QRect(112, 22, 16, 16));
        window.setCenterTrafficLightButtons(false);
        window.setTrafficLightButtonsTopMargin(5);
        QCOMPARE(light(window, u"close"_s)->geometry(), QRect(60, 5, 16, 16));
        window.setVerticalTrafficLightButtons(true);
        QCOMPARE(light(window, u"minimize"_s)->geometry(), QRect(60, 29, 16, 16));
        window.setFullScreenButtonRightMargin(140);
        QCOMPARE(light(window, u"fullscreen"_s)->geometry(), QRect(744, 22, 16, 16));
        window.setCenterFullScreenButton(false);
        window.setFullScreenButtonTopMargin(3);
        QCOMPARE(light(window, u"fullscreen"_s)->geometry(), QRect(744, 3, 16, 16));
        window.show();
        window.resize(1000, 700);
        QCOMPARE(content->geometry(), QRect(0, 60, 1000, 640));
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
        QVERIFY(!light(window, u"close"_s)->isVisible());
        QCOMPARE(button->mapTo(&window, QPoint()), QPoint(qRound(window.trafficLightButtonsLeftMargin()), 20));
        QCOMPARE(light(window, u"minimize"_s)->x(),
                 qRound(window.trafficLightButtonsLeftMargin() + 30 + window.trafficLightSeparation()));
        button->click();
        QVERIFY(!window.isVisible());
        window.setCloseButton(nullptr);
        window.show();
        QVERIFY(light(window, u"close"_s)->isVisible());
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
        // No table is installed here, so a key stands for its text.
        QTEST(light(window, kind)->accessibleName(), "key");
        QTEST(light(window, kind)->toolTip(), "key");
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(light(window, kind));
        QCOMPARE(accessible->role(), QAccessible::Button);
        QVERIFY(accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }

    void asksItsDelegateBeforeItCloses()
    {
        INAppStoreWindow window;
        RecordingDelegate delegate;
        window.setDelegate(&delegate);
        QCOMPARE(window.delegate(), &delegate);
        show(window);
        delegate.heard.clear();
        delegate.allowsClosing = false;
        light(window, u"close"_s)->click();
        QVERIFY(window.isVisible());
        QCOMPARE(delegate.heard, QStringList{u"shouldClose"_s});
        delegate.allowsClosing = true;
        light(window, u"close"_s)->click();
        QVERIFY(!window.isVisible());
        QCOMPARE(delegate.heard.mid(1, 2), (QStringList{u"shouldClose"_s, u"willClose"_s}));
    }

    void miniaturisesAndZooms()
    {
        INAppStoreWindow window;
        RecordingDelegate delegate;
        show(window);
        window.setDelegate(&delegate);
        light(window, u"minimize"_s)->click();
        QVERIFY(window.isMinimized());
        QVERIFY(delegate.heard.contains(u"miniaturize"_s));
        window.showNormal();
        QVERIFY(delegate.heard.contains(u"deminiaturize"_s));
        light(window, u"zoom"_s)->click();
        QVERIFY(window.isMaximized());
        light(window, u"zoom"_s)->click();
        QVERIFY(!window.isMaximized());
    }

    void obeysItsStyleMask()
    {
        INAppStoreWindow window;
        window.setStyleMask(INAppStoreWindow::Titled | INAppStoreWindow::Miniaturizable);
        QVERIFY(!light(window, u"close"_s)->isEnabled());
        QVERIFY(light(window, u"minimize"_s)->isEnabled());
        QVERIFY(!light(window, u"zoom"_s)->isEnabled());
        QVERIFY(!light(window, u"fullscreen"_s)->isEnabled());
        QVERIFY(!(window.styleMask() & INAppStoreWindow::FullScreen));
        window.showFullScreen();
        QVERIFY(window.styleMask() & INAppStoreWindow::FullScreen);
    }

    void entersAndLeavesFullScreen_data()
    {
        QTest::addColumn<bool>("hides");
        QTest::newRow("the title bar stays") << false;
        QTest::newRow("the title bar is hidden") << true;
    }
    void entersAndLeavesFullScreen()
    {
        QFETCH(bool, hides);
        INAppStoreWindow window;
        RecordingDelegate delegate;
        auto *content = new QWidget;
        window.setContentView(content);
        window.setTitleBarHeight(60);
        window.setHideTitleBarInFullScreen(hides);
        show(window);
        const QRect before = window.geometry();
        window.setDelegate(&delegate);
        light(window, u"fullscreen"_s)->click();
        QVERIFY(window.isFullScreen());
        QCOMPARE(window.titleBarView()->isVisible(), !hides);
        QTRY_COMPARE(content->geometry().top(), hides ? 0 : 60);
        QCOMPARE(light(window, u"fullscreen"_s)->accessibleName(), u"ACCESSIBLE_EXIT_FULLSCREEN"_s);
        const QStringList noise = {u"move"_s, u"resize"_s};
        QCOMPARE(without(delegate.heard, noise), (QStringList{u"willEnter"_s, u"didEnter"_s}));
        delegate.heard.clear();
        QTest::keyClick(&window, Qt::Key_F11);
        QVERIFY(!window.isFullScreen());
        QVERIFY(window.titleBarView()->isVisible());
        QTRY_COMPARE(window.geometry(), before);
        QCOMPARE(content->geometry().top(), 60);
        QCOMPARE(without(delegate.heard, noise), (QStringList{u"willExit"_s, u"didExit"_s}));
    }

    void staysMainUnderAChildWindow()
    {
        INAppStoreWindow window;
        RecordingDelegate delegate;
        show(window);
        QVERIFY(window.isKeyWindow() && window.isMainWindow());
        window.setDelegate(&delegate);
        QWidget child(&window, Qt::Tool);
        child.show();
        child.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&child));
        QTRY_VERIFY(!window.isKeyWindow());
        QVERIFY(window.isMainWindow());
        QCOMPARE(delegate.heard, QStringList{u"resignKey"_s});
        QWidget stranger;
        stranger.show();
        stranger.activateWindow();
        QTRY_VERIFY(!window.isMainWindow());
        QCOMPARE(delegate.heard, (QStringList{u"resignKey"_s, u"resignMain"_s}));
        window.activateWindow();
        QTRY_VERIFY(window.isKeyWindow() && window.isMainWindow());
    }

    void miniaturisesOnADoubleClickWhereTheUserWantsIt_data()
    {
        QTest::addColumn<bool>("preference");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<bool>("miniaturizes");
        QTest::newRow("wanted") << true << QPoint(300, 30) << true;
        QTest::newRow("not wanted") << false << QPoint(300, 30) << false;
        QTest::newRow("on a label in the bar") << true << QPoint(420, 30) << true;
        QTest::newRow("below the bar") << true << QPoint(300, 200) << false;
    }
    void miniaturisesOnADoubleClickWhereTheUserWantsIt()
    {
        QFETCH(bool, preference);
        QFETCH(QPoint, at);
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        window.setDoubleClickPreference(std::make_shared<FixedPreference>(preference));
        auto *label = new QLabel(u"label"_s, window.titleBarView());
        label->setGeometry(400, 10, 100, 40);
        show(window);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, at);
        QVERIFY(!window.isMinimized());
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, at);
        QTEST(window.isMinimized(), "miniaturizes");
    }

    void dragsByTheWholeBar_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<QPoint>("moved");
        QTest::newRow("near the upper edge") << QPoint(300, 8) << QPoint(40, 30);
        QTest::newRow("near the lower edge") << QPoint(300, 55) << QPoint(40, 30);
        QTest::newRow("on a label in the bar") << QPoint(420, 30) << QPoint(40, 30);
        QTest::newRow("on the content") << QPoint(300, 200) << QPoint(0, 0);
    }
    void dragsByTheWholeBar()
    {
        QFETCH(QPoint, press);
        QFETCH(QPoint, moved);
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        auto *label = new QLabel(u"label"_s, window.titleBarView());
        label->setGeometry(400, 10, 100, 40);
        show(window);
        // The platform of this test moves no windows for their owners.
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, press);
        QTest::mouseMove(window.windowHandle(), press + QPoint(2, 1));
        QCOMPARE(window.pos(), QPoint(100, 100)); // not far enough for a drag
        QTest::mouseMove(window.windowHandle(), press + QPoint(40, 30));
        QCOMPARE(window.pos(), QPoint(100, 100) + moved);
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, press);
    }

    void resizesAtItsEdges()
    {
        INAppStoreWindow window;
        window.setMinSize(QSizeF(300, 200));
        show(window);
        const auto drag = [&window](const QPoint &from, const QPoint &to, const QPoint &released) {
            QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, from);
            QTest::mouseMove(window.windowHandle(), to);
            // Where the pointer is in the window that was resized under it.
            QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, released);
        };
        drag(QPoint(598, 398), QPoint(558, 378), QPoint(558, 378));
        QCOMPARE(window.geometry(), QRect(100, 100, 560, 380));
        drag(QPoint(1, 200), QPoint(101, 200), QPoint(1, 200));
        QCOMPARE(window.geometry(), QRect(200, 100, 460, 380));
        drag(QPoint(300, 1), QPoint(300, 371), QPoint(300, 191));
        QCOMPARE(window.geometry(), QRect(200, 280, 460, 200)); // not below the smallest size

        window.setStyleMask(INAppStoreWindow::Titled);
        drag(QPoint(458, 198), QPoint(400, 150), QPoint(400, 150));
        QCOMPARE(window.geometry(), QRect(200, 280, 460, 200));
    }

    void drawsTheTitleBar_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<bool>("main");
        for (const int scale : {1, 2}) {
            QTest::addRow("main, scale %d", scale) << qreal(scale) << true;
            QTest::addRow("not main, scale %d", scale) << qreal(scale) << false;
        }
    }
    void drawsTheTitleBar()
    {
        QFETCH(qreal, scale);
        QFETCH(bool, main);
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        show(window);
        QWidget stranger;
        if (!main) {
            stranger.show();
            stranger.activateWindow();
            QTRY_VERIFY(!window.isMainWindow());
        }
        const QImage picture = testing::pictureOf(window.titleBarView(), scale);
        const auto greyAt = [&](qreal y) { return picture.pixelColor(QPoint(300 * scale, qFloor(y * scale))).red(); };
        const TitleBarGreys greys = titleBarGreys(PlatformGeneration::Newer, main);
        // The noise over a main window's bar shifts a grey by a tenth of its distance to black or white at most.
        const int tolerance = main ? 26 : 2;
        QVERIFY(qAbs(greyAt(3) - qRound(greys.gradientTop * 255)) <= tolerance + 3);
        QVERIFY(qAbs(greyAt(30) - qRound((greys.gradientTop + greys.gradientBottom) / 2 * 255)) <= tolerance + 1);
        QVERIFY(qAbs(greyAt(57) - qRound(greys.gradientBottom * 255)) <= tolerance + 3);
        QCOMPARE(greyAt(59.5), qRound(greys.baselineSeparator * 255));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0); // a round upper corner
        QCOMPARE(picture.pixelColor(0, picture.height() - 1).alpha(), 255);

        window.setShowsBaselineSeparator(false);
        const QColor below = testing::pictureOf(window.titleBarView(), scale).pixelColor(300, picture.height() - 1);
        QVERIFY(below.red() > qRound(greys.baselineSeparator * 255));
    }

    void drawsTheGivenColours()
    {
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        window.setTitleBarStartColor(Qt::red);
        window.setTitleBarEndColor(Qt::red);
        window.setInactiveTitleBarStartColor(Qt::green);
        window.setInactiveTitleBarEndColor(Qt::green);
        window.setBaselineSeparatorColor(Qt::yellow);
        window.setInactiveBaselineSeparatorColor(Qt::cyan);
        show(window);
        QVERIFY(testing::pictureOf(window.titleBarView()).pixelColor(300, 30).red() > 225);
        QCOMPARE(testing::pictureOf(window.titleBarView()).pixelColor(300, 59), QColor(Qt::yellow));
        QWidget stranger;
        stranger.show();
        stranger.activateWindow();
        QTRY_VERIFY(!window.isMainWindow());
        QCOMPARE(testing::pictureOf(window.titleBarView()).pixelColor(300, 30), QColor(Qt::green));
        QCOMPARE(testing::pictureOf(window.titleBarView()).pixelColor(300, 59), QColor(Qt::cyan));
        window.showFullScreen();
        QCOMPARE(testing::pictureOf(window.titleBarView()).pixelColor(300, 30), QColor(Qt::black));
    }

    void drawsThroughTheBlock()
    {
        INAppStoreWindow window;
        show(window);
        bool drawnAsMain = false;
        QRectF drawingRect;
        window.setTitleBarDrawingBlock(
            [&](QPainter *painter, bool asMain, const QRectF &rect, const QPainterPath &clippingPath) {
                drawnAsMain = asMain;
                drawingRect = rect;
                painter->fillPath(clippingPath, Qt::magenta);
            });
        const QImage picture = testing::pictureOf(window.titleBarView());
        QVERIFY(drawnAsMain);
        QCOMPARE(drawingRect, QRectF(0, 0, 600, window.titleBarHeight()));
        QCOMPARE(picture.pixelColor(300, 5), QColor(Qt::magenta));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    }

    void drawsTheTitleWhereItIsShown()
    {
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        window.setTitleTextColor(Qt::blue);
        window.setTitle(u"MMMM"_s);
        show(window);
        const auto bluePixelsIn = [&](const QRect &area) {
            const QImage picture = testing::pictureOf(window.titleBarView());
            int count = 0;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x)
                    count += picture.pixelColor(x, y).blue() - picture.pixelColor(x, y).red() > 100 ? 1 : 0;
            }
            return count;
        };
        const int standard = qRound(INAppStoreWindow::minimumTitleBarHeight());
        const QRect upper(0, 0, 600, standard);
        const QRect whole(0, 0, 600, 60);
        QCOMPARE(bluePixelsIn(whole), 0);
        window.setShowsTitle(true);
        QVERIFY(bluePixelsIn(upper) > 20);
        QCOMPARE(bluePixelsIn(whole), bluePixelsIn(upper));
        window.setVerticallyCenterTitle(true);
        QVERIFY(bluePixelsIn(QRect(250, 20, 100, 20)) > 20);
        QCOMPARE(bluePixelsIn(whole), bluePixelsIn(QRect(250, 20, 100, 20)));
        window.showFullScreen();
        QCOMPARE(bluePixelsIn(whole), 0);
        window.setShowsTitleInFullscreen(true);
        QVERIFY(bluePixelsIn(QRect(0, 0, window.width(), 60)) > 20);
    }

    void isSeenOnWhite()
    {
        INAppStoreWindow window;
        window.setBackgroundColor(Qt::white);
        auto *content = new QWidget;
        content->setAutoFillBackground(true);
        content->setPalette(Qt::white);
        window.setContentView(content);
        show(window);
        const QImage picture = window.grab().toImage();
        for (const QPoint &edge : {QPoint(0, 200), QPoint(599, 200), QPoint(300, 399), QPoint(0, 399)})
            QVERIFY(picture.pixelColor(edge).red() < 200);
        QCOMPARE(picture.pixelColor(1, 200), QColor(Qt::white));
        window.showFullScreen();
        QCOMPARE(window.grab().toImage().pixelColor(0, 200), QColor(Qt::white));
    }
};

QTEST_MAIN(AppStoreWindowTest)
#include "AppStoreWindowTest.moc"
