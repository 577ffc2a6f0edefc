// SPDX-License-Identifier: MIT
#include "pictures/pixels/PixelFormat.h"

#include "tests/pictures/TestPictures.h"

#include <QTest>

using namespace lumora;

namespace
{

/// Every value of a channel at every alpha: the value is the column, the alpha the row.
QImage everyColor()
{
    QImage all(256, 256, QImage::Format_RGBA8888);
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (int value = 0; value < 256; ++value)
            all.setPixel(value, alpha, qRgba(value, value, value, alpha));
    }
    return all;
}

/// The visible value of a straight pixel's channel over a background, from 0 to 255.
double shown(int value, int alpha, int ground)
{
    return (value * alpha + ground * (255 - alpha)) / 255.0;
}

} // namespace

class PixelFormatTest : public QObject
{
    Q_OBJECT

private slots:
    void straightenedColorsRoundExactly()
    {
        QImage all(256, 256, QImage::Format_RGBA8888_Premultiplied);
        for (int alpha = 0; alpha < 256; ++alpha) {
            for (int value = 0; value < 256; ++value) {
                uchar *pixel = all.scanLine(alpha) + 4 * value;
                pixel[0] = pixel[1] = pixel[2] = static_cast<uchar>(value);
                pixel[3] = static_cast<uchar>(alpha);
            }
        }
        const QImage result = straightened(all);
        for (int alpha = 0; alpha < 256; ++alpha) {
            for (int value = 0; value < 256; ++value) {
                const int held = std::min(value, alpha);
                const int wanted = alpha == 0 ? 0 : (2 * held * 255 + alpha) / (2 * alpha);
                QCOMPARE(int(result.constScanLine(alpha)[4 * value]), wanted);
            }
        }
    }

    void premultipliedColorsRoundExactly()
    {
        const QImage result = premultiplied(everyColor());
        for (int alpha = 0; alpha < 256; ++alpha) {
            for (int value = 0; value < 256; ++value)
                QCOMPARE(int(result.constScanLine(alpha)[4 * value]), (2 * value * alpha + 255) / 510);
        }
    }

    void nothingThatShowsIsLost_data()
    {
        QTest::addColumn<int>("ground");
        QTest::newRow("on black") << 0;
        QTest::newRow("on grey") << 128;
        QTest::newRow("on white") << 255;
    }
    void nothingThatShowsIsLost()
    {
        QFETCH(int, ground);
        const QImage result = straightened(everyColor());
        for (int alpha = 0; alpha < 256; ++alpha) {
            for (int value = 0; value < 256; ++value) {
                const uchar *pixel = result.constScanLine(alpha) + 4 * value;
                QCOMPARE(int(pixel[3]), alpha);
                QVERIFY(std::abs(shown(pixel[0], alpha, ground) - shown(value, alpha, ground)) < 1);
            }
        }
    }

    void nothingThatNobodySeesIsKept()
    {
        const QImage result = straightened(everyColor());
        for (int alpha = 0; alpha < 256; ++alpha) {
            int shades = 1;
            for (int value = 1; value < 256; ++value)
                shades += result.constScanLine(alpha)[4 * value] != result.constScanLine(alpha)[4 * value - 4] ? 1 : 0;
            QCOMPARE(shades, alpha + 1);
        }
        // Straight pixels do not change when they are converted again.
        QCOMPARE(straightened(result), result);
    }
};

QTEST_APPLESS_MAIN(PixelFormatTest)
#include "PixelFormatTest.moc"
