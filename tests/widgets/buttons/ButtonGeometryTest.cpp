// SPDX-License-Identifier: MIT
#include "widgets/buttons/ButtonGeometry.h"

#include <QTest>

using namespace lumora::buttongeometry;

class ButtonGeometryTest : public QObject
{
    Q_OBJECT
private slots:
    void textTop_data()
    {
        QTest::addColumn<qreal>("height");
        QTest::addColumn<qreal>("textHeight");
        QTest::addColumn<qreal>("selection");
        QTest::addColumn<qreal>("filled");
        QTest::newRow("whole numbers") << 24.0 << 18.0 << 1.0 << 0.0;
        QTest::newRow("fractions are rounded down") << 36.0 << 15.6 << 8.0 << 7.0;
        QTest::newRow("odd height") << 25.0 << 18.0 << 1.0 << 0.0;
        QTest::newRow("text as high as the bounds rises above them") << 18.0 << 18.0 << -2.0 << -3.0;
        QTest::newRow("negative results are rounded down too") << 19.0 << 18.0 << -2.0 << -3.0;
    }
    void textTop()
    {
        QFETCH(qreal, height);
        QFETCH(qreal, textHeight);
        QTEST(selectionTextTop(height, textHeight), "selection");
        QTEST(filledTextTop(height, textHeight), "filled");
    }

    void selectionParts_data()
    {
        QTest::addColumn<QSizeF>("bounds");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QRectF>("image");
        QTest::addColumn<QRectF>("text");
        QTest::newRow("left to right") << QSizeF(120, 24) << Qt::LeftToRight << QRectF(0, 0, 20, 20)
                                       << QRectF(30, 0, 90, 24);
        QTest::newRow("right to left") << QSizeF(120, 24) << Qt::RightToLeft << QRectF(100, 0, 20, 20)
                                       << QRectF(0, 0, 90, 24);
        QTest::newRow("tall") << QSizeF(120, 40) << Qt::LeftToRight << QRectF(0, 8, 20, 20) << QRectF(30, 0, 90, 40);
        QTest::newRow("lower than the image")
            << QSizeF(120, 16) << Qt::LeftToRight << QRectF(0, 0, 20, 20) << QRectF(30, 0, 90, 16);
        QTest::newRow("no room for text")
            << QSizeF(20, 24) << Qt::LeftToRight << QRectF(0, 0, 20, 20) << QRectF(30, 0, 0, 24);
    }
    void selectionParts()
    {
        QFETCH(QSizeF, bounds);
        QFETCH(Qt::LayoutDirection, direction);
        QTEST(selectionImageRect(bounds, direction), "image");
        QTEST(selectionTextArea(bounds, direction), "text");
    }

    void icon_data()
    {
        QTest::addColumn<QSizeF>("bounds");
        QTest::addColumn<QSizeF>("iconSize");
        QTest::addColumn<QRectF>("ink");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QRectF>("expected");
        const QRectF leftTenth(0.05, 0.25, 0.1, 0.5);
        QTest::newRow("bounds of the icon's own size")
            << QSizeF(180, 36) << QSizeF(180, 36) << leftTenth << Qt::LeftToRight << QRectF(0, 0, 180, 36);
        QTest::newRow("narrow bounds keep the aspect at full height")
            << QSizeF(90, 36) << QSizeF(180, 36) << leftTenth << Qt::LeftToRight << QRectF(0, 0, 180, 36);
        QTest::newRow("wide bounds keep the icon at the left")
            << QSizeF(400, 36) << QSizeF(180, 36) << leftTenth << Qt::LeftToRight << QRectF(0, 0, 180, 36);
        QTest::newRow("higher bounds enlarge it")
            << QSizeF(400, 72) << QSizeF(180, 36) << leftTenth << Qt::LeftToRight << QRectF(0, 0, 360, 72);
        QTest::newRow("a full picture shrinks into narrow bounds")
            << QSizeF(18, 36) << QSizeF(36, 36) << QRectF(0, 0, 1, 1) << Qt::LeftToRight << QRectF(0, 9, 18, 18);
        QTest::newRow("right to left puts the ink at the right, unturned")
            << QSizeF(180, 36) << QSizeF(180, 36) << leftTenth << Qt::RightToLeft << QRectF(144, 0, 180, 36);
        QTest::newRow("no icon") << QSizeF(180, 36) << QSizeF() << QRectF() << Qt::LeftToRight << QRectF();
    }
    void icon()
    {
        QFETCH(QSizeF, bounds);
        QFETCH(QSizeF, iconSize);
        QFETCH(QRectF, ink);
        QFETCH(Qt::LayoutDirection, direction);
        QTEST(iconRect(bounds, iconSize, ink, direction), "expected");
    }

    void filledText_data()
    {
        QTest::addColumn<QRectF>("ink");
        QTest::addColumn<qreal>("textWidth");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QRectF>("expected");
        const QRectF left(12, 9, 18, 18);
        const QRectF right(150, 9, 18, 18);
        QTest::newRow("without an icon") << QRectF() << 60.0 << Qt::LeftToRight << QRectF(8, 0, 164, 36);
        QTest::newRow("text clear of the icon") << left << 104.0 << Qt::LeftToRight << QRectF(8, 0, 164, 36);
        QTest::newRow("text one point too wide") << left << 105.0 << Qt::LeftToRight << QRectF(38, 0, 134, 36);
        QTest::newRow("text too wide, right to left") << right << 105.0 << Qt::RightToLeft << QRectF(8, 0, 134, 36);
    }
    void filledText()
    {
        QFETCH(QRectF, ink);
        QFETCH(qreal, textWidth);
        QFETCH(Qt::LayoutDirection, direction);
        QTEST(filledTextArea({180, 36}, ink, textWidth, direction), "expected");
    }

    void centeredImage_data()
    {
        QTest::addColumn<QSizeF>("imageSize");
        QTest::addColumn<QRectF>("expected");
        QTest::newRow("smaller than the bounds") << QSizeF(32, 32) << QRectF(14, 14, 32, 32);
        QTest::newRow("as large as the bounds") << QSizeF(60, 60) << QRectF(0, 0, 60, 60);
        QTest::newRow("wider than the bounds") << QSizeF(120, 60) << QRectF(0, 15, 60, 30);
        QTest::newRow("empty") << QSizeF(0, 0) << QRectF();
    }
    void centeredImage()
    {
        QFETCH(QSizeF, imageSize);
        QTEST(centeredImageRect({60, 60}, imageSize), "expected");
    }
};

QTEST_MAIN(ButtonGeometryTest)
#include "ButtonGeometryTest.moc"
