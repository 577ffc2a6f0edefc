// SPDX-License-Identifier: MIT
#include "tests/widgets/DrivenClock.h"
#include "tests/widgets/Pointer.h"
#include "widgets/PopoverAccessible.h"
#include "widgets/PopoverKeyStatus.h"
#include "widgets/PopoverPath.h"
#include "widgets/SFBPopover.h"
#include "widgets/ScreenCoordinates.h"
#include "widgets/ViewController.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

Q_DECLARE_METATYPE(lumora::PopoverPosition)
Q_DECLARE_METATYPE(QAccessible::Role)

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QWidget *plainContent(const QSize &size = QSize(200, 100))
{
    auto *content = new QWidget;
    content->resize(size);
    return content;
}

} // namespace

class PopoverTest : public QObject
{
    Q_OBJECT

private:
    /// A window of 400 × 300 at (200, 100) with a button in its middle and a line to type into above it.
    struct Scene
    {
        Scene()
        {
            window.setGeometry(200, 100, 400, 300);
            button = new QPushButton(u"button"_s, &window);
            button->setGeometry(150, 130, 100, 40);
            field = new QLineEdit(&window);
            field->setGeometry(150, 20, 100, 30);
            window.show();
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            button->setFocus();
        }
        QWidget window;
        QPushButton *button = nullptr;
        QLineEdit *field = nullptr;
    };

    /// The arrow's tip in Qt's screen coordinates.
    static QPointF tipOf(const SFBPopover &popover)
    {
        return flippedOnScreen(popover.popoverWindow()->attachmentPoint());
    }

    /// Lets time pass for the animations, those just started included.
    static void pass(testing::DrivenClock &clock, int milliseconds)
    {
        // One round takes a started animation up, the next one starts its driver.
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        clock.pass(milliseconds);
    }

    /// Types the way the platform does: to the window, which finds its receiver.
    static void type(const QWidget *window, const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(window->windowHandle(), character.toLatin1());
    }

    /// A content with one control in it.
    static QWidget *contentWith(QWidget *control)
    {
        QWidget *content = plainContent();
        control->setParent(content);
        control->setGeometry(10, 10, 100, 30);
        return content;
    }

private slots:
    void startsWithTheDefaults()
    {
        const SFBPopover popover;
        QCOMPARE(popover.position(), PopoverPosition::Below);
        QCOMPARE(popover.distance(), 0.0);
        QCOMPARE(popover.borderColor(), QColor(Qt::white));
        QCOMPARE(popover.borderWidth(), 2.0);
        QCOMPARE(popover.cornerRadius(), 8.0);
        QCOMPARE(popover.drawsArrow(), true);
        QCOMPARE(popover.arrowWidth(), 20.0);
        QCOMPARE(popover.arrowHeight(), 16.0);
        QCOMPARE(popover.drawRoundCornerBesideArrow(), true);
        QCOMPARE(popover.viewMargin(), 0.0);
        QCOMPARE(popover.backgroundColor(), QColor::fromRgbF(0.1F, 0.1F, 0.1F, 0.75F));
        QCOMPARE(popover.movable(), false);
        QCOMPARE(popover.resizable(), false);
        QCOMPARE(popover.animates(), true);
        QCOMPARE(popover.closesWhenPopoverResignsKey(), false);
        QCOMPARE(popover.closesWhenApplicationBecomesInactive(), false);
        QCOMPARE(popover.isVisible(), false);
        QVERIFY(popover.popoverWindow()->canBecomeKeyWindow());
        QVERIFY(!popover.popoverWindow()->canBecomeMainWindow());
    }

