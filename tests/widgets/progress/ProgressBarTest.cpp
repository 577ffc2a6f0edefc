// SPDX-License-Identifier: MIT
#include "tests/doubles/Pointer.h"

#include "widgets/progress/LBProgressBar.h"
#include "widgets/progress/ProgressGeometry.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QTest>
#include <QtMath>

using namespace lumora;
using namespace lumora::progressgeometry;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

namespace
{

const QColor light(250, 200, 100);
const QColor dark(90, 40, 10);

void prepare(LBProgressBar &bar, double value)
{
    bar.setLightColor(light);
    bar.setDarkColor(dark);
    bar.resize(200, 20);
    bar.setDoubleValue(value);
}

} // namespace

class ProgressBarTest : public QObject
{
    Q_OBJECT
private slots:
    void offsetRuns()
    {
        double offset = 0;
        for (int step = 1; step <= 20; ++step) {
            offset = nextOffset(offset);
            QCOMPARE(offset, static_cast<double>(step));
        }
        offset = nextOffset(offset);
        QCOMPARE(offset, 0.0);
        QCOMPARE(nextOffset(offset), 1.0);
        QCOMPARE(nextOffset(19), 20.0);
        QCOMPARE(nextOffset(19.5), 0.0);
    }

    void fractionOf_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<float>("expected");
        QTest::newRow("nothing") << 0.0 << 0.0 << 100.0 << 0.0F;
        QTest::newRow("half") << 50.0 << 0.0 << 100.0 << 0.5F;
        QTest::newRow("a third, in single precision") << 1.0 << 0.0 << 3.0 << 1.0F / 3.0F;
        QTest::newRow("the minimum is not taken off the value") << 100.0 << 100.0 << 200.0 << 1.0F;
        QTest::newRow("above the maximum") << 300.0 << 100.0 << 200.0 << 3.0F;
        QTest::newRow("no range") << 5.0 << 10.0 << 10.0 << 0.0F;
    }
    void fractionOf()
    {
        QFETCH(double, value);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QTEST(fraction(value, minimum, maximum), "expected");
    }

    void rect_data()
    {
        QTest::addColumn<float>("filled");
        QTest::addColumn<QRectF>("expected");
        QTest::newRow("full") << 1.0F << QRectF(2, 2, 196, 15);
        QTest::newRow("half") << 0.5F << QRectF(2, 2, 96, 15);
        QTest::newRow("too little to be seen") << 0.02F << QRectF(2, 2, 200 * static_cast<qreal>(0.02F) - 4, 15);
        QTest::newRow("single precision") << 0.1F << QRectF(2, 2, 200 * static_cast<qreal>(0.1F) - 4, 15);
    }
    void rect()
    {
        QFETCH(float, filled);
        QTEST(progressRect(filled, {200, 20}), "expected");
    }

    void stripes_data()
    {
        QTest::addColumn<qreal>("width");
        QTest::addColumn<qint64>("count");
        QTest::newRow("nothing") << 0.0 << Q_INT64_C(21);
        QTest::newRow("just below a pitch") << 19.9 << Q_INT64_C(21);
        QTest::newRow("a pitch") << 20.0 << Q_INT64_C(22);
        QTest::newRow("half a bar") << 96.0 << Q_INT64_C(25);
        QTest::newRow("negative") << -2.0 << Q_INT64_C(20);
    }
    void stripes()
    {
        QFETCH(qreal, width);
        QTEST(stripeCount(width), "count");
    }

    void stripeCorners_data()
    {
        QTest::addColumn<qint64>("k");
        QTest::addColumn<double>("offset");
        QTest::addColumn<qreal>("height");
        QTest::addColumn<QPolygonF>("corners");
        QTest::newRow("first") << Q_INT64_C(0) << 1.0 << 15.0 << QPolygonF({{1, 2}, {11, 2}, {3, 17}, {-7, 17}});
        QTest::newRow("third") << Q_INT64_C(2) << 20.0 << 15.0 << QPolygonF({{60, 2}, {70, 2}, {62, 17}, {52, 17}});
        const auto single = static_cast<qreal>(10.1F);
        QTest::newRow("height in single precision")
            << Q_INT64_C(0) << 0.0 << 10.1 << QPolygonF({{0, 2}, {10, 2}, {2, 2 + single}, {-8, 2 + single}});
    }
    void stripeCorners()
    {
        QFETCH(qint64, k);
        QFETCH(double, offset);
        QFETCH(qreal, height);
        QTEST(stripe(k, offset, height), "corners");
    }

    void everyRedrawMovesTheStripes()
    {
        LBProgressBar bar;
        prepare(bar, 0);
        QCOMPARE(bar.progressOffset(), 0.0);
        pictureOf(&bar);
        QCOMPARE(bar.progressOffset(), 1.0);
        pictureOf(&bar);
        QCOMPARE(bar.progressOffset(), 2.0);
        for (int i = 0; i < 19; ++i)
            pictureOf(&bar);
        QCOMPARE(bar.progressOffset(), 0.0);
    }

    void pixels_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<double>("value");
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<QColor>("color");
        const QColor bezel = palette::chromeText;
        // At the first redraw the offset is 1: at half of the filled height, 9.5 above the bar's lower edge, stripe k
        // covers 20k - 3 to 20k + 7.
        for (const qreal scale : {1.0, 2.0}) {
            const auto row = [&](const char *what, double value, QPointF point, const QColor &color) {
                QTest::addRow("%s @%g", what, scale) << scale << value << point << color;
            };
            row("empty bar", 0, {100.5, 10.5}, bezel);
            row("empty bar's top row", 0, {100.5, 0.75}, QColor(Qt::transparent));
            row("too little to be seen", 1, {3.5, 10.5}, bezel);
            row("first stripe", 50, {4.5, 10.5}, dark);
            row("between the first stripes", 50, {12.5, 10.5}, light);
            row("second stripe", 50, {22.5, 10.5}, dark);
            row("last point of the half", 50, {94.5, 10.5}, light);
            row("behind the half", 50, {99.5, 10.5}, bezel);
            row("above the filled part", 50, {52.5, 1.5}, bezel);
            row("below the filled part", 50, {52.5, 18.5}, bezel);
            // Two lines are drawn in transparent colors.
            row("along the lower edge", 0, {100.5, 19.5}, bezel);
            row("along the lower edge of the filled part", 50, {52.5, 17.5}, light);
            row("full", 100, {193.5, 10.5}, light);
            row("margin behind the full part", 100, {198.4, 9.5}, bezel);
        }
    }
    void pixels()
    {
        QFETCH(qreal, scale);
        QFETCH(double, value);
        QFETCH(QPointF, point);
        QFETCH(QColor, color);
        LBProgressBar bar;
        prepare(bar, value);
        const QImage picture = pictureOf(&bar, scale);
        const QColor found = picture.pixelColor(qFloor(point.x() * scale), qFloor(point.y() * scale));
        if (color.alpha() == 0) {
            // Only the white light on the outline from above is drawn, with an opacity of a fifth.
            QVERIFY2(found.alpha() > 0 && found.alpha() <= 51, qPrintable(found.name(QColor::HexArgb)));
            return;
        }
        QCOMPARE(found.name(QColor::HexArgb), color.name(QColor::HexArgb));
    }

    void drawsTheBezelAnewInAnotherSize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("scale");
        QTest::newRow("wider") << QSize(240, 20) << 1.0;
        QTest::newRow("narrower") << QSize(100, 20) << 1.0;
        QTest::newRow("higher") << QSize(200, 30) << 1.0;
        QTest::newRow("at twice the scale") << QSize(200, 20) << 2.0;
        QTest::newRow("half the size at twice the scale") << QSize(100, 10) << 2.0;
    }
    void drawsTheBezelAnewInAnotherSize()
    {
        QFETCH(QSize, size);
        QFETCH(qreal, scale);
        LBProgressBar fresh;
        prepare(fresh, 0);
        fresh.resize(size);
        LBProgressBar drawn;
        prepare(drawn, 0);
        pictureOf(&drawn);
        drawn.resize(size);
        QCOMPARE(pictureOf(&drawn, scale), pictureOf(&fresh, scale));
    }

    void rightToLeftFillsFromTheRight()
    {
        LBProgressBar bar;
        bar.setLayoutDirection(Qt::RightToLeft);
        prepare(bar, 25);
        const QImage picture = pictureOf(&bar);
        QCOMPARE(picture.pixelColor(20, 10).rgb(), palette::chromeText.rgb());
        QCOMPARE(picture.pixelColor(200 - 13, 10), light);
    }

    void hugeValueIsDrawnWithinTheBar()
    {
        LBProgressBar bar;
        prepare(bar, 1e12);
        const QImage picture = pictureOf(&bar);
        QCOMPARE(picture.pixelColor(152, 10), light);
    }

    void smallValueDrawsNoFilledPart_data()
    {
        QTest::addColumn<double>("value");
        QTest::newRow("two percent gives no width") << 2.0;
        QTest::newRow("below zero") << -20.0;
    }
    void smallValueDrawsNoFilledPart()
    {
        QFETCH(double, value);
        LBProgressBar bar;
        prepare(bar, 0);
        const QImage empty = pictureOf(&bar);
        bar.setDoubleValue(value);
        QCOMPARE(pictureOf(&bar), empty);
    }

    void animatorRunsOnlyWhileVisible()
    {
        LBProgressBar bar;
        prepare(bar, 50);
        bar.startAnimation();
        QVERIFY(bar.isAnimating());
        QVERIFY(!bar.animator().isActive());
        bar.show();
        QVERIFY(bar.animator().isActive());
        QCOMPARE(bar.animator().interval(), 33);
        bar.hide();
        QVERIFY(!bar.animator().isActive());
        bar.show();
        QVERIFY(bar.animator().isActive());
        bar.stopAnimation();
        QVERIFY(!bar.animator().isActive());
    }

    void animatorRedraws()
    {
        LBProgressBar bar;
        prepare(bar, 50);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        const double before = bar.progressOffset();
        bar.startAnimation();
        QTRY_VERIFY(bar.progressOffset() != before);
    }

    void reachingTheMaximum_data()
    {
        QTest::addColumn<bool>("displayedWhenStopped");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("animating");
        QTest::newRow("displayed, at the maximum") << true << 100.0 << true;
        QTest::newRow("not displayed, below the maximum") << false << 99.0 << true;
        QTest::newRow("not displayed, at the maximum") << false << 100.0 << false;
        QTest::newRow("not displayed, above the maximum") << false << 101.0 << false;
    }
    void reachingTheMaximum()
    {
        QFETCH(bool, displayedWhenStopped);
        QFETCH(double, value);
        QFETCH(bool, animating);
        LBProgressBar bar;
        prepare(bar, 0);
        bar.setDisplayedWhenStopped(displayedWhenStopped);
        bar.startAnimation();
        bar.setDoubleValue(value);
        QCOMPARE(bar.doubleValue(), value);
        QCOMPARE(bar.isAnimating(), animating);
    }

    void stoppedBarThatIsNotDisplayed()
    {
        LBProgressBar bar;
        prepare(bar, 50);
        bar.setDisplayedWhenStopped(false);
        QCOMPARE(pictureOf(&bar).pixelColor(100, 10).alpha(), 0);
        bar.startAnimation();
        QCOMPARE(pictureOf(&bar).pixelColor(150, 10).rgb(), palette::chromeText.rgb());
    }

    void accessibility()
    {
        LBProgressBar bar;
        prepare(bar, 42);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&bar);
        QCOMPARE(accessible->role(), QAccessible::ProgressBar);
        QVERIFY(accessible->valueInterface() != nullptr);
        QCOMPARE(accessible->valueInterface()->currentValue().toDouble(), 42.0);
        QCOMPARE(accessible->valueInterface()->minimumValue().toDouble(), 0.0);
        QCOMPARE(accessible->valueInterface()->maximumValue().toDouble(), 100.0);
        QCOMPARE(accessible->text(QAccessible::Value), u"42"_s);
        accessible->valueInterface()->setCurrentValue(7);
        QCOMPARE(bar.doubleValue(), 42.0);
    }
};

QTEST_MAIN(ProgressBarTest)
#include "ProgressBarTest.moc"
