// SPDX-License-Identifier: MIT
#include "widgets/window/WindowPlacement.h"

#include <QTest>

using namespace lumora;

class WindowPlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsAWindowWithinReach_data()
    {
        QTest::addColumn<QRect>("frame");
        QTest::addColumn<QList<QRect>>("screens");
        QTest::addColumn<QRect>("reachable");

        const QRect left(0, 0, 1000, 800);
        const QRect right(1000, 0, 1600, 900);
        const QList<QRect> one{left};
        const QList<QRect> two{left, right};
        QTest::newRow("on the screen") << QRect(50, 60, 600, 400) << one << QRect(50, 60, 600, 400);
        QTest::newRow("on the second screen") << QRect(1200, 60, 600, 400) << two << QRect(1200, 60, 600, 400);
        QTest::newRow("its screen is gone") << QRect(1200, 60, 600, 400) << one << QRect(400, 60, 600, 400);
        QTest::newRow("partly beside, enough to take hold of")
            << QRect(900, 60, 600, 400) << one << QRect(900, 60, 600, 400);
        QTest::newRow("partly beside, not enough") << QRect(901, 60, 600, 400) << one << QRect(400, 60, 600, 400);
        QTest::newRow("title bar above the screen") << QRect(50, -1, 600, 400) << one << QRect(50, 0, 600, 400);
        QTest::newRow("title bar just on the screen") << QRect(50, 740, 600, 400) << one << QRect(50, 740, 600, 400);
        QTest::newRow("title bar below the screen") << QRect(50, 741, 600, 400) << one << QRect(50, 400, 600, 400);
        QTest::newRow("larger than what is left") << QRect(1200, 60, 1400, 860) << one << QRect(0, 0, 1000, 800);
        QTest::newRow("to the screen it overlaps most")
            << QRect(2550, -100, 600, 400) << two << QRect(2000, 0, 600, 400);
        QTest::newRow("no screen at all") << QRect(50, 60, 600, 400) << QList<QRect>() << QRect(50, 60, 600, 400);
    }
    void keepsAWindowWithinReach()
    {
        QFETCH(QRect, frame);
        QFETCH(QList<QRect>, screens);
        QTEST(reachableFrame(frame, screens, 60), "reachable");
    }

    void findsTheEdgesUnderThePointer_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<Qt::Edges>("edges");
        QTest::addColumn<Qt::CursorShape>("cursor");
        const auto row = [](const char *name, const QPoint &point, Qt::Edges edges, Qt::CursorShape cursor) {
            QTest::newRow(name) << point << edges << cursor;
        };
        // A window of 600 × 400 with a grip of 4 points; a corner reaches 16 along both its edges.
        row("left", QPoint(3, 200), Qt::LeftEdge, Qt::SizeHorCursor);
        row("just inside the left", QPoint(4, 200), {}, Qt::ArrowCursor);
        row("right", QPoint(596, 200), Qt::RightEdge, Qt::SizeHorCursor);
        row("just inside the right", QPoint(595, 200), {}, Qt::ArrowCursor);
        row("top", QPoint(300, 3), Qt::TopEdge, Qt::SizeVerCursor);
        row("just inside the top", QPoint(300, 4), {}, Qt::ArrowCursor);
        row("bottom", QPoint(300, 396), Qt::BottomEdge, Qt::SizeVerCursor);
        row("upper left", QPoint(0, 0), Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor);
        row("upper left, along the top", QPoint(15, 0), Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor);
        row("beyond the corner along the top", QPoint(16, 0), Qt::TopEdge, Qt::SizeVerCursor);
        row("upper left, along the side", QPoint(0, 15), Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor);
        row("upper right", QPoint(599, 10), Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor);
        row("lower left", QPoint(10, 399), Qt::BottomEdge | Qt::LeftEdge, Qt::SizeBDiagCursor);
        row("lower right", QPoint(599, 399), Qt::BottomEdge | Qt::RightEdge, Qt::SizeFDiagCursor);
    }
    void findsTheEdgesUnderThePointer()
    {
        QFETCH(QPoint, point);
        QFETCH(Qt::Edges, edges);
        QCOMPARE(resizedEdges(point, QSize(600, 400), 4), edges);
        QTEST(resizeCursor(edges), "cursor");
    }

    void resizesTheFrame_data()
    {
        QTest::addColumn<Qt::Edges>("edges");
        QTest::addColumn<QPoint>("travel");
        QTest::addColumn<QRect>("resized");
        const auto row = [](const char *name, Qt::Edges edges, const QPoint &travel, const QRect &resized) {
            QTest::newRow(name) << edges << travel << resized;
        };
        row("right", Qt::RightEdge, QPoint(20, 30), QRect(100, 100, 420, 300));
        row("bottom", Qt::BottomEdge, QPoint(20, 30), QRect(100, 100, 400, 330));
        row("left", Qt::LeftEdge, QPoint(20, 30), QRect(120, 100, 380, 300));
        row("top", Qt::TopEdge, QPoint(20, 30), QRect(100, 130, 400, 270));
        row("upper left", Qt::TopEdge | Qt::LeftEdge, QPoint(-20, -30), QRect(80, 70, 420, 330));
        row("lower right", Qt::BottomEdge | Qt::RightEdge, QPoint(20, 30), QRect(100, 100, 420, 330));
        row("left, not below the smallest", Qt::LeftEdge, QPoint(350, 0), QRect(400, 100, 100, 300));
        row("top, not beyond the largest", Qt::TopEdge, QPoint(0, -900), QRect(100, -100, 400, 500));
    }
    void resizesTheFrame()
    {
        QFETCH(Qt::Edges, edges);
        QFETCH(QPoint, travel);
        QTEST(resizedFrame(QRect(100, 100, 400, 300), edges, travel, QSize(100, 80), QSize(900, 500)), "resized");
    }
};

QTEST_GUILESS_MAIN(WindowPlacementTest)
#include "WindowPlacementTest.moc"
