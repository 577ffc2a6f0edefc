// SPDX-License-Identifier: MIT
#include "PopoverScene.h"
#include "tests/doubles/DrivenClock.h"
#include "widgets/popover/PopoverAccessible.h"
#include "widgets/popover/ViewController.h"
#include "widgets/style/FrameClock.h"

#include <QSignalSpy>
#include <QWindow>

Q_DECLARE_METATYPE(QAccessible::Role)

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class PopoverTest : public QObject
{
    Q_OBJECT

private:
    /// Lets time pass for the animations, including those just started.
    static void pass(DrivenClock &clock, int milliseconds)
    {
        // One round registers a started animation, the next one starts its driver.
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        clock.pass(milliseconds);
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

    void standsAboveItsParentAsItsChild()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        QVERIFY(!popover.popoverWindow()->parentWindow());
        // Any widget of the parent window may represent it.
        popover.displayPopoverInWindow(scene.button, QPointF(200, 130));
        QCOMPARE(popover.popoverWindow()->parentWindow(), &scene.window);
        QCOMPARE(popover.popoverWindow()->windowHandle()->transientParent(), scene.window.windowHandle());
        popover.closePopover();
        QVERIFY(!popover.popoverWindow()->parentWindow());
    }

    void takesItsContentLater()
    {
        SFBPopover popover;
        QVERIFY(!popover.contentViewController());
        QVERIFY(!popover.popoverWindow()->contentView());
        QPointer<QWidget> first = plainContent();
        popover.setContentViewController(new ViewController(first));
        QCOMPARE(popover.popoverWindow()->contentView(), first);
        QCOMPARE(popover.popoverWindow()->minSize(), QSizeF(200, 100));
        QWidget *second = plainContent(QSize(80, 60));
        popover.setContentViewController(new ViewController(second));
        QVERIFY(!first);
        QCOMPARE(popover.popoverWindow()->contentView(), second);
        QCOMPARE(popover.popoverWindow()->frame().size(), QSizeF(84, 80));
    }

    void canBeSeenWithTheFirstFrame()
    {
        DrivenClock clock;
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        pass(clock, FrameClock::interval.count());
        QVERIFY(popover.popoverWindow()->alphaValue() >= 1.0 / 256);
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
        DrivenClock clock;
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        pass(clock, time);
        // The platform's curve is solved to four digits.
        const qreal alpha = popover.popoverWindow()->alphaValue();
        QVERIFY2(qAbs(alpha - *static_cast<qreal *>(QTest::qData("alpha", QMetaType::Double))) < 1e-3,
                 qPrintable(QString::number(alpha)));
    }

    void announcesOnceThatItCloses()
    {
        DrivenClock clock;
        Scene scene;
        SFBPopover popover(plainContent());
        const QSignalSpy closing(&popover, &SFBPopover::closing);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        pass(clock, 250);
        QCOMPARE(closing.count(), 0);
        popover.closePopover();
        QVERIFY(popover.isVisible());
        QCOMPARE(closing.count(), 1);
        pass(clock, 250);
        QVERIFY(!popover.isVisible());
        QCOMPARE(closing.count(), 1);
    }

    void ignoresADisplayWhileItFadesOut()
    {
        DrivenClock clock;
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
        popover.closePopover(); // also ignored: the fade continues
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
        DrivenClock clock;
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