    void liesBelowThePointWithItsTipOnIt()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        // The base point (200, 130) lies 170 below the window's upper edge, the middle of the button's lower edge.
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QVERIFY(popover.isVisible());
        QCOMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(200, 170))));
        const QRectF frame = flippedOnScreen(popover.popoverWindow()->frame());
        QCOMPARE(frame, QRectF(scene.window.mapToGlobal(QPoint(200 - 102, 170)), QSizeF(204, 120)));
        QWidget *content = popover.popoverWindow()->contentView();
        QCOMPARE(content->size(), QSize(200, 100));
        QCOMPARE(content->mapToGlobal(QPoint()), frame.topLeft().toPoint() + QPoint(2, 18));
    }

    void ignoresASecondDisplayButMovesWhenTold()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        const QRectF before = popover.popoverWindow()->frame();
        popover.displayPopoverInWindow(&scene.window, QPointF(100, 100));
        QCOMPARE(popover.popoverWindow()->frame(), before);
        popover.movePopoverToPoint(QPointF(100, 100));
        QCOMPARE(popover.popoverWindow()->frame(), before.translated(-100, -30));
    }

    void forwardsEverySetting()
    {
        SFBPopover popover(plainContent());
        popover.setDistance(3);
        popover.setBorderColor(Qt::red);
        popover.setBorderWidth(5);
        popover.setCornerRadius(0);
        popover.setDrawsArrow(false);
        popover.setArrowWidth(30);
        popover.setArrowHeight(6);
        popover.setDrawRoundCornerBesideArrow(false);
        popover.setViewMargin(7);
        popover.setBackgroundColor(Qt::blue);
        popover.setMovable(true);
        popover.setResizable(true);
        popover.setPosition(PopoverPosition::Right);
        const SFBPopoverWindowFrame *frame = popover.popoverWindow()->popoverWindowFrame();
        QCOMPARE(frame->distance(), 3.0);
        QCOMPARE(frame->borderColor(), QColor(Qt::red));
        QCOMPARE(frame->borderWidth(), 5.0);
        QCOMPARE(frame->cornerRadius(), 0.0);
        QCOMPARE(frame->drawsArrow(), false);
        QCOMPARE(frame->arrowWidth(), 30.0);
        QCOMPARE(frame->arrowHeight(), 6.0);
        QCOMPARE(frame->drawRoundCornerBesideArrow(), false);
        QCOMPARE(frame->viewMargin(), 7.0);
        QCOMPARE(frame->backgroundColor(), QColor(Qt::blue));
        QCOMPARE(frame->movable(), true);
        QCOMPARE(frame->resizable(), true);
        QCOMPARE(frame->popoverPosition(), PopoverPosition::Right);
    }

    void takesItsContentsSize()
    {
        SFBPopover popover(plainContent(QSize(120, 80)));
        QCOMPARE(popover.popoverWindow()->minSize(), QSizeF(120, 80));
        QCOMPARE(popover.popoverWindow()->frame().size(), QSizeF(124, 100));
        QCOMPARE(popover.contentViewController()->view(), popover.popoverWindow()->contentView());
        // Resized while hidden: shown in its new size.
        popover.popoverWindow()->contentView()->resize(150, 90);
        Scene scene;
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QCOMPARE(popover.popoverWindow()->frame().size(), QSizeF(154, 110));
        QCOMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(200, 170))));
    }

    void keepsTheContentWhenTheFrameChanges_data()
    {
        QTest::addColumn<PopoverPosition>("position");
        for (int position = 0; position < 12; ++position)
            QTest::addRow("position %d", position) << static_cast<PopoverPosition>(position);
    }
    void keepsTheContentWhenTheFrameChanges()
    {
        QFETCH(PopoverPosition, position);
        SFBPopover popover(plainContent());
        SFBPopoverWindow *window = popover.popoverWindow();
        popover.setPosition(position);
        window->setFrameOrigin(QPointF(300, 300));
        const QRectF content = window->contentRectForFrameRect(window->frame());
        popover.setDistance(4);
        QCOMPARE(window->contentRectForFrameRect(window->frame()), content);
        popover.setBorderWidth(5);
        QCOMPARE(window->contentRectForFrameRect(window->frame()), content);
        popover.setArrowHeight(30);
        QCOMPARE(window->contentRectForFrameRect(window->frame()), content);
        popover.setViewMargin(8);
        QCOMPARE(window->contentRectForFrameRect(window->frame()), content);
        QCOMPARE(window->frame(), window->frameRectForContentRect(content));
    }

    void keepsTheTipWhenThePositionChanges_data() { keepsTheContentWhenTheFrameChanges_data(); }
    void keepsTheTipWhenThePositionChanges()
    {
        QFETCH(PopoverPosition, position);
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        const QPointF tip = tipOf(popover);
        popover.setPosition(position);
        QCOMPARE(tipOf(popover), tip);
        QCOMPARE(popover.popoverWindow()->contentView()->size(), QSize(200, 100));
        // On screen the balloon lies on the side that the position names.
        const QRect content(popover.popoverWindow()->contentView()->mapToGlobal(QPoint()), QSize(200, 100));
        const int side = static_cast<int>(position);
        if (side == 0 || side == 4 || side == 5)
            QCOMPARE(content.right() + 1, qRound(tip.x()) - 18);
        else if (side == 2 || side == 6 || side == 7)
            QCOMPARE(content.left(), qRound(tip.x()) + 18);
        else if (side == 1 || side >= 10)
            QCOMPARE(content.top(), qRound(tip.y()) + 18);
        else
            QCOMPARE(content.bottom() + 1, qRound(tip.y()) - 18);
    }

    void choosesItsPositionWhenAsked()
    {
        Scene scene;
        const QRect screen = scene.window.screen()->availableGeometry();
        scene.window.move(200, screen.bottom() - 320);
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        QCOMPARE(popover.bestPositionInWindow(&scene.window, QPointF(200, 130)), PopoverPosition::Below);
        QCOMPARE(popover.bestPositionInWindow(&scene.window, QPointF(200, 10)), PopoverPosition::RightArrowNearBottom);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 10));
        QCOMPARE(popover.position(), PopoverPosition::Below);
        popover.closePopover();
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 10), true);
        QCOMPARE(popover.position(), PopoverPosition::RightArrowNearBottom);
        QCOMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(200, 290))));
    }

    void worksWithoutAParent()
    {
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(nullptr, QPointF(300, 400));
        QCOMPARE(popover.popoverWindow()->attachmentPoint(), QPointF(300, 400));
        QVERIFY(popover.isVisible());
    }

    void fadesIn_data()
    {
        QTest::addColumn<int>("time");
        QTest::addColumn<qreal>("alpha");
        // The cubic curve with the handles (0.42, 0) and (0.58, 1), solved for the time by bisection.
        QTest::newRow("the start") << 0 << 0.0;
        QTest::newRow("a fifth") << 50 << 0.081660;
        QTest::newRow("two fifths") << 100 << 0.331884;
        QTest::newRow("the middle") << 125 << 0.5;
        QTest::newRow("four fifths") << 200 << 0.918340;
        QTest::newRow("the end") << 250 << 1.0;
        QTest::newRow("long after") << 1000 << 1.0;
    }
    void fadesIn()
    {
        QFETCH(int, time);
        testing::DrivenClock clock;
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        pass(clock, time);
        // The platform's curve is solved to four digits.
        const qreal alpha = popover.popoverWindow()->alphaValue();
        QVERIFY2(qAbs(alpha - *static_cast<qreal *>(QTest::qData("alpha", QMetaType::Double))) < 1e-3,
                 qPrintable(QString::number(alpha)));
    }

    void ignoresADisplayWhileItFadesOut()
    {
        testing::DrivenClock clock;
        Scene scene;
        SFBPopover popover(plainContent());
        const QSignalSpy closed(&popover, &SFBPopover::closed);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        pass(clock, 250);
        popover.closePopover();
        pass(clock, 125);
        QVERIFY(popover.isVisible());
        QVERIFY(qAbs(popover.popoverWindow()->alphaValue() - 0.5) < 1e-3);
        const QRectF frame = popover.popoverWindow()->frame();
        popover.displayPopoverInWindow(&scene.window, QPointF(50, 50));
        popover.closePopover(); // ignored as well: the fade goes on where it was
        QCOMPARE(popover.popoverWindow()->frame(), frame);
        QVERIFY(qAbs(popover.popoverWindow()->alphaValue() - 0.5) < 1e-3);
        pass(clock, 124);
        QVERIFY(popover.isVisible());
        QCOMPARE(closed.count(), 0);
        pass(clock, 1);
        QVERIFY(!popover.isVisible());
        QCOMPARE(closed.count(), 1);
        QCOMPARE(popover.popoverWindow()->alphaValue(), 1.0);
        popover.displayPopoverInWindow(&scene.window, QPointF(50, 50));
        QVERIFY(popover.isVisible());
        QCOMPARE(popover.popoverWindow()->alphaValue(), 0.0);
    }

    void closesFromHalfwayIn()
    {
        testing::DrivenClock clock;
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        pass(clock, 125);
        popover.closePopover();
        QVERIFY(qAbs(popover.popoverWindow()->alphaValue() - 0.5) < 1e-3);
        pass(clock, 125);
        QVERIFY(qAbs(popover.popoverWindow()->alphaValue() - 0.25) < 1e-3);
        pass(clock, 125);
        QVERIFY(!popover.isVisible());
    }

    void showsAndClosesAtOnceWithoutAnimation()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        popover.closePopover();
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QCOMPARE(popover.popoverWindow()->alphaValue(), 1.0);
        popover.closePopover();
        QVERIFY(!popover.isVisible());
    }

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

        // A press in the parent gives its keys back at once, even where the popover stays.
        popover.setClosesWhenPopoverResignsKey(false);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QTest::mouseClick(scene.window.windowHandle(), Qt::LeftButton, {}, QPoint(200, 35));
        type(&scene.window, u"!"_s);
        QCOMPARE(scene.field->text(), u"back!"_s);
        QVERIFY(popover.isVisible());
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

    void followsItsParent()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        scene.window.move(260, 140);
        QCOMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(200, 170))));
        // Resized: it goes where its control has gone.
        scene.window.resize(500, 400);
        scene.button->move(300, 230);
        QTRY_COMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(350, 270))));
        QVERIFY(popover.isVisible());
    }

    void followsThePointWhereNoControlIsNear()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(60, 60));
        scene.window.resize(500, 400);
        QCoreApplication::processEvents();
        QCOMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(60, 240))));
    }

    void outlivesItsParent()
    {
        auto scene = std::make_unique<Scene>();
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene->window, QPointF(200, 130));
        scene.reset();
        QVERIFY(!popover.isVisible());
        Scene another;
        popover.displayPopoverInWindow(&another.window, QPointF(200, 130));
        QVERIFY(popover.isVisible());
    }

    void dragsTheBalloon_data()
    {
        QTest::addColumn<bool>("movable");
        QTest::addColumn<bool>("resizable");
        QTest::addColumn<QPoint>("press"); // in the frame, from its upper left corner
        QTest::addColumn<QPoint>("travel");
        QTest::addColumn<QRect>("change"); // of the frame on screen: moved by, grown by

        // The frame is 204 × 120: an arrow of 16 points above the balloon. The content lets presses through.
        QTest::newRow("movable") << true << false << QPoint(100, 60) << QPoint(30, 20) << QRect(30, 20, 0, 0);
        QTest::newRow("fixed") << false << false << QPoint(100, 60) << QPoint(30, 20) << QRect(0, 0, 0, 0);
        QTest::newRow("beside the arrow") << true << true << QPoint(10, 5) << QPoint(30, 20) << QRect(0, 0, 0, 0);
        QTest::newRow("resizable, lower right")
            << false << true << QPoint(190, 110) << QPoint(30, 20) << QRect(0, 0, 30, 20);
        QTest::newRow("resizable, upper left")
            << false << true << QPoint(10, 30) << QPoint(-30, -20) << QRect(-30, -20, 30, 20);
        QTest::newRow("resizable, not below the smallest")
            << false << true << QPoint(190, 110) << QPoint(-100, -100) << QRect(0, 0, -4, -20);
        QTest::newRow("resizable, not beyond the largest")
            << false << true << QPoint(190, 110) << QPoint(500, 500) << QRect(0, 0, 96, 80);
        QTest::newRow("both, inside") << true << true << QPoint(100, 60) << QPoint(30, 20) << QRect(30, 20, 0, 0);
        QTest::newRow("both, at the border")
            << true << true << QPoint(199, 115) << QPoint(30, 20) << QRect(0, 0, 30, 20);
    }
    void dragsTheBalloon()
    {
        QFETCH(bool, movable);
        QFETCH(bool, resizable);
        QFETCH(QPoint, press);
        QFETCH(QPoint, travel);
        QFETCH(QRect, change);
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        popover.setMovable(movable);
        popover.setResizable(resizable);
        popover.popoverWindow()->setMaxSize(QSizeF(300, 200));
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        const QRect before = flippedOnScreen(popover.popoverWindow()->frame()).toRect();
        SFBPopoverWindowFrame *view = popover.popoverWindow()->popoverWindowFrame();
        const QPoint start = press + QPoint(SFBPopoverWindowFrame::shadowMargin, SFBPopoverWindowFrame::shadowMargin);
        const QPoint global = view->mapToGlobal(start);
        const auto send = [&](QEvent::Type type, const QPoint &at, Qt::MouseButtons buttons) {
            QMouseEvent event(type, view->mapFromGlobal(at), at, Qt::LeftButton, buttons, {});
            QCoreApplication::sendEvent(view, &event);
        };
        send(QEvent::MouseButtonPress, global, Qt::LeftButton);
        send(QEvent::MouseMove, global + travel / 2, Qt::LeftButton);
        send(QEvent::MouseMove, global + travel, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, global + travel, Qt::NoButton);
        send(QEvent::MouseMove, global + 2 * travel, Qt::NoButton);
        const QRect after = flippedOnScreen(popover.popoverWindow()->frame()).toRect();
        QCOMPARE(after.topLeft() - before.topLeft(), change.topLeft());
        QCOMPARE(QPoint(after.width() - before.width(), after.height() - before.height()),
                 QPoint(change.width(), change.height()));
    }

    void drawsTheBalloon_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::newRow("scale 1") << 1.0;
        QTest::newRow("scale 2") << 2.0;
    }
    void drawsTheBalloon()
    {
        QFETCH(qreal, scale);
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        popover.setBorderColor(Qt::red);
        popover.setBackgroundColor(QColor(0, 0, 255, 128));
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        const QImage picture = testing::pictureOf(popover.popoverWindow(), scale);
        // In points from the frame's upper left corner: 204 × 120 with the tip at (102, 0).
        const auto at = [&](qreal x, qreal y) {
            const qreal margin = SFBPopoverWindowFrame::shadowMargin;
            return picture.pixelColor(QPoint(qFloor((x + margin) * scale), qFloor((y + margin) * scale)));
        };
        QCOMPARE(at(102, 1), QColor(Qt::red));         // just inside the tip
        QCOMPARE(at(102, 60), QColor(0, 0, 255, 128)); // the balloon, with no shadow in it
        QCOMPARE(at(2, 60), QColor(Qt::red));          // the border is centred on the content's edge
        QCOMPARE(at(1.5, 60), QColor(Qt::red));
        QVERIFY(at(4, 60) == QColor(0, 0, 255, 128));
        QCOMPARE(at(102, 118), QColor(Qt::red));
        const QColor shadow = at(102, 124);
        QVERIFY2(shadow.alpha() > 20 && shadow.alpha() < 90, qPrintable(QString::number(shadow.alpha())));
        QVERIFY(at(102, 124).alpha() > at(102, 140).alpha()); // it fades outwards
        QCOMPARE(at(-23, -23).alpha(), 0);                    // and ends before the window does
        QVERIFY(at(2.2, 18.2).alpha() < 200);                 // a round corner
    }

    void tellsScreenReaders_data()
    {
        QTest::addColumn<bool>("withButton");
        QTest::addColumn<QAccessible::Role>("role");
        QTest::newRow("a message") << false << QAccessible::AlertMessage;
        QTest::newRow("something to operate") << true << QAccessible::Dialog;
    }
    void tellsScreenReaders()
    {
        QFETCH(bool, withButton);
        QWidget *content = withButton ? contentWith(new QPushButton) : plainContent();
        content->setAccessibleName(u"Saved"_s);
        content->setAccessibleDescription(u"Twelve icons"_s);
        SFBPopover popover(content);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(popover.popoverWindow());
        QVERIFY(accessible);
        QTEST(accessible->role(), "role");
        QCOMPARE(accessible->text(QAccessible::Name), u"Saved"_s);
        QCOMPARE(accessible->text(QAccessible::Description), u"Twelve icons"_s);
    }
};

QTEST_MAIN(PopoverTest)
#include "PopoverTest.moc"
