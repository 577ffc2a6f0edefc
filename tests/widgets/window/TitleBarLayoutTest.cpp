// SPDX-License-Identifier: MIT
#include "widgets/window/TitleBarLayout.h"

#include <QTest>

using namespace lumora;

class TitleBarLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void splitsTheWindow()
    {
        QCOMPARE(titleBarRect(QSizeF(900, 660), 60), QRectF(0, 600, 900, 60));
        QCOMPARE(contentRectBelowTitleBar(QSizeF(900, 660), 60), QRectF(0, 0, 900, 600));
        QCOMPARE(contentRectBelowTitleBar(QSizeF(900, 40), 60), QRectF(0, 0, 900, 0));
    }

    void laysOutTheTrafficLights_data()
    {
        QTest::addColumn<bool>("vertical");
        QTest::addColumn<bool>("centered");
        QTest::addColumn<qreal>("topMargin");
        QTest::addColumn<qreal>("barHeight");
        QTest::addColumn<QPointF>("close");
        QTest::addColumn<QPointF>("minimize");
        QTest::addColumn<QPointF>("zoom");

        // Buttons of 16 × 16, 14 × 18 and 20 × 12, left margin 60, separation 8; the bar's upper edge at y 660.
        QTest::newRow("side by side, centred")
            << false << true << 5.0 << 60.0 << QPointF(60, 622) << QPointF(84, 621) << QPointF(106, 624);
        QTest::newRow("side by side, by the top margin")
            << false << false << 5.0 << 60.0 << QPointF(60, 639) << QPointF(84, 637) << QPointF(106, 643);
        QTest::newRow("side by side, at the very top")
            << false << false << 0.0 << 60.0 << QPointF(60, 644) << QPointF(84, 642) << QPointF(106, 648);
        QTest::newRow("side by side, centred on a half point")
            << false << true << 0.0 << 61.0 << QPointF(60, 621.5) << QPointF(84, 620.5) << QPointF(106, 623.5);
        // Stacked they take 16 + 18 + 12 + 2 * (8 - 2) = 58 points.
        QTest::newRow("stacked, centred")
            << true << true << 5.0 << 60.0 << QPointF(60, 643) << QPointF(60, 619) << QPointF(60, 601);
        QTest::newRow("stacked, centred on a whole point")
            << true << true << 0.0 << 61.0 << QPointF(60, 643) << QPointF(60, 619) << QPointF(60, 601);
        QTest::newRow("stacked, by the top margin")
            << true << false << 5.0 << 60.0 << QPointF(60, 639) << QPointF(60, 615) << QPointF(60, 597);
    }
    void laysOutTheTrafficLights()
    {
        QFETCH(bool, vertical);
        QFETCH(bool, centered);
        QFETCH(qreal, topMargin);
        QFETCH(qreal, barHeight);
        TrafficLights lights;
        lights.sizes = {QSizeF(16, 16), QSizeF(14, 18), QSizeF(20, 12)};
        lights.leftMargin = 60;
        lights.topMargin = topMargin;
        lights.separation = 8;
        lights.centered = centered;
        lights.vertical = vertical;
        const auto rects = trafficLightRects(lights, titleBarRect(QSizeF(900, 660), barHeight));
        QTEST(rects[0].topLeft(), "close");
        QTEST(rects[1].topLeft(), "minimize");
        QTEST(rects[2].topLeft(), "zoom");
        for (size_t i = 0; i < rects.size(); ++i)
            QCOMPARE(rects[i].size(), lights.sizes[i]);
    }

    void laysOutTheFullScreenButton()
    {
        const QRectF bar(0, 600, 900, 60);
        QCOMPARE(fullScreenButtonRect(QSizeF(16, 16), 8, 5, true, bar), QRectF(876, 622, 16, 16));
        QCOMPARE(fullScreenButtonRect(QSizeF(16, 16), 8, 5, false, bar), QRectF(876, 639, 16, 16));
    }

    void placesTheTitle_data()
    {
        QTest::addColumn<qreal>("width");
        QTest::addColumn<qreal>("leftLimit");
        QTest::addColumn<qreal>("rightLimit");
        QTest::addColumn<bool>("centered");
        QTest::addColumn<QRectF>("frame");

        QTest::newRow("in the middle") << 100.0 << 140.0 << 876.0 << true << QRectF(400, 621, 100, 18);
        QTest::newRow("in the middle of the standard height")
            << 100.0 << 140.0 << 876.0 << false << QRectF(400, 639, 100, 18);
        QTest::newRow("pushed off the buttons") << 700.0 << 140.0 << 876.0 << true << QRectF(140, 621, 700, 18);
        QTest::newRow("cut between the buttons") << 2000.0 << 140.0 << 876.0 << true << QRectF(140, 621, 736, 18);
        QTest::newRow("pushed off the right button") << 300.0 << 20.0 << 500.0 << true << QRectF(200, 621, 300, 18);
        QTest::newRow("no room at all") << 100.0 << 500.0 << 400.0 << true << QRectF(500, 621, 0, 18);
    }
    void placesTheTitle()
    {
        QFETCH(qreal, width);
        QFETCH(qreal, leftLimit);
        QFETCH(qreal, rightLimit);
        QFETCH(bool, centered);
        QTEST(titleRect(QSizeF(width, 18), QRectF(0, 600, 900, 60), leftLimit, rightLimit, centered, 24), "frame");
    }
};

QTEST_GUILESS_MAIN(TitleBarLayoutTest)
#include "TitleBarLayoutTest.moc"
