// SPDX-License-Identifier: MIT
#include "PopoverScene.h"
#include "tests/doubles/Pointer.h"
#include "widgets/popover/ViewController.h"

#include <QMouseEvent>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class PopoverFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsWhereItsArrowEnds()
    {
        SFBPopoverWindowFrame frame;
        constexpr int margin = SFBPopoverWindowFrame::shadowMargin;
        frame.resize(204 + 2 * margin, 120 + 2 * margin);
        QCOMPARE(frame.bounds(), QRectF(0, 0, 204, 120));
        QCOMPARE(frame.contentArea(), QRectF(2, 2, 200, 100));
        QCOMPARE(frame.attachmentPoint(), QPointF(102, 120));
        frame.setPopoverPosition(PopoverPosition::LeftArrowNearTop);
        QCOMPARE(frame.attachmentPoint(), QPointF(204, 100));
        QCOMPARE(frame.attachmentPointForRect(QRectF(10, 20, 204, 120)), QPointF(214, 120));
    }

    void appendsItsArrowToAPath()
    {
        SFBPopoverWindowFrame frame;
        constexpr int margin = SFBPopoverWindowFrame::shadowMargin;
        frame.resize(204 + 2 * margin, 120 + 2 * margin);
        QPainterPath path(QPointF(202, 102));
        frame.appendArrowToPath(&path);
        QList<QPointF> points;
        for (int i = 0; i < path.elementCount(); ++i)
            points << path.elementAt(i);
        // 20 wide at the balloon's upper edge, its tip 16 and the border above it.
        QCOMPARE(points, (QList<QPointF>{{202, 102}, {112, 102}, {102, 120}, {92, 102}}));
    }

    void endsItsArrowAtTheTip_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : {1.0, 2.0}) {
            for (int position = 0; position < 12; ++position)
                QTest::addRow("position %d @%g", position, scale) << position << scale;
        }
    }
    void endsItsArrowAtTheTip()
    {
        QFETCH(int, position);
        QFETCH(qreal, scale);
        SFBPopoverWindowFrame frame;
        frame.setBackgroundColor(Qt::green);
        frame.setBorderColor(Qt::green);
        frame.setPopoverPosition(static_cast<PopoverPosition>(position));
        frame.resize(300, 220);
        const QImage picture = pictureOf(&frame, scale);
        const qreal margin = SFBPopoverWindowFrame::shadowMargin;
        const QPointF tip(frame.attachmentPoint().x() + margin, frame.height() - margin - frame.attachmentPoint().y());
        const QPointF middle = frame.outline().boundingRect().center();
        // Straight into the balloon from the tip.
        const bool sideways = tip.x() < margin + 1 || tip.x() > frame.width() - margin - 1;
        const QPointF inward =
            sideways ? QPointF(middle.x() < tip.x() ? -1 : 1, 0) : QPointF(0, middle.y() < tip.y() ? -1 : 1);
        const auto at = [&](qreal depth) { return picture.pixelColor(((tip + depth * inward) * scale).toPoint()); };
        QCOMPARE(at(6), QColor(Qt::green));
        QCOMPARE(at(20), QColor(Qt::green));
        QVERIFY2(at(-6).green() < 30 && at(-6).alpha() < 120, "something lies beyond the tip");
    }

    void leavesItsArrowOut()
    {
        SFBPopoverWindowFrame frame;
        frame.setBackgroundColor(Qt::green);
        frame.setDrawsArrow(false);
        frame.resize(300, 220);
        const QImage picture = pictureOf(&frame);
        QVERIFY(picture.pixelColor(150, SFBPopoverWindowFrame::shadowMargin + 6).green() < 30);
        QCOMPARE(picture.pixelColor(150, SFBPopoverWindowFrame::shadowMargin + 24), QColor(Qt::green));
    }

    void dragsTheBalloon_data()
    {
        QTest::addColumn<bool>("movable");
        QTest::addColumn<bool>("resizable");
        QTest::addColumn<QPoint>("press"); // in the frame, from its upper left corner
        QTest::addColumn<QPoint>("travel");
        QTest::addColumn<QRect>("change"); // of the frame on screen: moved by, grown by

        // The frame is 204 × 120: an arrow of 16 points above the balloon. Presses pass through the content.
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
        for (const QString &platform : {u"xcb"_s, u"wayland"_s})
            drag(popoverPlatform(platform), movable, resizable, press, travel, change);
    }

