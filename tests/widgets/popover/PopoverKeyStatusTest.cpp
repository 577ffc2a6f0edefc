// SPDX-License-Identifier: MIT
#include "widgets/popover/PopoverKeyStatus.h"
#include "PopoverScene.h"
#include "widgets/popover/ViewController.h"

#include <QGuiApplication>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class PopoverKeyStatusTest : public QObject
{
    Q_OBJECT

private:
    /// Types like the platform: into the window, which finds the receiver.
    static void type(const QWidget *window, const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(window->windowHandle(), character.toLatin1());
    }

private slots:
    void closesOnTheConfiguredEventsOnly_data()
    {
        QTest::addColumn<bool>("resignsKey");
        QTest::addColumn<bool>("becomesInactive");
        QTest::addColumn<QString>("event");
        QTest::addColumn<bool>("closes");

        QTest::newRow("parent clicked, flag set") << true << false << u"press parent"_s << true;
        QTest::newRow("parent clicked, flag not set") << false << true << u"press parent"_s << false;
        QTest::newRow("popover clicked") << true << true << u"press popover"_s << false;
        QTest::newRow("another window activated, flag set") << true << false << u"other window"_s << true;
        QTest::newRow("another window activated, flag not set") << false << true << u"other window"_s << false;
        QTest::newRow("application inactive, flag set") << false << true << u"inactive"_s << true;
        QTest::newRow("application inactive, flag not set") << false << false << u"inactive"_s << false;
        QTest::newRow("an inactive application has no key window") << true << false << u"inactive"_s << true;
        QTest::newRow("parent hidden") << false << false << u"hide parent"_s << true;
        QTest::newRow("typing in the parent") << true << true << u"typing"_s << false;
        QTest::newRow("escape") << false << false << u"escape"_s << true;
    }
    void closesOnTheConfiguredEventsOnly()
    {
        QFETCH(bool, resignsKey);
        QFETCH(bool, becomesInactive);
        QFETCH(QString, event);
        QFETCH(bool, closes);
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        popover.setClosesWhenPopoverResignsKey(resignsKey);
        popover.setClosesWhenApplicationBecomesInactive(becomesInactive);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QVERIFY(popover.isKeyWindow());

        QWidget other;
        if (event == u"press parent") {
            QTest::mouseClick(scene.window.windowHandle(), Qt::LeftButton, {}, QPoint(20, 250));
        } else if (event == u"press popover") {
            QTest::mouseClick(popover.popoverWindow()->windowHandle(), Qt::LeftButton, {}, QPoint(80, 80));
        } else if (event == u"other window") {
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        } else if (event == u"inactive") {
            emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
            emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        } else if (event == u"hide parent") {
            scene.window.hide();
        } else if (event == u"typing") {
            QTest::keyClick(scene.window.windowHandle(), Qt::Key_A);
        } else {
            QTest::keyClick(scene.window.windowHandle(), Qt::Key_Escape);
        }
        QCOMPARE(popover.isVisible(), !closes);
    }

    void anotherWindowOfItsOwnDoesNotTakeTheKeyFromIt()
    {
        Scene scene;
        SFBPopover popover(contentWith(new QLineEdit));
        popover.setAnimates(false);
        popover.setClosesWhenPopoverResignsKey(true);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QVERIFY(QTest::qWaitForWindowActive(popover.popoverWindow()));
        QWidget dialog(popover.popoverWindow(), Qt::Dialog);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(popover.isVisible());
    }

    void wantsTheKeyboardOnlyWhenItMust_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("parentFocus");
        QTest::addColumn<bool>("wants");

        QTest::newRow("nothing to operate") << u"plain"_s << u"button"_s << false;
        QTest::newRow("a button, nobody types") << u"button"_s << u"button"_s << true;
        QTest::newRow("a button, somebody types") << u"button"_s << u"field"_s << false;
        QTest::newRow("a field, somebody types") << u"field"_s << u"field"_s << true;
        QTest::newRow("a disabled field") << u"disabled"_s << u"button"_s << false;
    }
    void wantsTheKeyboardOnlyWhenItMust()
    {
        QFETCH(QString, content);
        QFETCH(QString, parentFocus);
        QFETCH(bool, wants);
        Scene scene;
        (parentFocus == u"field" ? static_cast<QWidget *>(scene.field) : scene.button)->setFocus();
        QWidget *view = content == u"plain"    ? plainContent()
                        : content == u"button" ? contentWith(new QPushButton)
                                               : contentWith(new QLineEdit);
        if (content == u"disabled")
            view->findChild<QLineEdit *>()->setEnabled(false);
        SFBPopover popover(view);
        popover.setAnimates(false);
        QCOMPARE(wantsKeyboard(view, &scene.window), wants);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QTRY_COMPARE(popover.popoverWindow()->isActiveWindow(), wants);
        QCOMPARE(scene.window.isActiveWindow(), !wants);
        popover.closePopover();
        QTRY_VERIFY(scene.window.isActiveWindow());
    }

    void handsTheParentsKeysOnWhereItCannotHaveTheKeyboard()
    {
        Scene scene;
        scene.field->setFocus();
        auto *field = new QLineEdit;
        PopoverPlatform platform = popoverPlatform(u"wayland"_s);
        SFBPopover popover(new ViewController(contentWith(field)), nullptr, platform);
        popover.setAnimates(false);
        popover.setClosesWhenPopoverResignsKey(true);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QCOMPARE(QApplication::focusWidget(), field);
        type(&scene.window, u"lumora"_s);
        QCOMPARE(field->text(), u"lumora"_s);
        QCOMPARE(scene.field->text(), QString());
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Escape);
        QVERIFY(!popover.isVisible());
        QCOMPARE(QApplication::focusWidget(), scene.field);
        type(&scene.window, u"back"_s);
        QCOMPARE(scene.field->text(), u"back"_s);
        QCOMPARE(field->text(), u"lumora"_s);

        // A press in the parent returns its keys at once, even if the popover stays.
        popover.setClosesWhenPopoverResignsKey(false);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QTest::mouseClick(scene.window.windowHandle(), Qt::LeftButton, {}, QPoint(200, 35));
        type(&scene.window, u"!"_s);
        QCOMPARE(scene.field->text(), u"back!"_s);
        QVERIFY(popover.isVisible());
    }

    void keepsItsKeyStatusInAnotherPosition_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<bool>("parentPressed");
        for (const QString &platform : {u"xcb"_s, u"wayland"_s}) {
            QTest::addRow("%s, it is key", qPrintable(platform)) << platform << false;
            QTest::addRow("%s, it is not", qPrintable(platform)) << platform << true;
        }
    }
    void keepsItsKeyStatusInAnotherPosition()
    {
        QFETCH(QString, platform);
        QFETCH(bool, parentPressed);
        Scene scene;
        scene.field->setFocus();
        auto *field = new QLineEdit;
        SFBPopover popover(new ViewController(contentWith(field)), nullptr, popoverPlatform(platform));
        popover.setAnimates(false);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QTRY_COMPARE(QApplication::focusWidget(), field);
        if (parentPressed) {
            // This platform activates every window that is shown, a little later.
            QCoreApplication::processEvents();
            QTest::mouseClick(scene.window.windowHandle(), Qt::LeftButton, {}, QPoint(200, 35));
            QTRY_COMPARE(QApplication::focusWidget(), scene.field);
        }
        const QPointF tip = tipOf(popover);
        popover.setPosition(PopoverPosition::Above);
        QCoreApplication::processEvents();
        QVERIFY(popover.isVisible());
        QCOMPARE(tipOf(popover), tip);
        QCOMPARE(popover.isKeyWindow(), !parentPressed);
        QCOMPARE(QApplication::focusWidget(), parentPressed ? scene.field : field);
    }

    void choosesItsWindowTypeByPlatform()
    {
        const PopoverPlatform wayland = popoverPlatform(u"wayland"_s);
        QCOMPARE(wayland.windowFlags & Qt::WindowType_Mask, Qt::ToolTip);
        QVERIFY(wayland.windowFlags & Qt::FramelessWindowHint);
        QVERIFY(!wayland.takesKeyboard && !wayland.blendsWindows && !wayland.movesWhileShown);
        QCOMPARE(popoverPlatform(u"wayland-egl"_s).windowFlags, wayland.windowFlags);
        const PopoverPlatform x11 = popoverPlatform(u"xcb"_s);
        QCOMPARE(x11.windowFlags & Qt::WindowType_Mask, Qt::Tool);
        QVERIFY(x11.takesKeyboard && x11.blendsWindows && x11.movesWhileShown);
    }
};

QTEST_MAIN(PopoverKeyStatusTest)
#include "PopoverKeyStatusTest.moc"
