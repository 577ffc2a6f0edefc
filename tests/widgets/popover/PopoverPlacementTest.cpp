// SPDX-License-Identifier: MIT
#include "widgets/popover/PopoverPlacement.h"

#include <QTest>

using namespace lumora;

Q_DECLARE_METATYPE(lumora::PopoverPosition)

class PopoverPlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void opensWhereThereIsRoom_data()
    {
        QTest::addColumn<QRectF>("control");
        QTest::addColumn<Qt::Edge>("edge");
        QTest::addColumn<PopoverPosition>("position");

        QTest::newRow("to the right") << QRectF(400, 400, 80, 40) << Qt::RightEdge << PopoverPosition::Right;
        QTest::newRow("to the left where the right is too narrow")
            << QRectF(880, 400, 80, 40) << Qt::RightEdge << PopoverPosition::Left;
        QTest::newRow("near the upper edge")
            << QRectF(400, 740, 80, 40) << Qt::RightEdge << PopoverPosition::RightArrowNearTop;
        QTest::newRow("near the lower edge")
            << QRectF(400, 20, 80, 40) << Qt::RightEdge << PopoverPosition::RightArrowNearBottom;
        QTest::newRow("below") << QRectF(400, 600, 80, 40) << Qt::BottomEdge << PopoverPosition::Below;
        QTest::newRow("above where below is too low")
            << QRectF(400, 100, 80, 40) << Qt::BottomEdge << PopoverPosition::Above;
        QTest::newRow("a control as wide as the screen leaves above or below")
            << QRectF(0, 600, 1000, 40) << Qt::RightEdge << PopoverPosition::Below;
        QTest::newRow("nowhere") << QRectF(0, 0, 1000, 800) << Qt::RightEdge << PopoverPosition::Right;
    }
    void opensWhereThereIsRoom()
    {
        QFETCH(QRectF, control);
        QFETCH(Qt::Edge, edge);
        const PopoverPlacement placement =
            popoverPlacement({control, edge, 0}, QSizeF(250, 400), QRectF(0, 0, 1000, 800), PopoverMetrics());
        QTEST(placement.position, "position");
    }

    void staysInsideTheScreen_data()
    {
        QTest::addColumn<QPointF>("middle");
        QTest::addColumn<Qt::Edge>("edge");
        QTest::addColumn<PopoverPosition>("position");
        QTest::addColumn<QPointF>("point");
        using enum PopoverPosition;
        // A balloon of 210 x 125 on a screen of 1000 x 800, y upwards: content 200 x 110, border 5, arrow 5. The
        // control is 40 x 20, the gap 5.
        QTest::newRow("below") << QPointF(500, 400) << Qt::BottomEdge << Below << QPointF(500, 385);
        QTest::newRow("above") << QPointF(500, 400) << Qt::TopEdge << Above << QPointF(500, 415);
        QTest::newRow("just inside at the right") << QPointF(895, 400) << Qt::BottomEdge << Below << QPointF(895, 385);
        QTest::newRow("over the right edge")
            << QPointF(896, 400) << Qt::BottomEdge << BelowArrowNearRight << QPointF(896, 385);
        QTest::newRow("just inside at the left") << QPointF(105, 400) << Qt::BottomEdge << Below << QPointF(105, 385);
        QTest::newRow("over the left edge")
            << QPointF(104, 400) << Qt::BottomEdge << BelowArrowNearLeft << QPointF(104, 385);
        QTest::newRow("just inside at the bottom") << QPointF(500, 140) << Qt::BottomEdge << Below << QPointF(500, 125);
        QTest::newRow("over the bottom: above the control, not over it")
            << QPointF(500, 139) << Qt::BottomEdge << Above << QPointF(500, 154);
        QTest::newRow("over the top") << QPointF(500, 661) << Qt::TopEdge << Below << QPointF(500, 646);
        QTest::newRow("lower right corner")
            << QPointF(960, 40) << Qt::BottomEdge << AboveArrowNearRight << QPointF(960, 55);
        QTest::newRow("lower left corner")
            << QPointF(40, 40) << Qt::BottomEdge << AboveArrowNearLeft << QPointF(40, 55);
        QTest::newRow("upper right corner")
            << QPointF(960, 780) << Qt::TopEdge << BelowArrowNearRight << QPointF(960, 765);
        QTest::newRow("right of the screen: what shows most")
            << QPointF(1050, 400) << Qt::BottomEdge << Left << QPointF(1025, 400);
        QTest::newRow("far away: as preferred") << QPointF(5000, 400) << Qt::BottomEdge << Below << QPointF(5000, 385);
    }
    void staysInsideTheScreen()
    {
        QFETCH(QPointF, middle);
        QFETCH(Qt::Edge, edge);
        PopoverMetrics metrics;
        metrics.borderWidth = 5;
        metrics.arrowHeight = 5;
        metrics.cornerRadius = 0;
        QRectF control(0, 0, 40, 20);
        control.moveCenter(middle);
        const PopoverPlacement placement =
            popoverPlacement({control, edge, 5}, QSizeF(200, 110), QRectF(0, 0, 1000, 800), metrics);
        QTEST(placement.position, "position");
        QTEST(placement.point, "point");
    }
};

QTEST_MAIN(PopoverPlacementTest)
#include "PopoverPlacementTest.moc"
