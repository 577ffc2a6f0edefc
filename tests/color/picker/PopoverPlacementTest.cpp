// SPDX-License-Identifier: MIT
#include "color/picker/PopoverPlacement.h"

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
            popoverPlacement(control, QSizeF(250, 400), QRectF(0, 0, 1000, 800), edge, PopoverMetrics());
        QTEST(placement.position, "position");
    }
};

QTEST_MAIN(PopoverPlacementTest)
#include "PopoverPlacementTest.moc"
