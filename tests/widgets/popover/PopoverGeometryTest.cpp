// SPDX-License-Identifier: MIT
#include "widgets/popover/PopoverPath.h"
#include "widgets/popover/PopoverPlacement.h"

#include <QTest>

Q_DECLARE_METATYPE(lumora::PopoverMetrics)
Q_DECLARE_METATYPE(lumora::PopoverPosition)

using namespace lumora;

namespace
{

constexpr std::array<const char *, 12> positionNames = {
    "left",
    "below",
    "right",
    "above",
    "left, arrow near the bottom",
    "left, arrow near the top",
    "right, arrow near the bottom",
    "right, arrow near the top",
    "above, arrow near the right",
    "above, arrow near the left",
    "below, arrow near the right",
    "below, arrow near the left",
};

PopoverPosition positionOf(int value)
{
    return static_cast<PopoverPosition>(value);
}

/// The number of points at which a new outline begins.
int subpaths(const QPainterPath &path)
{
    int count = 0;
    for (int i = 0; i < path.elementCount(); ++i)
        count += path.elementAt(i).isMoveTo() ? 1 : 0;
    return count;
}

bool hasVertex(const QPainterPath &path, const QPointF &point)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        if (QLineF(path.elementAt(i), point).length() < 1e-9)
            return true;
    }
    return false;
}

} // namespace

class PopoverGeometryTest : public QObject
{
    Q_OBJECT

private slots:
    void framesAContentRect_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QRectF>("frame");

