// SPDX-License-Identifier: MIT
#include "pictures/scaling/RingingClamp.h"

#include "FlatDrawings.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/scaling/ColorPlanes.h"
#include "pictures/scaling/Resampler.h"
#include "tests/pictures/TestPictures.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace lumora;
using namespace flat_drawings;

namespace
{

/// Planes of noise, where each sample is one of the few highest or lowest values, so that a filter overshoots
/// everywhere.
template <typename Sample> ColorPlanes harshNoise(QSize size, SampleDepth depth)
{
    QRandomGenerator random(7);
    ColorPlanes planes(size, 2, depth);
    for (int channel = 0; channel < 2; ++channel) {
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                planes.row<Sample>(channel, y)[x] = static_cast<Sample>(random.bounded(2) * 40000 + random.bounded(9));
        }
    }
    return planes;
}

/// The first and last source sample that a scaled pixel's middle lobe covers along one axis.
std::pair<int, int> seen(int at, int scaled, int source)
{
    const double center = (at + 0.5) * source / scaled;
    const double reach = std::max(double(source) / scaled, 1.0);
    int first = source;
    int last = -1;
    for (int i = 0; i < source; ++i) {
        if (std::abs(i + 0.5 - center) < reach - 1e-9) {
            first = std::min(first, i);
            last = std::max(last, i);
        }
    }
    return {first, last};
}

template <typename Sample> void compareWithPlainLoops(QSize from, QSize to, SampleDepth depth)
{
    const ColorPlanes source = harshNoise<Sample>(from, depth);
    const auto filtered = source.scaledTo(to).value();
    const auto clamped = source.scaledTo(to).value();
    clampRinging(source, *clamped);
    for (int channel = 0; channel < 2; ++channel) {
        for (int y = 0; y < to.height(); ++y) {
            for (int x = 0; x < to.width(); ++x) {
                const auto [left, right] = seen(x, to.width(), from.width());
                const auto [top, bottom] = seen(y, to.height(), from.height());
                Sample least = std::numeric_limits<Sample>::max();
                Sample most = 0;
                for (int row = top; row <= bottom; ++row) {
                    const Sample *samples = source.row<Sample>(channel, row);
                    least = std::min(least, *std::min_element(samples + left, samples + right + 1));
                    most = std::max(most, *std::max_element(samples + left, samples + right + 1));
                }
                QCOMPARE(clamped->row<Sample>(channel, y)[x],
                         std::clamp(filtered->row<Sample>(channel, y)[x], least, most));
            }
        }
    }
}

/// The darkness of a scaled picture of a black line one pixel wide on white: 1 if nothing is lost or added.
double lineWeight(const ColorPlanes &scaled)
{
    double darkness = 0;
    const int edge = scaled.size().width();
    const int middle = edge / 2;
    for (int x = 0; x < edge; ++x)
        darkness += 255 - scaled.row<std::uint8_t>(0, middle)[x];
    return darkness / (255.0 * edge / sourceEdge);
}

} // namespace

class RingingClampTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsSamplesWithinWhatTheLobeSees_data();
    void keepsSamplesWithinWhatTheLobeSees();
    void nothingRipplesBesideAnEdge_data();
    void nothingRipplesBesideAnEdge();
    void theFilterAloneWouldRipple();
    void edgesStaySmooth();
    void aGradientKeepsItsShades();
    void faintColorsStayFlatToo();
    void enlargedAreasStayFlat();
    void fineLinesKeepTheirWeight_data();
    void fineLinesKeepTheirWeight();
    void aLineBetweenTwoColorsStays();
    void lightOnNothingStaysPure();
    void picturesOfAFewPixelsAreScaled();
};

void RingingClampTest::keepsSamplesWithinWhatTheLobeSees_data()
{
    QTest::addColumn<QSize>("from");
    QTest::addColumn<QSize>("to");
    QTest::newRow("half") << QSize(64, 48) << QSize(32, 24);
    QTest::newRow("a little smaller") << QSize(64, 64) << QSize(63, 61);
    QTest::newRow("two thirds") << QSize(90, 60) << QSize(60, 40);
    QTest::newRow("a fifth") << QSize(256, 100) << QSize(57, 20);
    QTest::newRow("one pixel") << QSize(33, 21) << QSize(1, 1);
    QTest::newRow("one axis") << QSize(40, 31) << QSize(40, 13);
    QTest::newRow("narrower and taller") << QSize(40, 31) << QSize(17, 50);
    QTest::newRow("larger") << QSize(20, 20) << QSize(50, 33);
    QTest::newRow("from one column") << QSize(1, 30) << QSize(4, 11);
    QTest::newRow("from one row") << QSize(30, 1) << QSize(13, 3);
}

