// SPDX-License-Identifier: MIT
#include "pictures/scaling/ColorPlanes.h"
#include "pictures/scaling/Resampler.h"
#include "pictures/scaling/RingingClamp.h"
#include "tests/pictures/TestPictures.h"

#include <QTest>

#include <cmath>

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

/// The wide soft shadow of a dark bar, as drawing programs write it: nearly black, slightly different in each pixel,
/// and white where the alpha is 1.
QImage softShadow()
{
    QImage picture(96, 64, QImage::Format_RGBA8888);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const double away = std::hypot((x - 48) / 30.0, (y - 32) / 20.0);
            const int alpha = static_cast<int>(std::lround(120 * std::exp(-2 * away * away)));
            const int black = (x * 7 + y * 5) % 4;
            picture.setPixel(x, y, alpha == 1 ? qRgba(255, 255, 255, 1) : qRgba(black, black, black, alpha));
        }
    }
    return picture;
}

/// The picture premultiplied in 16 bits a sample, scaled and clamped.
ColorPlanes precisePlanes(const QImage &picture, QSize size)
{
    ColorPlanes planes(picture.size(), 4, SampleDepth::Bits16);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const uchar *pixel = picture.constScanLine(y) + 4 * x;
            for (int channel = 0; channel < 3; ++channel)
                planes.row<std::uint16_t>(channel, y)[x] =
                    static_cast<std::uint16_t>(std::lround(pixel[channel] * pixel[3] / 255.0 * 257));
            planes.row<std::uint16_t>(3, y)[x] = static_cast<std::uint16_t>(pixel[3] * 257);
        }
    }
    auto scaled = planes.scaledTo(size).value();
    clampRinging(planes, *scaled);
    return std::move(*scaled);
}

} // namespace

class TranslucentResamplingTest : public QObject
{
    Q_OBJECT

private slots:
    void aFlatColorStays_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QColor>("shown");
        // The color as bytes of premultiplied color can hold it: each channel is a multiple of 255 / alpha.
        QTest::newRow("alpha 1") << QColor(200, 101, 3, 1) << QColor(255, 0, 0, 1);
        QTest::newRow("alpha 2") << QColor(200, 101, 3, 2) << QColor(255, 128, 0, 2);
        QTest::newRow("alpha 7") << QColor(200, 101, 3, 7) << QColor(182, 109, 0, 7);
        QTest::newRow("alpha 50") << QColor(200, 101, 3, 50) << QColor(199, 102, 5, 50);
        QTest::newRow("alpha 100") << QColor(200, 101, 3, 100) << QColor(199, 102, 3, 100);
        QTest::newRow("alpha 128") << QColor(200, 101, 3, 128) << QColor(199, 102, 4, 128);
        QTest::newRow("alpha 200") << QColor(200, 101, 3, 200) << QColor(200, 101, 3, 200);
        QTest::newRow("alpha 254") << QColor(200, 101, 3, 254) << QColor(200, 101, 3, 254);
        QTest::newRow("opaque") << QColor(200, 101, 3) << QColor(200, 101, 3);
        QTest::newRow("faint white") << QColor(255, 255, 255, 1) << QColor(255, 255, 255, 1);
        QTest::newRow("faint black") << QColor(0, 0, 0, 1) << QColor(0, 0, 0, 1);
    }
    void aFlatColorStays()
    {
        QFETCH(QColor, color);
        QFETCH(QColor, shown);
        for (const QSize to : {QSize(20, 20), QSize(41, 13), QSize(1, 1), QSize(7, 30)})
            QCOMPARE(straightened(resampled(flat({41, 60}, color), to)), flat(to, shown));
    }

    void anOpaquePictureIsScaledLikeAnyOther()
    {
        QImage picture(40, 40, QImage::Format_RGBA8888);
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x)
                picture.setPixelColor(x, y, QColor((x * 97) % 256, (y * 61) % 256, (x * y) % 256));
        }
        QCOMPARE(resampled(picture, {20, 20}), resampled(picture.convertToFormat(QImage::Format_RGB32), {20, 20}));
    }

    void hiddenColorsDoNotBleed()
    {
        const QImage result = straightened(resampled(halfWhite(), {32, 32}));
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

    void alphaIsRounded()
    {
        const QSize size(48, 32);
        const ColorPlanes precise = precisePlanes(softShadow(), size);
        const QImage result = resampled(softShadow(), size);
        int up = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const double wanted = precise.row<std::uint16_t>(3, y)[x] / 257.0;
                QCOMPARE(qAlpha(result.pixel(x, y)), static_cast<int>(std::lround(wanted)));
                up += std::lround(wanted) > wanted ? 1 : 0;
            }
        }
        QVERIFY(up > 100);
    }

    void nothingThatShowsIsLost_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::newRow("soft shadow") << softShadow();
        QTest::newRow("all kinds of transparency") << testPicture(97, 64).convertToFormat(QImage::Format_RGBA8888);
        QTest::newRow("white beside nothing") << halfWhite();
    }
    void nothingThatShowsIsLost()
    {
        QFETCH(QImage, picture);
        const QSize size = picture.size() / 2;
        const ColorPlanes precise = precisePlanes(picture, size);
        const QImage result = straightened(resampled(picture, size));
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const uchar *pixel = result.constScanLine(y) + 4 * x;
                const double alpha = precise.row<std::uint16_t>(3, y)[x];
                for (int channel = 0; channel < 3 && pixel[3] > 0; ++channel) {
                    const double color = 255 * std::min(precise.row<std::uint16_t>(channel, y)[x] / alpha, 1.0);
                    for (const int ground : {0, 128, 255}) {
                        const double wanted = (color * pixel[3] + ground * (255 - pixel[3])) / 255.0;
                        const double shown = (pixel[channel] * pixel[3] + ground * (255 - pixel[3])) / 255.0;
                        QVERIFY2(std::abs(shown - wanted) <= 1, qPrintable(QString::number(shown - wanted)));
                    }
                }
            }
        }
    }

    void aShadowHasNoColorsThatNobodySees()
    {
        const QImage result = straightened(resampled(softShadow(), {48, 32}));
        int faint = 0;
        for (int y = 0; y < result.height(); ++y) {
            for (int x = 0; x < result.width(); ++x) {
                const QRgb pixel = result.pixel(x, y);
                // A color of at most 3 needs an alpha of 43 to be visible.
                if (qAlpha(pixel) < 4 || qAlpha(pixel) > 40)
                    continue;
                ++faint;
                QCOMPARE(pixel & RGB_MASK, 0U);
            }
        }
        QVERIFY(faint > 100);
    }
};

QTEST_APPLESS_MAIN(TranslucentResamplingTest)
#include "TranslucentResamplingTest.moc"
