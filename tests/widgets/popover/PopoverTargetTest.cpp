// SPDX-License-Identifier: MIT
#include "PopoverScene.h"

#include <QScreen>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

/// A popover that points at a control.
class PopoverTargetTest : public QObject
{
    Q_OBJECT

private:
    static QRect usableArea() { return QGuiApplication::primaryScreen()->availableGeometry(); }
    static QRect contentOnScreen(const SFBPopover &popover)
    {
        const QWidget *content = popover.popoverWindow()->contentView();
        return QRect(content->mapToGlobal(QPoint()), content->size());
    }

private slots:
    void pointsAtTheControl_data()
    {
        QTest::addColumn<Qt::Edge>("edge");
        QTest::addColumn<QRect>("area");
        QTest::addColumn<PopoverPosition>("position");
        QTest::addColumn<QPointF>("tip");
        // From the upper left corner of the button, which is 100 x 40; the gap is 5.
        QTest::newRow("below it") << Qt::BottomEdge << QRect() << PopoverPosition::Below << QPointF(50, 45);
        QTest::newRow("above it") << Qt::TopEdge << QRect() << PopoverPosition::Above << QPointF(50, -5);
        QTest::newRow("to its right") << Qt::RightEdge << QRect() << PopoverPosition::Right << QPointF(105, 20);
        QTest::newRow("below a part of it")
            << Qt::BottomEdge << QRect(10, 5, 20, 10) << PopoverPosition::Below << QPointF(20, 20);
    }
    void pointsAtTheControl()
    {
        QFETCH(Qt::Edge, edge);
        QFETCH(QRect, area);
        Scene scene;
        scene.window.move(usableArea().center() - scene.window.rect().center());
        SFBPopover popover(plainContent(QSize(100, 50)));
        popover.displayPopover({scene.button, edge, 5, area});
        QVERIFY(popover.isVisible());
        QCOMPARE(popover.popoverWindow()->parentWindow(), &scene.window);
        QTEST(popover.position(), "position");
        const QPointF tip = *static_cast<QPointF *>(QTest::qData("tip", QMetaType::QPointF));
        QCOMPARE(tipOf(popover), scene.button->mapToGlobal(tip));
    }

    void followsTheControl()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        scene.window.move(260, 140);
        QCOMPARE(tipOf(popover), scene.window.mapToGlobal(QPointF(200, 170)));
        scene.window.resize(500, 400);
        scene.button->move(300, 230);
        QTRY_COMPARE(tipOf(popover), scene.window.mapToGlobal(QPointF(350, 270)));
        QVERIFY(popover.isVisible());
    }

    void movesToTheOtherSideBeforeTheWindowTakesItOffTheScreen()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        QCOMPARE(popover.position(), PopoverPosition::Below);
        scene.window.move(scene.window.x(), usableArea().bottom() - 200);
        QCOMPARE(popover.position(), PopoverPosition::Above);
        QVERIFY(usableArea().contains(contentOnScreen(popover)));
        scene.window.move(scene.window.x(), usableArea().top() + 50);
        QCOMPARE(popover.position(), PopoverPosition::Below);
    }

    void displayedAgainWhereThereIsRoomItLiesAsPreferredAgain()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        scene.window.move(usableArea().right() - 300, usableArea().top() + 100);
        scene.button->move(200, 20);
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        QCOMPARE(popover.position(), PopoverPosition::BelowArrowNearRight);
        QVERIFY(usableArea().contains(contentOnScreen(popover)));
        popover.closePopover();
        scene.window.move(usableArea().left() + 100, usableArea().top() + 100);
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        QCOMPARE(popover.position(), PopoverPosition::Below);
    }

    void contentResizedWhileHiddenIsShownInItsNewSizeOnAnySide()
    {
        Scene scene;
        QWidget *content = plainContent();
        SFBPopover popover(content);
        scene.window.move(usableArea().center().x() - 200, usableArea().bottom() - 400);
        scene.button->move(150, 230);
        content->resize(220, 240);
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        QCOMPARE(popover.position(), PopoverPosition::Above);
        QCOMPARE(content->size(), QSize(220, 240));
        QVERIFY(usableArea().contains(contentOnScreen(popover)));
    }

    void aVisiblePopoverStaysWhereItIs()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        const QRectF frame = popover.popoverWindow()->frame();
        popover.displayPopover({scene.field, Qt::TopEdge, 0, {}});
        QCOMPARE(popover.position(), PopoverPosition::Below);
        QCOMPARE(popover.popoverWindow()->frame(), frame);
    }

    void staysWhereItIsOnceTheControlIsGone()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        const QRectF frame = popover.popoverWindow()->frame();
        delete scene.button;
        scene.window.resize(500, 400);
        QCoreApplication::processEvents();
        QCOMPARE(popover.popoverWindow()->frame(), frame);
        QVERIFY(popover.isVisible());
    }

    void draggedAwayAndShownAgainItIsBackAtItsControl()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        popover.setMovable(true);
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        popover.popoverWindow()->setFrameOrigin(QPointF(10, 10));
        emit popover.popoverWindow()->draggedAway();
        // Dragged away from its control, it keeps its distance from the window.
        scene.window.move(scene.window.pos() + QPoint(30, 0));
        QCOMPARE(popover.popoverWindow()->frame().topLeft(), QPointF(40, 10));
        popover.closePopover();
        popover.displayPopover({scene.button, Qt::BottomEdge, 0, {}});
        QCOMPARE(tipOf(popover), scene.button->mapToGlobal(QPointF(50, 40)));
        // It follows the control again.
        scene.window.resize(500, 400);
        scene.button->move(300, 230);
        QTRY_COMPARE(tipOf(popover), scene.button->mapToGlobal(QPointF(50, 40)));
    }
};

QTEST_MAIN(PopoverTargetTest)
#include "PopoverTargetTest.moc"
