// SPDX-License-Identifier: MIT
#include "icons/today/IconMasks.h"

#include <QTest>

#include <cmath>

using namespace lumora;

class IconMasksTest : public QObject
{
    Q_OBJECT

private slots:
    void zones();
    void masks_data();
    void masks();
    void macBody();
};

void IconMasksTest::zones()
{
    const QRectF layer(10, 20, 108, 108);
    QCOMPARE(adaptiveViewport(layer), QRectF(28, 38, 72, 72));
    QCOMPARE(adaptiveSafeZone(layer), QRectF(31, 41, 66, 66));
    QCOMPARE(maskableSafeZone(QRectF(0, 0, 100, 100)), QRectF(10, 10, 80, 80));
}

void IconMasksTest::masks_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<bool>("upperLeft"); ///< whether a point near that corner is shown
    QTest::addColumn<bool>("lowerRight");
    QTest::newRow("circle") << static_cast<int>(AndroidMask::Circle) << false << false;
    QTest::newRow("squircle") << static_cast<int>(AndroidMask::Squircle) << false << false;
    QTest::newRow("rounded square") << static_cast<int>(AndroidMask::RoundedSquare) << true << true;
    QTest::newRow("teardrop") << static_cast<int>(AndroidMask::Teardrop) << false << true;
}

void IconMasksTest::masks()
{
    QFETCH(int, mask);
    const QRectF viewport(0, 0, 72, 72);
    const QPainterPath outline = maskOutline(static_cast<AndroidMask>(mask), viewport);
    QCOMPARE(outline.boundingRect().toAlignedRect(), viewport.toRect());
    // Every mask shows the whole safe zone.
    const double radius = 33;
    for (int degrees = 0; degrees < 360; ++degrees) {
        const double angle = degrees * M_PI / 180;
        QVERIFY2(outline.contains(QPointF(36 + radius * std::cos(angle), 36 + radius * std::sin(angle))),
                 qPrintable(QString::number(degrees)));
    }
    QTEST(outline.contains(QPointF(5, 5)), "upperLeft");
    QTEST(outline.contains(QPointF(67, 67)), "lowerRight");
    QVERIFY(!outline.contains(QPointF(0.5, 0.5)));
    QVERIFY(!outline.contains(QPointF(71.7, 71.7)));
}

void IconMasksTest::macBody()
{
    const QPainterPath outline = macBodyOutline(QRectF(0, 0, 512, 512));
    QCOMPARE(outline.boundingRect(), QRectF(50, 50, 412, 412));
    QVERIFY(!outline.contains(QPointF(60, 60)));
    QVERIFY(outline.contains(QPointF(90, 90)));
}

QTEST_APPLESS_MAIN(IconMasksTest)

#include "IconMasksTest.moc"
