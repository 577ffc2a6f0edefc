// SPDX-License-Identifier: MIT
#include "WindowScene.h"
#include "tests/doubles/Pointer.h"
#include "widgets/window/INWindowButtonGroup.h"

#include <QMenu>
#include <QWindow>

#include <algorithm>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

namespace
{

/// Records its notifications.
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

class AppStoreWindowStateTest : public QObject
{
    Q_OBJECT

private:
    static QStringList without(QStringList heard, const QStringList &noise)
    {
        for (const QString &word : noise)
            heard.removeAll(word);
        return heard;
    }

private slots:
    void asksItsDelegateBeforeItCloses()
    {
        INAppStoreWindow window;
        RecordingDelegate delegate;
        window.setDelegate(&delegate);
        QCOMPARE(window.delegate(), &delegate);
        show(window);
        delegate.heard.clear();
        delegate.allowsClosing = false;
        light(window, "close")->click();
        QVERIFY(window.isVisible());
        QCOMPARE(delegate.heard, QStringList{u"shouldClose"_s});
        delegate.allowsClosing = true;
        light(window, "close")->click();
        QVERIFY(!window.isVisible());
        QCOMPARE(delegate.heard.mid(1, 2), (QStringList{u"shouldClose"_s, u"willClose"_s}));
    }

    void miniaturisesAndZooms()
    {
        INAppStoreWindow window;
        RecordingDelegate delegate;
        show(window);
        window.setDelegate(&delegate);
        light(window, "minimize")->click();
        QVERIFY(window.isMinimized());
        QVERIFY(delegate.heard.contains(u"miniaturize"_s));
        window.showNormal();
        QVERIFY(delegate.heard.contains(u"deminiaturize"_s));
        light(window, "zoom")->click();
        QVERIFY(window.isMaximized());
        light(window, "zoom")->click();
        QVERIFY(!window.isMaximized());
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
        light(window, "fullscreen")->click();
        QVERIFY(window.isFullScreen());
        QCOMPARE(window.titleBarView()->isVisible(), !hides);
        QTRY_COMPARE(content->geometry().top(), hides ? 0 : 60);
        QCOMPARE(light(window, "fullscreen")->accessibleName(), u"ACCESSIBLE_EXIT_FULLSCREEN"_s);
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

    void offersItsButtonsToTheKeyboard_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("minimise") << u"ACCESSIBLE_MINIMIZE"_s << u"minimized"_s;
        QTest::newRow("zoom") << u"ACCESSIBLE_ZOOM"_s << u"maximized"_s;
        QTest::newRow("full screen") << u"ACCESSIBLE_FULLSCREEN"_s << u"full screen"_s;
        QTest::newRow("close") << u"ACCESSIBLE_CLOSE"_s << u"closed"_s;
    }
    void offersItsButtonsToTheKeyboard()
    {
        QFETCH(QString, text);
        INAppStoreWindow window;
        show(window);
        QTest::keyClick(window.windowHandle(), Qt::Key_Space, Qt::AltModifier);
        auto *menu = window.findChild<QMenu *>(u"windowMenu"_s);
        QVERIFY(menu && menu->isVisible());
        QCOMPARE(menu->activeAction(), menu->actions().constFirst());
        const auto actions = menu->actions();
        const auto found =
            std::find_if(actions.cbegin(), actions.cend(), [&](const QAction *each) { return each->text() == text; });
        QVERIFY(found != actions.cend());
        // From the first entry down to it, as a user would.
        for (auto action = actions.cbegin(); action != found; ++action) {
            if (!(*action)->isSeparator())
                QTest::keyClick(menu, Qt::Key_Down);
        }
        QTest::keyClick(menu, Qt::Key_Return);
        const QString outcome = !window.isVisible()     ? u"closed"_s
                                : window.isMinimized()  ? u"minimized"_s
                                : window.isMaximized()  ? u"maximized"_s
                                : window.isFullScreen() ? u"full screen"_s
                                                        : u"nothing"_s;
        QTEST(outcome, "outcome");
        QTRY_VERIFY(!window.findChild<QMenu *>(u"windowMenu"_s));
    }

    void offersOnlyWhatTheWindowMayDo()
    {
        INAppStoreWindow window;
        window.setStyleMask(INAppStoreWindow::Titled | INAppStoreWindow::Closable);
        show(window);
        window.showWindowMenu();
        QStringList enabled;
        const auto actions = window.findChild<QMenu *>(u"windowMenu"_s)->actions();
        for (const QAction *action : actions) {
            if (action->isEnabled() && !action->isSeparator())
                enabled << action->text();
        }
        QCOMPARE(enabled, QStringList{u"ACCESSIBLE_CLOSE"_s});
    }

    void forgetsTheMouseWhenItIsMiniaturised()
    {
        INAppStoreWindow window;
        show(window);
        enter(light(window, "zoom"));
        QVERIFY(light(window, "close")->group()->shouldDisplayRollOver());
        window.miniaturize();
        QVERIFY(!light(window, "close")->group()->shouldDisplayRollOver());
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
};

QTEST_MAIN(AppStoreWindowStateTest)
#include "AppStoreWindowStateTest.moc"