void RingingClampTest::keepsSamplesWithinWhatTheLobeSees()
{
    QFETCH(QSize, from);
    QFETCH(QSize, to);
    compareWithPlainLoops<std::uint8_t>(from, to, SampleDepth::Bits8);
    compareWithPlainLoops<std::uint16_t>(from, to, SampleDepth::Bits16);
}

void RingingClampTest::nothingRipplesBesideAnEdge_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<int>("edge");
    const struct
    {
        const char *name = nullptr;
        Shape shape = nullptr;
    } shapes[] = {{"edge", leftOfAnEdge}, {"slope", aboveASlope}, {"disc", insideADisc}, {"hole", insideAHole}};
    const struct
    {
        const char *name = nullptr;
        QColor color;
        QColor ground;
    } colors[] = {{"two colors", green, paper},
                  {"black and white", Qt::black, Qt::white},
                  {"on nothing", green, QColor(0, 0, 0, 0)}};
    for (const auto &[shapeName, shape] : shapes) {
        for (const auto &[colorName, color, ground] : colors) {
            const QImage picture = drawn(shape, color, ground);
            for (const int edge : {16, 29, 57, 100, 180, 256, 512, 700, 1023})
                QTest::addRow("%s, %s, %d", shapeName, colorName, edge) << picture << shape << color << ground << edge;
        }
    }
}

void RingingClampTest::nothingRipplesBesideAnEdge()
{
    QFETCH(QImage, picture);
    QFETCH(Shape, shape);
    QFETCH(QColor, color);
    QFETCH(QColor, ground);
    QFETCH(int, edge);
    const QImage result = resampled(picture, {edge, edge});
    const double scale = double(sourceEdge) / edge;
    // Two pixels of the result: the corner of the square that the middle lobe covers, and the additional steps. The
    // smoothed pixel of the source is added to that.
    const double reach = scale * 2 + 2;
    int flat = 0;
    for (int y = 0; y < edge; ++y) {
        for (int x = 0; x < edge; ++x) {
            const double inside = shape((x + 0.5) * scale, (y + 0.5) * scale);
            if (std::abs(inside) < reach)
                continue;
            ++flat;
            // Compared without the macro first, since a million of its comparisons take a minute under the sanitizers.
            const QColor wanted = inside > 0 ? color : ground;
            if (result.pixel(x, y) != wanted.rgba())
                QCOMPARE(result.pixelColor(x, y), wanted);
        }
    }
    QVERIFY(flat > edge * edge / 5);
}

void RingingClampTest::theFilterAloneWouldRipple()
{
    // Otherwise the test above would pass without any clamp.
    const ColorPlanes source = redPlane(drawn(leftOfAnEdge, Qt::black, Qt::white));
    const auto scaled = source.scaledTo({512, 512}).value();
    QVERIFY(scaled->row<std::uint8_t>(0, 256)[248] > 0);
}

void RingingClampTest::edgesStaySmooth()
{
    for (const int edge : {57, 180, 512}) {
        const QImage result = resampled(drawn(insideADisc, Qt::white, Qt::black), {edge, edge});
        const double scale = double(sourceEdge) / edge;
        int between = 0;
        for (int y = 0; y < edge; ++y) {
            for (int x = 0; x < edge; ++x) {
                // A pixel's value is about the share of it that the disc covers.
                const double inside = insideADisc((x + 0.5) * scale, (y + 0.5) * scale) / scale;
                const int value = qRed(result.pixel(x, y));
                between += value > 20 && value < 235;
                QVERIFY(std::abs(value - 255 * std::clamp(inside + 0.5, 0.0, 1.0)) < 40);
            }
        }
        QVERIFY(between > edge);
    }
}

void RingingClampTest::aGradientKeepsItsShades()
{
    QImage picture(sourceEdge, sourceEdge, QImage::Format_RGB32);
    for (int x = 0; x < sourceEdge; ++x) {
        const int shade = std::clamp((x - 200) / 2, 0, 255);
        for (int y = 0; y < sourceEdge; ++y)
            picture.setPixel(x, y, qRgb(shade, shade, shade));
    }
    const ColorPlanes source = redPlane(picture);
    for (const int edge : {200, 512}) {
        const auto filtered = source.scaledTo({edge, edge}).value();
        const auto clamped = source.scaledTo({edge, edge}).value();
        clampRinging(source, *clamped);
        for (int y = 0; y < edge; ++y) {
            for (int x = 0; x < edge; ++x)
                QCOMPARE(clamped->row<std::uint8_t>(0, y)[x], filtered->row<std::uint8_t>(0, y)[x]);
        }
    }
}