private:
    void drag(const PopoverPlatform &platform, bool movable, bool resizable, const QPoint &press, const QPoint &travel,
              const QRect &change)
    {
        Scene scene;
        SFBPopover popover(new ViewController(plainContent()), nullptr, platform);
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
        // If the window cannot be moved while it is shown, it stays until the button is released.
        if (!platform.movesWhileShown)
            QCOMPARE(flippedOnScreen(popover.popoverWindow()->frame()).toRect(), before);
        send(QEvent::MouseButtonRelease, global + travel, Qt::NoButton);
        send(QEvent::MouseMove, global + 2 * travel, Qt::NoButton);
        const QRect after = flippedOnScreen(popover.popoverWindow()->frame()).toRect();
        QCOMPARE(after.topLeft() - before.topLeft(), change.topLeft());
        QCOMPARE(QPoint(after.width() - before.width(), after.height() - before.height()),
                 QPoint(change.width(), change.height()));
        QVERIFY(popover.isVisible());
    }

private slots:
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
        const QImage picture = pictureOf(popover.popoverWindow(), scale);
        // In points from the frame's upper left corner: 204 × 120 with the tip at (102, 0).
        const auto at = [&](qreal x, qreal y) {
            const qreal margin = SFBPopoverWindowFrame::shadowMargin;
            return picture.pixelColor(QPoint(qFloor((x + margin) * scale), qFloor((y + margin) * scale)));
        };
        QCOMPARE(at(102, 1), QColor(Qt::red));         // just inside the tip
        QCOMPARE(at(102, 60), QColor(0, 0, 255, 128)); // the balloon, with no shadow in it
        QCOMPARE(at(2, 60), QColor(Qt::red));          // the border is centered on the content's edge
        QCOMPARE(at(1.5, 60), QColor(Qt::red));
        QVERIFY(at(4, 60) == QColor(0, 0, 255, 128));
        QCOMPARE(at(102, 118), QColor(Qt::red));
        const QColor shadow = at(102, 124);
        QVERIFY2(shadow.alpha() > 20 && shadow.alpha() < 90, qPrintable(QString::number(shadow.alpha())));
        QVERIFY(at(102, 124).alpha() > at(102, 140).alpha()); // it fades outwards
        QCOMPARE(at(-23, -23).alpha(), 0);                    // and ends before the window does
        QVERIFY(at(2.2, 18.2).alpha() < 200);                 // a round corner
    }

    void bordersAreAsSharpOnEachSide_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<qreal>("width");
        QTest::addColumn<int>("pixels");
        QTest::newRow("scale 1") << 1.0 << 5.0 << 5;
        QTest::newRow("scale 1.25") << 1.25 << 5.0 << 6;
        QTest::newRow("scale 1.5") << 1.5 << 5.0 << 8;
        QTest::newRow("scale 1.5, thin") << 1.5 << 2.0 << 3;
        QTest::newRow("scale 1.75") << 1.75 << 5.0 << 9;
        QTest::newRow("scale 2") << 2.0 << 5.0 << 10;
    }
    void bordersAreAsSharpOnEachSide()
    {
        QFETCH(qreal, scale);
        QFETCH(qreal, width);
        QFETCH(int, pixels);
        Scene scene;
        SFBPopover popover(plainContent());
        popover.setAnimates(false);
        popover.setBorderWidth(width);
        popover.setBorderColor(Qt::red);
        popover.setBackgroundColor(Qt::blue);
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        const QImage picture = pictureOf(popover.popoverWindow(), scale);
        const QRect frame = popover.popoverWindow()->popoverWindowFrame()->outline().boundingRect().toRect();
        // Away from corners and arrow, from outside to the middle.
        const auto redPixels = [&](QPointF from, QPointF step) {
            int red = 0;
            for (QPoint at = (from * scale).toPoint();
                 picture.rect().contains(at) && picture.pixelColor(at) != Qt::blue; at += step.toPoint())
                red += picture.pixelColor(at) == Qt::red ? 1 : 0;
            return red;
        };
        const QPointF middle = QRectF(frame).center() + QPointF(40, 0);
        QCOMPARE(redPixels({0, middle.y()}, {1, 0}), pixels);
        QCOMPARE(redPixels({frame.right() + 20.0, middle.y()}, {-1, 0}), pixels);
        QCOMPARE(redPixels({middle.x(), 0}, {0, 1}), pixels);
        QCOMPARE(redPixels({middle.x(), frame.bottom() + 20.0}, {0, -1}), pixels);
    }
};

QTEST_MAIN(PopoverFrameTest)
#include "PopoverFrameTest.moc"