        // Content (100, 200, 300 × 150), margin 5, arrow 16 high at a distance of 3, border 2.
        const QRectF left(93, 193, 333, 164);
        const QRectF below(93, 193, 314, 183);
        const QRectF right(74, 193, 333, 164);
        const QRectF above(93, 212, 314, 183);
        const std::array<QRectF, 12> frames = {left,  below, right, above, left,  left,
                                               right, right, above, above, below, below};
        for (int position = 0; position < 12; ++position)
            QTest::newRow(positionNames[static_cast<size_t>(position)])
                << position << frames[static_cast<size_t>(position)];
        QTest::newRow("an unknown position has no arrow side") << 12 << QRectF(93, 193, 314, 164);
    }
    void framesAContentRect()
    {
        QFETCH(int, position);
        PopoverMetrics metrics;
        metrics.position = positionOf(position);
        metrics.distance = 3;
        metrics.viewMargin = 5;
        const QRectF content(100, 200, 300, 150);
        QTEST(frameRectForContentRect(content, metrics), "frame");
        QCOMPARE(contentRectForFrameRect(frameRectForContentRect(content, metrics), metrics), content);
    }

    void placesTheContentBesideTheArrow_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QRectF>("content");

        const QRectF left(2, 2, 80, 96);
        const QRectF below(2, 2, 96, 80);
        const QRectF right(18, 2, 80, 96);
        const QRectF above(2, 18, 96, 80);
        const std::array<QRectF, 12> contents = {left,  below, right, above, left,  left,
                                                 right, right, above, above, below, below};
        for (int position = 0; position < 12; ++position)
            QTest::newRow(positionNames[static_cast<size_t>(position)])
                << position << contents[static_cast<size_t>(position)];
    }
    void placesTheContentBesideTheArrow()
    {
        QFETCH(int, position);
        PopoverMetrics metrics;
        metrics.position = positionOf(position);
        QTEST(placedContentRect(QRectF(0, 0, 100, 100), metrics), "content");
    }

    void attachesTheArrow_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("roundCorner");
        QTest::addColumn<QPointF>("attachment");

        // Frame (10, 20, 200 × 100), border 2, arrow 16 high, radius 8: k is 20, or 12 beside a square corner.
        const std::array<QPointF, 12> round = {QPointF(210, 70), QPointF(110, 120), QPointF(10, 70),
                                               QPointF(110, 20), QPointF(210, 40),  QPointF(210, 100),
                                               QPointF(10, 40),  QPointF(10, 100),  QPointF(190, 20),
                                               QPointF(30, 20),  QPointF(190, 120), QPointF(30, 120)};
        const std::array<QPointF, 12> square = {QPointF(210, 70), QPointF(110, 120), QPointF(10, 70),
                                                QPointF(110, 20), QPointF(210, 32),  QPointF(210, 108),
                                                QPointF(10, 32),  QPointF(10, 108),  QPointF(198, 20),
                                                QPointF(22, 20),  QPointF(198, 120), QPointF(22, 120)};
        for (int position = 0; position < 12; ++position) {
            const auto index = static_cast<size_t>(position);
            QTest::addRow("%s, round corner", positionNames[index]) << position << true << round[index];
            QTest::addRow("%s, square corner", positionNames[index]) << position << false << square[index];
        }
        QTest::newRow("an unknown position") << 12 << true << QPointF(0, 0);
        QTest::newRow("the largest position value") << -1 << true << QPointF(0, 0);
    }
    void attachesTheArrow()
    {
        QFETCH(int, position);
        QFETCH(bool, roundCorner);
        PopoverMetrics metrics;
        metrics.position = positionOf(position);
        metrics.drawRoundCornerBesideArrow = roundCorner;
        QTEST(attachmentPointForRect(QRectF(10, 20, 200, 100), metrics), "attachment");
    }

    void choosesTheBestPosition_data()
    {
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<QRectF>("screen");
        QTest::addColumn<QRectF>("parent"); // empty: none
        QTest::addColumn<PopoverMetrics>("metrics");
        QTest::addColumn<PopoverPosition>("position");

        using enum PopoverPosition;
        // A frame of 100 × 80 with an arrow 16 high and 20 wide, radius 8.
        const QRectF screen(0, 0, 1000, 800);
        const QRectF narrow(0, 0, 200, 800);
        const QRectF none;
        const PopoverMetrics plain;

        QTest::newRow("just room below") << QPointF(500, 96) << screen << none << plain << Below;
        QTest::newRow("no room below: right") << QPointF(500, 95) << screen << none << plain << Right;
        QTest::newRow("just room on the right") << QPointF(883, 95) << screen << none << plain << Right;
        QTest::newRow("no room on the right: left") << QPointF(884, 95) << screen << none << plain << Left;
        QTest::newRow("just room on the left") << QPointF(116, 50) << narrow << none << plain << Left;
        QTest::newRow("no room on the left: above") << QPointF(115, 50) << narrow << none << plain << Above;
        QTest::newRow("just room above") << QPointF(100, 50) << QRectF(0, 0, 200, 147) << none << plain << Above;
        QTest::newRow("no room anywhere: below")
            << QPointF(100, 50) << QRectF(0, 0, 200, 146) << none << plain << Below;
        QTest::newRow("a screen away from the origin")
            << QPointF(1500, 195) << QRectF(1000, 100, 1000, 800) << none << plain << Right;

        const QRectF parent(200, 200, 600, 400);
        QTest::newRow("below, sticks out left") << QPointF(249, 400) << screen << parent << plain << BelowArrowNearLeft;
        QTest::newRow("below, just not out left") << QPointF(250, 400) << screen << parent << plain << Below;
        QTest::newRow("below, sticks out right")
            << QPointF(750, 400) << screen << parent << plain << BelowArrowNearRight;
        QTest::newRow("below, just not out right") << QPointF(749, 400) << screen << parent << plain << Below;
        const QRectF small(0, 0, 300, 800);
        const QRectF rightStrip(280, 200, 20, 400);
        QTest::newRow("below, out left, just room to shift")
            << QPointF(217, 400) << small << rightStrip << plain << BelowArrowNearLeft;
        // Shifted the other way, the popover would leave the screen at the right.
        QTest::newRow("below, out left, no room to shift")
            << QPointF(218, 400) << small << rightStrip << plain << Below;
        const QRectF leftStrip(0, 200, 20, 400);
        QTest::newRow("below, out right, just room to shift")
            << QPointF(82, 400) << screen << leftStrip << plain << BelowArrowNearRight;
        QTest::newRow("below, out right, no room to shift")
            << QPointF(81, 400) << screen << leftStrip << plain << Below;
        QTest::newRow("the parent reaches beyond the screen")
            << QPointF(49, 400) << screen << QRectF(-500, 200, 900, 400) << plain << BelowArrowNearLeft;
        PopoverMetrics square;
        square.drawRoundCornerBesideArrow = false;
        QTest::newRow("square corner, just room to shift")
            << QPointF(90, 400) << screen << leftStrip << square << BelowArrowNearRight;
        QTest::newRow("square corner, no room to shift") << QPointF(89, 400) << screen << leftStrip << square << Below;

        PopoverMetrics distant; // no space for it at either side of the narrow screen
        distant.distance = 100;
        QTest::newRow("above, sticks out left") << QPointF(49, 50) << narrow << none << distant << AboveArrowNearLeft;
        QTest::newRow("above, just not out left") << QPointF(50, 50) << narrow << none << distant << Above;
        QTest::newRow("above, sticks out right")
            << QPointF(150, 50) << narrow << none << distant << AboveArrowNearRight;
        QTest::newRow("above, just not out right") << QPointF(149, 50) << narrow << none << distant << Above;

        QTest::newRow("right, sticks out at the bottom")
            << QPointF(500, 39) << screen << none << plain << RightArrowNearBottom;
        QTest::newRow("right, just not out at the bottom") << QPointF(500, 40) << screen << none << plain << Right;
        const QRectF low(0, 0, 1000, 120);
        QTest::newRow("right, sticks out at the top")
            << QPointF(500, 80) << screen << low << plain << RightArrowNearTop;
        QTest::newRow("right, just not out at the top") << QPointF(500, 79) << screen << low << plain << Right;
        const QRectF lower(0, 0, 1000, 100);
        QTest::newRow("right, out at the top, just room to shift")
            << QPointF(500, 62) << screen << lower << plain << RightArrowNearTop;
        QTest::newRow("right, out at the top, no room to shift")
            << QPointF(500, 61) << screen << lower << plain << Right;
        const QRectF flat(0, 0, 1000, 100);
        const QRectF topStrip(0, 90, 1000, 10);
        QTest::newRow("right, out at the bottom, just room to shift")
            << QPointF(500, 37) << flat << topStrip << plain << RightArrowNearBottom;
        QTest::newRow("right, out at the bottom, no room to shift")
            << QPointF(500, 38) << flat << topStrip << plain << Right;
        QTest::newRow("left, sticks out at the bottom")
            << QPointF(884, 39) << screen << none << plain << LeftArrowNearBottom;
        QTest::newRow("left, just not out at the bottom") << QPointF(884, 40) << screen << none << plain << Left;
        QTest::newRow("left, sticks out at the top") << QPointF(884, 80) << screen << low << plain << LeftArrowNearTop;
        QTest::newRow("left, just not out at the top") << QPointF(884, 79) << screen << low << plain << Left;

        PopoverMetrics padded;
        padded.viewMargin = 10;
        QTest::newRow("the margin counts twice, just room") << QPointF(500, 116) << screen << none << padded << Below;
        QTest::newRow("the margin counts twice, no room") << QPointF(500, 115) << screen << none << padded << Right;
        PopoverMetrics far;
        far.distance = 4;
        QTest::newRow("the distance counts, just room") << QPointF(500, 100) << screen << none << far << Below;
        QTest::newRow("the distance counts, no room") << QPointF(500, 99) << screen << none << far << Right;
    }
    void choosesTheBestPosition()
    {
        QFETCH(QPointF, point);
        QFETCH(QRectF, screen);
        QFETCH(QRectF, parent);
        QFETCH(PopoverMetrics, metrics);
        PopoverSurroundings surroundings;
        surroundings.point = point;
        surroundings.screen = screen;
        surroundings.frameSize = QSizeF(100, 80);
        if (!parent.isEmpty())
            surroundings.parentFrame = parent;
        QTEST(bestPopoverPosition(surroundings, metrics), "position");
    }

    void flipsTheAxis()
    {
        QCOMPARE(flipped(QRectF(10, 20, 30, 40), 100), QRectF(10, 40, 30, 40));
        QCOMPARE(flipped(QPointF(10, 20), 100), QPointF(10, 80));
        QCOMPARE(flipped(flipped(QRectF(1, 2, 3, 4), 50), 50), QRectF(1, 2, 3, 4));
    }

    void drawsBalloonAndArrowInOnePath_data()
    {
        QTest::addColumn<int>("position");
        for (int position = 0; position < 12; ++position)
            QTest::newRow(positionNames[static_cast<size_t>(position)]) << position;
    }
    void drawsBalloonAndArrowInOnePath()
    {
        QFETCH(int, position);
        PopoverMetrics metrics;
        metrics.position = positionOf(position);
        metrics.viewMargin = 5;
        metrics.distance = 6;
        const QRectF bounds(0, 0, 200, 120);
        const QRectF content = placedContentRect(bounds, metrics);
        const QPointF tip = attachmentPointForRect(bounds, metrics);
        const QPainterPath path = popoverPath(content, tip, metrics);

        QCOMPARE(subpaths(path), 1);
        QCOMPARE(QPointF(path.elementAt(0)), path.currentPosition());
        const QPointF toMiddle = content.center() - tip;
        const bool sideways = tip.x() == 0 || tip.x() == 200;
        const QPointF inward = sideways ? QPointF(toMiddle.x() < 0 ? -6 : 6, 0) : QPointF(0, toMiddle.y() < 0 ? -6 : 6);
        QVERIFY(hasVertex(path, tip + inward));
        const QRectF balloon = content.adjusted(-5, -5, 5, 5);
        QVERIFY(path.contains(balloon.adjusted(3, 3, -3, -3)));
        // The corners are round: the corner point is outside, a point on the arc's diagonal is inside.
        QVERIFY(!path.contains(balloon.topLeft() + QPointF(1, 1)));
        QVERIFY(!path.contains(balloon.bottomRight() - QPointF(1, 1)));
        // Only the arrow reaches beyond the balloon.
        const QRectF tipOnly(tip + inward, QSizeF(0, 0));
        QCOMPARE(path.boundingRect(), balloon.united(tipOnly.adjusted(0, 0, 1e-12, 1e-12)));
    }

    void leavesTheArrowOut()
    {
        PopoverMetrics metrics;
        metrics.drawsArrow = false;
        const QRectF content(2, 2, 96, 80);
        QCOMPARE(popoverPath(content, QPointF(50, 100), metrics).boundingRect(), content);
    }

    void squaresTheCornerBesideTheArrow_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("corner"); // 0 to 3 counter-clockwise from the lower left, -1 none
        const std::array<int, 12> corners = {-1, -1, -1, -1, 1, 2, 0, 3, 1, 0, 2, 3};
        for (int position = 0; position < 12; ++position)
            QTest::newRow(positionNames[static_cast<size_t>(position)])
                << position << corners[static_cast<size_t>(position)];
    }
    void squaresTheCornerBesideTheArrow()
    {
        QFETCH(int, position);
        QFETCH(int, corner);
        PopoverMetrics metrics;
        metrics.position = positionOf(position);
        metrics.drawRoundCornerBesideArrow = false;
        const QRectF bounds(0, 0, 200, 120);
        const QRectF content = placedContentRect(bounds, metrics);
        const QPainterPath path = popoverPath(content, attachmentPointForRect(bounds, metrics), metrics);
        const std::array<QPointF, 4> inCorners = {
            QPointF(content.left() + 1, content.top() + 1), QPointF(content.right() - 1, content.top() + 1),
            QPointF(content.right() - 1, content.bottom() - 1), QPointF(content.left() + 1, content.bottom() - 1)};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(path.contains(inCorners[static_cast<size_t>(i)]), i == corner);
    }

    void keepsTheArrowsBaseOnTheStraightPart()
    {
        // With the sharp corners and flat arrow of the program's own popovers, the base is wider than the free part of
        // the side.
        PopoverMetrics metrics;
        metrics.position = PopoverPosition::BelowArrowNearLeft;
        metrics.borderWidth = 5;
        metrics.arrowHeight = 5;
        metrics.cornerRadius = 0;
        const QRectF bounds(0, 0, 200, 120);
        const QRectF content = placedContentRect(bounds, metrics);
        const QPainterPath path = popoverPath(content, attachmentPointForRect(bounds, metrics), metrics);
        QCOMPARE(path.boundingRect().left(), content.left());
        QVERIFY(hasVertex(path, QPointF(content.left(), content.bottom())));
    }

    void cutsARadiusThatDoesNotFit()
    {
        PopoverMetrics metrics;
        metrics.cornerRadius = 500;
        metrics.drawsArrow = false;
        const QRectF content(0, 0, 60, 40);
        const QPainterPath path = popoverPath(content, {}, metrics);
        QCOMPARE(path.boundingRect(), content);
        QVERIFY(path.contains(content.center()));
        QVERIFY(!path.contains(QPointF(2, 2)));
    }
};

QTEST_GUILESS_MAIN(PopoverGeometryTest)
#include "PopoverGeometryTest.moc"
