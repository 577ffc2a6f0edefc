// SPDX-License-Identifier: MIT
#include "placeholders/OutlineCoverage.h"

#include <QTest>

#include <numbers>

using namespace lumora;

namespace
{

QPainterPath rectangle(double x, double y, double width, double height)
{
    QPainterPath path;
    path.addRect(x, y, width, height);
    return path;
}

QPainterPath ring()
{
    QPainterPath path = rectangle(0, 0, 5, 5);
    path.addPath(rectangle(1, 1, 3, 3).toReversed());
    return path;
}

QPainterPath twoOnOneAnother()
{
    QPainterPath path = rectangle(0, 0, 2, 1);
    path.addPath(rectangle(1, 0, 2, 1));
    return path;
}

QPainterPath triangle()
{
    QPainterPath path(QPointF(0, 0));
    path.lineTo(4, 4);
    path.lineTo(0, 4);
    return path;
}

QPainterPath flatTriangle()
{
    QPainterPath path(QPointF(0, 0));
    path.lineTo(4, 1);
    path.lineTo(0, 1);
    return path;
}

QList<int> rowOf(const OutlineCoverage &coverage, int row)
{
    std::vector<unsigned char> bytes(static_cast<std::size_t>(coverage.bounds().width()));
    coverage.readRow(row, bytes);
    return {bytes.begin(), bytes.end()};
}

} // namespace

class OutlineCoverageTest : public QObject
{
    Q_OBJECT

private slots:
    void coversPixelsByArea_data()
    {
        QTest::addColumn<QPainterPath>("outline");
        QTest::addColumn<int>("row");
        QTest::addColumn<QList<int>>("coverage");
        QTest::newRow("whole pixels") << rectangle(3, 2, 2, 1) << 2 << QList<int>{255, 255};
        QTest::newRow("drawn the other way round") << rectangle(3, 2, 2, 1).toReversed() << 2 << QList<int>{255, 255};
        QTest::newRow("left of the origin") << rectangle(-7, -3, 2, 1) << -3 << QList<int>{255, 255};
        QTest::newRow("half a pixel each side") << rectangle(0.5, 0, 2, 1) << 0 << QList<int>{128, 255, 128};
        QTest::newRow("a quarter of the row") << rectangle(0, 0.75, 2, 1) << 0 << QList<int>{64, 64};
        QTest::newRow("inside one pixel") << rectangle(0.25, 0.25, 0.5, 0.5) << 0 << QList<int>{64};
        QTest::newRow("a hole stays open") << ring() << 2 << QList<int>{255, 0, 0, 0, 255};
        QTest::newRow("above a hole") << ring() << 0 << QList<int>{255, 255, 255, 255, 255};
        QTest::newRow("what lies twice on a pixel covers it once")
            << twoOnOneAnother() << 0 << QList<int>{255, 255, 255};
        QTest::newRow("a slope halves its pixel") << triangle() << 2 << QList<int>{255, 255, 128, 0};
        QTest::newRow("a slope over several pixels") << flatTriangle() << 0 << QList<int>{223, 159, 96, 32};
        QTest::newRow("a row above") << rectangle(0, 4, 3, 1) << 3 << QList<int>{0, 0, 0};
        QTest::newRow("a row below") << rectangle(0, 4, 3, 1) << 5 << QList<int>{0, 0, 0};
    }
    void coversPixelsByArea()
    {
        QFETCH(QPainterPath, outline);
        QFETCH(int, row);
        QTEST(rowOf(OutlineCoverage(outline), row), "coverage");
    }

    void aCircleHasItsArea()
    {
        constexpr double radius = 40;
        QPainterPath circle;
        circle.addEllipse(QPointF(50.3, 50.7), radius, radius);
        const OutlineCoverage coverage(circle);
        double area = 0;
        for (int row = coverage.bounds().top(); row <= coverage.bounds().bottom(); ++row) {
            for (const int covered : rowOf(coverage, row))
                area += covered / 255.0;
        }
        // Rounding each of the about 320 edge pixels to a byte, and four cubic arcs for a circle, give an error below 1
        // in 1000.
        const double exact = std::numbers::pi * radius * radius;
        QVERIFY(std::abs(area - exact) < exact / 1000);
    }

    void anEmptyOutlineCoversNothing() { QVERIFY(OutlineCoverage(QPainterPath()).bounds().isEmpty()); }
};

QTEST_APPLESS_MAIN(OutlineCoverageTest)
#include "OutlineCoverageTest.moc"
