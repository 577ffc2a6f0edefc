// SPDX-License-Identifier: MIT
#include "tool/PopupPlacement.h"
#include "tool/PopoverStyle.h"
#include "widgets/popover/SFBPopover.h"

#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// A window on the screen and a popover of its own, as the panes have them.
struct PopoverInWindow
{
    PopoverInWindow()
    {
        stylePopover(popover);
        popover.setAnimates(false);
        window.resize(400, 300);
        window.show();
    }

    /// A popover is made around a content that has its size.
    static QWidget *makeContent()
    {
        auto *made = new QWidget;
        made->resize(200, 100);
        return made;
    }

    QWidget window;
    QWidget *content = makeContent();
    SFBPopover popover{content};
};

} // namespace

class PopupPlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void positions_data()
    {
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<PopoverPosition>("preferred");
        QTest::addColumn<PopoverPosition>("expected");
        using enum PopoverPosition;
        // A balloon of 210 x 125 in an area of 1000 x 800, y upwards: content 200 x 110, border 5, arrow 5.
        QTest::newRow("middle, below") << QPointF(500, 400) << Below << Below;
        QTest::newRow("middle, above") << QPointF(500, 400) << Above << Above;
        QTest::newRow("just inside at the right") << QPointF(895, 400) << Below << Below;
        QTest::newRow("over the right edge") << QPointF(896, 400) << Below << BelowArrowNearRight;
        QTest::newRow("just inside at the left") << QPointF(105, 400) << Below << Below;
        QTest::newRow("over the left edge") << QPointF(104, 400) << Below << BelowArrowNearLeft;
        QTest::newRow("just inside at the bottom") << QPointF(500, 125) << Below << Below;
        QTest::newRow("over the bottom") << QPointF(500, 124) << Below << Above;
        QTest::newRow("over the top") << QPointF(500, 676) << Above << Below;
        QTest::newRow("lower right corner") << QPointF(960, 40) << Below << AboveArrowNearRight;
        QTest::newRow("lower left corner") << QPointF(40, 40) << Below << AboveArrowNearLeft;
        QTest::newRow("upper right corner") << QPointF(960, 780) << Above << BelowArrowNearRight;
        QTest::newRow("right of the area: what shows most") << QPointF(1050, 400) << Below << BelowArrowNearRight;
        QTest::newRow("far away: as preferred") << QPointF(5000, 400) << Below << Below;
    }
    void positions()
    {
        QFETCH(QPointF, point);
        QFETCH(PopoverPosition, preferred);
        PopoverMetrics metrics;
        metrics.borderWidth = 5;
        metrics.arrowHeight = 5;
        metrics.cornerRadius = 0;
        QTEST(positionInside(QRectF(0, 0, 1000, 800), point, QSizeF(200, 110), metrics, preferred), "expected");
    }

    void displayedAgainInTheMiddleItLiesBelowAgain()
    {
        PopoverInWindow shown;
        const QRect screen = shown.window.screen()->availableGeometry();
        shown.window.move(screen.right() - 300, screen.top() + 100);
        displayOnScreen(shown.popover, &shown.window, QPointF(280, 280));
        QCOMPARE(shown.popover.position(), PopoverPosition::BelowArrowNearRight);
        QVERIFY(screen.contains(QRect(shown.content->mapToGlobal(QPoint()), shown.content->size())));
        shown.popover.closePopover();
        shown.window.move(screen.left() + 100, screen.top() + 100);
        displayOnScreen(shown.popover, &shown.window, QPointF(280, 280));
        QCOMPARE(shown.popover.position(), PopoverPosition::Below);
        // The arrow's tip is on the point.
        const QPoint tip(shown.window.mapToGlobal(QPoint(280, 300 - 280)));
        QCOMPARE(shown.content->mapToGlobal(QPoint(100, 0)), tip + QPoint(0, 10));
    }

    void contentResizedWhileHiddenIsShownInItsNewSizeOnAnySide()
    {
        PopoverInWindow shown;
        const QRect screen = shown.window.screen()->availableGeometry();
        shown.window.move(screen.center().x() - 200, screen.bottom() - 400);
        shown.content->resize(220, 240);
        displayOnScreen(shown.popover, &shown.window, QPointF(200, 50));
        QCOMPARE(shown.popover.position(), PopoverPosition::Above);
        QCOMPARE(shown.content->size(), QSize(220, 240));
        const QRect lies(shown.content->mapToGlobal(QPoint()), shown.content->size());
        QCOMPARE(lies.intersected(screen), lies);
    }

    void aVisiblePopoverStaysWhereItIs()
    {
        PopoverInWindow shown;
        displayOnScreen(shown.popover, &shown.window, QPointF(200, 250));
        const QRectF frame = shown.popover.popoverWindow()->frame();
        displayOnScreen(shown.popover, &shown.window, QPointF(100, 200), PopoverPosition::Above);
        QCOMPARE(shown.popover.position(), PopoverPosition::Below);
        QCOMPARE(shown.popover.popoverWindow()->frame(), frame);
    }
};

QTEST_MAIN(PopupPlacementTest)
#include "PopupPlacementTest.moc"
