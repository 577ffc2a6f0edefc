// SPDX-License-Identifier: MIT
#include "placeholders/PlaceholderLabel.h"
#include "placeholders/LabelFont.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// Lato-Bold's metrics, in units of 2000 to the em: every digit, the space, the letter x, and the line.
constexpr double digit = 1160;
constexpr double space = 486;
constexpr double smallX = 1044;
constexpr double lineHeight = 1974 + 426;
constexpr double unitsPerEm = 2000;

} // namespace

class PlaceholderLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void saysTheSizeInWholePixels_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QString>("text");
        QTest::newRow("a phone's screen") << QSizeF(1136, 640) << u"1136 x 640"_s;
        QTest::newRow("fractions are cut off") << QSizeF(99.9, 10.5) << u"99 x 10"_s;
        QTest::newRow("the smallest") << QSizeF(1, 1) << u"1 x 1"_s;
        QTest::newRow("no grouping of thousands") << QSizeF(9999, 1) << u"9999 x 1"_s;
    }
    void saysTheSizeInWholePixels()
    {
        QFETCH(QSizeF, size);
        QTEST(labelText(size), "text");
    }

    void fontSizeIsATenthOfTheWidth_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<float>("points");
        QTest::newRow("320") << 320.0 << 32.0F;
        QTest::newRow("1440") << 1440.0 << 144.0F;
        QTest::newRow("a fraction of a point stays") << 1136.0 << 113.6F;
        QTest::newRow("the widest") << 9999.0 << 999.9F;
        QTest::newRow("the narrowest") << 1.0 << 0.1F;
    }
    void fontSizeIsATenthOfTheWidth()
    {
        QFETCH(double, width);
        QFETCH(float, points);
        // Exact single precision, without tolerance.
        QVERIFY(labelPointSize(width) == points);
    }

    void originSnapsDownToWholePixels_data()
    {
        QTest::addColumn<QSizeF>("picture");
        QTest::addColumn<QSizeF>("text");
        QTest::addColumn<QPointF>("origin");
        QTest::newRow("already whole") << QSizeF(100, 50) << QSizeF(40, 20) << QPointF(30, 15);
        QTest::newRow("fraction below a half") << QSizeF(100, 50) << QSizeF(39.5, 19.5) << QPointF(30, 15);
        QTest::newRow("fraction above a half") << QSizeF(100, 50) << QSizeF(38.5, 18.5) << QPointF(30, 15);
        QTest::newRow("just short of whole") << QSizeF(101, 51) << QSizeF(40, 20) << QPointF(30, 15);
        QTest::newRow("a strip lower than its text") << QSizeF(1000, 1) << QSizeF(500, 120) << QPointF(250, -60);
    }
    void originSnapsDownToWholePixels()
    {
        QFETCH(QSizeF, picture);
        QFETCH(QSizeF, text);
        QFETCH(QPointF, origin);
        QCOMPARE(labelRectangle(picture, text), QRectF(origin, text));
    }

    void measuresByTheFontsOwnAdvances_data()
    {
        QTest::addColumn<QSizeF>("picture");
        QTest::addColumn<int>("digits");
        QTest::newRow("1136 x 640") << QSizeF(1136, 640) << 7;
        QTest::newRow("320 x 480") << QSizeF(320, 480) << 6;
        QTest::newRow("9999 x 9999") << QSizeF(9999, 9999) << 8;
        QTest::newRow("1 x 1") << QSizeF(1, 1) << 2;
    }
    void measuresByTheFontsOwnAdvances()
    {
        QFETCH(QSizeF, picture);
        QFETCH(int, digits);
        const double points = labelPointSize(picture.width());
        const QSizeF measured = labelSize(picture, LabelFont());
        // Only the order of a few additions and multiplications of doubles may differ.
        QVERIFY(std::abs(measured.width() - (digits * digit + 2 * space + smallX) / unitsPerEm * points) < 1e-9);
        QVERIFY(std::abs(measured.height() - lineHeight / unitsPerEm * points) < 1e-9);
    }

    void outlineLiesInItsLine_data()
    {
        QTest::addColumn<QSizeF>("picture");
        QTest::newRow("landscape") << QSizeF(1136, 640);
        QTest::newRow("portrait") << QSizeF(320, 480);
        QTest::newRow("strip") << QSizeF(9999, 1);
        QTest::newRow("column") << QSizeF(1, 9999);
    }
    void outlineLiesInItsLine()
    {
        QFETCH(QSizeF, picture);
        const LabelFont font;
        const double points = labelPointSize(picture.width());
        const QRectF line = labelRectangle(picture, labelSize(picture, font));
        const QRectF shape = labelOutline(picture, font).boundingRect();
        QVERIFY(shape.left() >= line.left() && shape.right() <= line.right());
        // Digits stand on the baseline, which is the descent above the line's bottom, and are 1448 units tall; round
        // ones overshoot both ends by less than 20 units.
        const double baseline = picture.height() - (line.y() + 426 / unitsPerEm * points);
        const double overshoot = 20 / unitsPerEm * points;
        QVERIFY(std::abs(shape.bottom() - baseline) <= overshoot);
        QVERIFY(std::abs(shape.top() - (baseline - 1448 / unitsPerEm * points)) <= overshoot);
    }
};

QTEST_MAIN(PlaceholderLabelTest)
#include "PlaceholderLabelTest.moc"
