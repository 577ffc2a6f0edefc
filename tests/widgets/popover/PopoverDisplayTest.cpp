// SPDX-License-Identifier: MIT
#include "PopoverScene.h"

#include <QScreen>

Q_DECLARE_METATYPE(lumora::PopoverPosition)

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class PopoverDisplayTest : public QObject
{
    Q_OBJECT

private slots:
    void liesBelowThePointWithItsTipOnIt()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        // The base point (200, 130) is the middle of the button's lower edge, 170 below the window's upper edge.
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

    void colorsAndFlagsLeaveTheFrameAsItIs()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        const QRectF frame = popover.popoverWindow()->frame();
        popover.setBorderColor(Qt::red);
        popover.setBackgroundColor(Qt::blue);
        popover.setCornerRadius(3);
        popover.setArrowWidth(30);
        popover.setDrawsArrow(false);
        popover.setDrawRoundCornerBesideArrow(false);
        popover.setMovable(true);
        popover.setResizable(true);
        QCOMPARE(popover.popoverWindow()->frame(), frame);
        popover.setDistance(5);
        QVERIFY(popover.popoverWindow()->frame() != frame);
        QVERIFY(popover.isVisible());
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
        // On screen the balloon is on the side that the position names.
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

    void followsItsParent()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        scene.window.move(260, 140);
        QCOMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(200, 170))));
        // Resized: the point keeps its distance from the upper left corner.
        scene.window.resize(500, 400);
        QCoreApplication::processEvents();
        QCOMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(200, 170))));
        QVERIFY(popover.isVisible());
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
};

QTEST_MAIN(PopoverDisplayTest)
#include "PopoverDisplayTest.moc"
