// SPDX-License-Identifier: MIT
#include "pictures/scaling/Resampler.h"

#include <QTest>

using namespace lumora;

namespace
{

QImage flat(QSize size, QColor color)
{
    QImage picture(size, QImage::Format_RGBA8888);
    picture.fill(color);
    return picture;
}

/// White where the left half is, transparent red elsewhere.
QImage halfWhite()
{
    QImage picture = flat({64, 64}, QColor(255, 0, 0, 0));
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 32; ++x)
            picture.setPixelColor(x, y, Qt::white);
    }
    return picture;
}

} // namespace

class StraightResamplingTest : public QObject
{
    Q_OBJECT

private slots:
    void aFlatColourStays_data()
    {
        QTest::addColumn<QColor>("color");
        for (const int alpha : {1, 2, 7, 50, 100, 127, 128, 200, 254, 255})
            QTest::addRow("alpha %d", alpha) << QColor(200, 101, 3, alpha);
        QTest::newRow("faint white") << QColor(255, 255, 255, 1);
        QTest::newRow("faint black") << QColor(0, 0, 0, 1);
    }
    void aFlatColourStays()
    {
        QFETCH(QColor, color);
        for (const QSize to : {QSize(20, 20), QSize(41, 13), QSize(1, 1), QSize(7, 30)}) {
            const QImage result = resampleStraight(flat({41, 60}, color), to);
            QCOMPARE(result, flat(to, color));
        }
    }

    void anOpaquePictureIsResampledAsEver()
    {
        QImage picture(40, 40, QImage::Format_RGBA8888);
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x)
                picture.setPixelColor(x, y, QColor((x * 97) % 256, (y * 61) % 256, (x * y) % 256));
        }
        QImage expected = resample(picture, {20, 20});
        expected.reinterpretAsFormat(QImage::Format_RGBA8888);
        QCOMPARE(resampleStraight(picture, {20, 20}), expected);
    }

    void hiddenColoursDoNotBleed()
    {
        const QImage result = resampleStraight(halfWhite(), {32, 32});
        for (int x = 0; x < 32; ++x) {
            const QColor color = result.pixelColor(x, 16);
            if (color.alpha() > 0)
                QCOMPARE(color.rgb(), QColor(Qt::white).rgb());
            else
                QCOMPARE(color, QColor(0, 0, 0, 0));
        }
        QCOMPARE(result.pixelColor(4, 16).alpha(), 255);
        QCOMPARE(result.pixelColor(28, 16).alpha(), 0);
    }

    void nothingGivesNothing()
    {
        QVERIFY(resampleStraight(QImage(), {5, 5}).isNull());
        QVERIFY(resampleStraight(flat({4, 4}, Qt::red), {0, 5}).isNull());
    }
};

QTEST_APPLESS_MAIN(StraightResamplingTest)
#include "StraightResamplingTest.moc"