void RingingClampTest::faintColorsStayFlatToo()
{
    // A color that its alpha can show exactly.
    const QColor faint(170, 85, 0, 9);
    const QImage result = straightened(resampled(drawn(leftOfAnEdge, faint, paper), {512, 512}));
    QCOMPARE(result.pixelColor(248, 100), faint);
    QCOMPARE(result.pixelColor(253, 100), paper);
}

void RingingClampTest::enlargedAreasStayFlat()
{
    QImage picture(20, 20, QImage::Format_RGB32);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x)
            picture.setPixelColor(x, y, x < 10 ? green : paper);
    }
    const QImage result = resampled(picture, {50, 50});
    for (int x = 0; x < 50; ++x) {
        const double fromEdge = std::abs((x + 0.5) * 20 / 50 - 10);
        if (fromEdge > 1.5)
            QCOMPARE(result.pixelColor(x, 25), x < 25 ? green : paper);
    }
    QVERIFY(result.pixelColor(24, 25) != green);
}

void RingingClampTest::fineLinesKeepTheirWeight_data()
{
    QTest::addColumn<int>("edge");
    QTest::addColumn<double>("most");
    // Nothing is above white, so only the filter's dark side counts: up to a quarter more than the line's weight, and a
    // third where the line fits the pixels of the smallest size best.
    QTest::newRow("57") << 57 << 1.35;
    QTest::newRow("256") << 256 << 1.3;
    QTest::newRow("512") << 512 << 1.3;
    QTest::newRow("700") << 700 << 1.3;
}

void RingingClampTest::fineLinesKeepTheirWeight()
{
    QFETCH(int, edge);
    QFETCH(double, most);
    // Thinner than any pixel of the result, but its darkness must not be lost.
    QImage picture(sourceEdge, sourceEdge, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (int y = 0; y < sourceEdge; ++y)
        picture.setPixelColor(333, y, Qt::black);
    const double weight = lineWeight(redPlane(resampled(picture, {edge, edge})));
    QVERIFY2(weight > 0.95 && weight < most, qPrintable(QString::number(weight)));
    // The clamp makes no line heavier than the filter with the same halves does.
    auto filtered = std::make_unique<ColorPlanes>(redPlane(picture));
    while (filtered->size().width() >= 5 * edge || filtered->size().width() == 2 * edge)
        filtered = filtered->scaledTo(filtered->size() / 2).value();
    if (filtered->size().width() != edge)
        filtered = filtered->scaledTo({edge, edge}).value();
    QVERIFY2(weight < lineWeight(*filtered) + 0.005, qPrintable(QString::number(lineWeight(*filtered))));
}

void RingingClampTest::aLineBetweenTwoColorsStays()
{
    // A little darker than the darker side, but as faint as the filter's own rim.
    QImage picture(sourceEdge, sourceEdge, QImage::Format_Grayscale8);
    for (int y = 0; y < sourceEdge; ++y) {
        for (int x = 0; x < sourceEdge; ++x)
            picture.scanLine(y)[x] = x < 400 ? 255 : x == 400 ? 60 : 100;
    }
    const QImage result = resampled(picture, {512, 512});
    int darkest = 255;
    for (int x = 0; x < 512; ++x)
        darkest = std::min(darkest, qRed(result.pixel(x, 256)));
    QVERIFY2(darkest < 95, qPrintable(QString::number(darkest)));
}

void RingingClampTest::lightOnNothingStaysPure()
{
    for (const int edge : {29, 57, 180, 512}) {
        const QImage result =
            straightened(resampled(drawn(insideADisc, Qt::white, QColor(255, 255, 255, 0)), {edge, edge}));
        for (int y = 0; y < edge; ++y) {
            for (int x = 0; x < edge; ++x) {
                const QRgb color = result.pixel(x, y);
                if (qAlpha(color) > 0)
                    QCOMPARE(color | 0xff000000U, 0xffffffffU);
            }
        }
    }
}

void RingingClampTest::picturesOfAFewPixelsAreScaled()
{
    for (int width = 1; width < 8; ++width) {
        for (int height = 1; height < 8; ++height) {
            QImage picture(width, height, QImage::Format_RGB32);
            picture.fill(Qt::white);
            for (int y = 0; y < (height + 1) / 2; ++y) {
                for (int x = 0; x < width; ++x)
                    picture.setPixelColor(x, y, green);
            }
            for (const QSize size : {QSize(1, 1), QSize(2, 3), QSize(5, 4), QSize(9, 1), QSize(8, 17)}) {
                const QImage result = resampled(picture, size);
                QCOMPARE(result.size(), size);
                // The middle of the upper edge is in the green half, if there are two.
                if (height > 1 && size.height() > 3)
                    QVERIFY(qRed(result.pixel(size.width() / 2, 0)) < 110);
            }
        }
    }
}

QTEST_GUILESS_MAIN(RingingClampTest)
#include "RingingClampTest.moc"
