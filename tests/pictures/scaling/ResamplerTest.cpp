// SPDX-License-Identifier: MIT
#include "pictures/scaling/Resampler.h"

#include "ZonePlate.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/pixels/SizeText.h"
#include "tests/pictures/TestPictures.h"

#include <QTest>

#include <cmath>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QImage disc(QColor color)
{
    QImage picture(zonePlateEdge, zonePlateEdge, QImage::Format_RGBA8888);
    picture.fill(QColor(0, 0, 0, 0));
    for (int y = 0; y < zonePlateEdge; ++y) {
        for (int x = 0; x < zonePlateEdge; ++x) {
            const double inside = 400.5 - std::hypot(x - 511.5, y - 511.5);
            color.setAlphaF(static_cast<float>(std::clamp(inside, 0.0, 1.0)));
            picture.setPixelColor(x, y, color);
        }
    }
    return picture;
}

} // namespace

class ResamplerTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsDetailAndAddsNone_data();
    void keepsDetailAndAddsNone();
    void transparentSurroundingsLeaveNoHalo_data();
    void transparentSurroundingsLeaveNoHalo();
    void ownSizeGivesTheSamePixels();
    void sizesDoNotDependOnEachOther();
    void noColorExceedsItsAlpha();
    void anySize_data();
    void anySize();
    void failsWithItsReason_data();
    void failsWithItsReason();
    void opaqueStaysOpaque();
};

void ResamplerTest::keepsDetailAndAddsNone_data()
{
    QTest::addColumn<int>("edge");
    QTest::addColumn<double>("aliasing");
    QTest::addColumn<double>("passband");
    // A little above the limits of Lanczos 3; a filter with fewer lobes, or none, fails each row by far.
    QTest::newRow("57") << 57 << 1.2 << 0.5;
    QTest::newRow("120") << 120 << 2.3 << 3.0;
    QTest::newRow("180") << 180 << 2.0 << 2.0;
    QTest::newRow("512") << 512 << 7.5 << 1.2;
}

void ResamplerTest::keepsDetailAndAddsNone()
{
    QFETCH(int, edge);
    QFETCH(double, aliasing);
    QFETCH(double, passband);
    const ZonePlateErrors errors = zonePlateErrors(resampled(zonePlatePicture(), {edge, edge}));
    qInfo("%d: aliasing %.2f passband %.2f", edge, errors.aliasing, errors.passband);
    QVERIFY2(errors.aliasing <= aliasing, qPrintable(QString::number(errors.aliasing)));
    QVERIFY2(errors.passband <= passband, qPrintable(QString::number(errors.passband)));
}

void ResamplerTest::transparentSurroundingsLeaveNoHalo_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("edge");
    for (const int edge : {16, 29, 57, 120, 180, 512, 1000, 1023, 1024, 1500})
        QTest::addRow("white disc, %d", edge) << QColor(Qt::white) << edge;
    QTest::newRow("red disc, 57") << QColor(Qt::red) << 57;
}

void ResamplerTest::transparentSurroundingsLeaveNoHalo()
{
    QFETCH(QColor, color);
    QFETCH(int, edge);
    const QImage result = straightened(resampled(disc(color), {edge, edge}));
    int partly = 0;
    for (int y = 0; y < edge; ++y) {
        for (int x = 0; x < edge; ++x) {
            const QRgb pixel = result.pixel(x, y);
            if (qAlpha(pixel) == 0)
                continue;
            partly += qAlpha(pixel) < 255;
            QCOMPARE(pixel | 0xFF000000, color.rgb());
        }
    }
    QVERIFY(partly > 0);
}

void ResamplerTest::ownSizeGivesTheSamePixels()
{
    const QImage source = premultiplied(disc(Qt::darkCyan));
    QCOMPARE(resampled(source, source.size()), source);
}

void ResamplerTest::sizesDoNotDependOnEachOther()
{
    // Halves are kept between sizes.
    const QImage source = disc(Qt::darkCyan);
    const QList<int> edges = {57, 512, 120, 256, 16, 1024, 512, 300};
    const Resampler all(source, {});
    for (const int edge : edges)
        QCOMPARE(all.scaledTo({edge, edge}).value(), resampled(source, {edge, edge}));
}

void ResamplerTest::noColorExceedsItsAlpha()
{
    // A bright, faint pattern beside an opaque one makes the filter overshoot.
    QImage picture(64, 64, QImage::Format_RGBA8888);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x)
            picture.setPixel(x, y, (x / 5 + y / 7) % 2 == 0 ? qRgba(255, 0, 128, 255) : qRgba(0, 255, 128, 40));
    }
    const QImage result = resampled(picture, {41, 23});
    for (int y = 0; y < result.height(); ++y) {
        const uchar *pixel = result.constScanLine(y);
        for (int x = 0; x < result.width(); ++x, pixel += 4)
            QVERIFY(std::max({pixel[0], pixel[1], pixel[2]}) <= pixel[3]);
    }
}

void ResamplerTest::anySize_data()
{
    QTest::addColumn<QSize>("from");
    QTest::addColumn<QSize>("to");
    QTest::newRow("to one pixel") << QSize(1024, 1024) << QSize(1, 1);
    QTest::newRow("from one pixel") << QSize(1, 1) << QSize(5, 9);
    QTest::newRow("one row to another width") << QSize(300, 1) << QSize(17, 1);
    QTest::newRow("one axis only") << QSize(30, 40) << QSize(30, 20);
    QTest::newRow("larger") << QSize(3, 2) << QSize(64, 63);
}

void ResamplerTest::anySize()
{
    QFETCH(QSize, from);
    QFETCH(QSize, to);
    QImage source(from, QImage::Format_ARGB32);
    source.fill(qRgba(200, 100, 50, 255));
    const QImage scaled = resampled(source, to);
    QCOMPARE(scaled.size(), to);
    QCOMPARE(scaled.pixel(to.width() / 2, to.height() / 2), qRgba(200, 100, 50, 255));
}

void ResamplerTest::failsWithItsReason_data()
{
    QTest::addColumn<QSize>("from");
    QTest::addColumn<QSize>("to");
    QTest::addColumn<FailureDetail>("detail");
    QTest::newRow("no width") << QSize(8, 8) << QSize(0, 4) << pixelsDetail({0, 4});
    QTest::newRow("negative") << QSize(8, 8) << QSize(-4, -4) << pixelsDetail({-4, -4});
    QTest::newRow("from nothing") << QSize(0, 0) << QSize(4, 4) << FailureDetail("DETAIL_EMPTY_PICTURE");
}

void ResamplerTest::failsWithItsReason()
{
    QFETCH(QSize, from);
    QFETCH(QSize, to);
    QFETCH(FailureDetail, detail);
    QImage source(from, QImage::Format_ARGB32);
    source.fill(Qt::red);
    const Result<QImage> scaled = resample(source, to, u"mine.png"_s);
    QVERIFY(!scaled.ok());
    QCOMPARE(scaled.failure(), (Failure{FailureCode::InvalidValue, u"mine.png"_s, detail}));
}

void ResamplerTest::opaqueStaysOpaque()
{
    const QImage result = resampled(zonePlatePicture(), {333, 333});
    for (int y = 0; y < 333; ++y) {
        for (int x = 0; x < 333; ++x)
            QCOMPARE(int(result.constScanLine(y)[4 * x + 3]), 255);
    }
}

QTEST_GUILESS_MAIN(ResamplerTest)
#include "ResamplerTest.moc"
