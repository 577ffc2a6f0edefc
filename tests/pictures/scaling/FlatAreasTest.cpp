// SPDX-License-Identifier: MIT
#include "pictures/scaling/FlatAreas.h"

#include "FlatDrawings.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/scaling/ColorPlanes.h"
#include "pictures/scaling/Resampler.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace lumora;
using namespace flat_drawings;

namespace
{

QImage noise(QSize size)
{
    QRandomGenerator random(7);
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, random.generate());
    }
    return picture;
}

} // namespace

class FlatAreasTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingRipplesBesideAnEdge_data();
    void nothingRipplesBesideAnEdge();
    void theFilterAloneWouldRipple();
    void edgesStaySmooth();
    void noiseIsFilteredAsEver_data();
    void noiseIsFilteredAsEver();
    void aPhotographStaysAltogether_data();
    void aPhotographStaysAltogether();
    void oneOddPixelEndsFlatness_data();
    void oneOddPixelEndsFlatness();
    void faintColoursStayFlatToo();
    void enlargedAreasStayFlat();
    void fineLinesKeepTheirWeight();
};

void FlatAreasTest::nothingRipplesBesideAnEdge_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<int>("edge");
    const struct
    {
        const char *name;
        Shape shape;
    } shapes[] = {{"edge", leftOfAnEdge}, {"slope", aboveASlope}, {"disc", insideADisc}, {"hole", insideAHole}};
    const struct
    {
        const char *name;
        QColor colour;
        QColor ground;
    } colours[] = {{"two colours", green, paper},
                   {"black and white", Qt::black, Qt::white},
                   {"on nothing", green, QColor(0, 0, 0, 0)}};
    for (const auto &[shapeName, shape] : shapes) {
        for (const auto &[colourName, colour, ground] : colours) {
            const QImage picture = drawn(shape, colour, ground);
            for (const int edge : {16, 29, 57, 100, 180, 256, 512, 700, 1023})
                QTest::addRow("%s, %s, %d", shapeName, colourName, edge)
                    << picture << shape << colour << ground << edge;
        }
    }
}

void FlatAreasTest::nothingRipplesBesideAnEdge()
{
    QFETCH(QImage, picture);
    QFETCH(Shape, shape);
    QFETCH(QColor, colour);
    QFETCH(QColor, ground);
    QFETCH(int, edge);
    const QImage result = resample(picture, {edge, edge});
    const double scale = double(sourceEdge) / edge;
    // Two pixels of the result: the corner of the square that the middle lobe sees, and what steps in between add. The
    // smoothed pixel of the source comes on top.
    const double reach = scale * 2 + 2;
    int flat = 0;
    for (int y = 0; y < edge; ++y) {
        for (int x = 0; x < edge; ++x) {
            const double inside = shape((x + 0.5) * scale, (y + 0.5) * scale);
            if (std::abs(inside) < reach)
                continue;
            ++flat;
            // Asked first, since a million comparisons by the macro take a minute under the sanitizers.
            const QColor wanted = inside > 0 ? colour : ground;
            if (result.pixel(x, y) != wanted.rgba())
                QCOMPARE(result.pixelColor(x, y), wanted);
        }
    }
    QVERIFY(flat > edge * edge / 5);
}

void FlatAreasTest::theFilterAloneWouldRipple()
{
    // Or the test above would hold without any care taken.
    const ColorPlanes source = redPlane(drawn(leftOfAnEdge, Qt::black, Qt::white));
    const auto scaled = source.scaledTo({512, 512});
    QVERIFY(scaled->row<std::uint8_t>(0, 256)[248] > 0);
}

void FlatAreasTest::edgesStaySmooth()
{
    for (const int edge : {57, 180, 512}) {
        const QImage result = resample(drawn(insideADisc, Qt::white, Qt::black), {edge, edge});
        const double scale = double(sourceEdge) / edge;
        int between = 0;
        for (int y = 0; y < edge; ++y) {
            for (int x = 0; x < edge; ++x) {
                // What a pixel shows is, within a little, how much of it the disc covers.
                const double inside = insideADisc((x + 0.5) * scale, (y + 0.5) * scale) / scale;
                const int value = qRed(result.pixel(x, y));
                between += value > 20 && value < 235;
                QVERIFY(std::abs(value - 255 * std::clamp(inside + 0.5, 0.0, 1.0)) < 40);
            }
        }
        QVERIFY(between > edge);
    }
}

void FlatAreasTest::noiseIsFilteredAsEver_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(57, 57), QSize(120, 120), QSize(256, 256), QSize(511, 300), QSize(640, 640)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
}

void FlatAreasTest::noiseIsFilteredAsEver()
{
    QFETCH(QSize, size);
    const ColorPlanes source = redPlane(noise({512, 512}));
    const auto filtered = source.scaledTo(size);
    const auto mended = source.scaledTo(size);
    FlatAreas(source).restoreIn(*mended);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            QCOMPARE(mended->row<std::uint8_t>(0, y)[x], filtered->row<std::uint8_t>(0, y)[x]);
    }
}

void FlatAreasTest::aPhotographStaysAltogether_data()
{
    QTest::addColumn<int>("flatEdge");
    QTest::addColumn<bool>("changes");
    // 512 x 512 blocks: a square of 25 x 25 pixels makes one in 455 flat, one of 81 x 81 one in 41.
    QTest::addRow("a clipped highlight") << 25 << false;
    QTest::addRow("a label") << 81 << true;
}

void FlatAreasTest::aPhotographStaysAltogether()
{
    QFETCH(int, flatEdge);
    QFETCH(bool, changes);
    ColorPlanes source = redPlane(noise({513, 513}));
    for (int y = 0; y < flatEdge; ++y)
        std::fill_n(source.row<std::uint8_t>(0, 200 + y) + 200, flatEdge, std::uint8_t{255});
    const auto filtered = source.scaledTo({256, 256});
    const auto mended = source.scaledTo({256, 256});
    FlatAreas(source).restoreIn(*mended);
    bool changed = false;
    for (int y = 0; y < 256; ++y)
        changed = changed || !std::equal(mended->row<std::uint8_t>(0, y), mended->row<std::uint8_t>(0, y) + 256,
                                         filtered->row<std::uint8_t>(0, y));
    QCOMPARE(changed, changes);
}

void FlatAreasTest::oneOddPixelEndsFlatness_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(20, 20), QSize(27, 30), QSize(59, 13), QSize(60, 60), QSize(64, 64), QSize(90, 131)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
}

void FlatAreasTest::oneOddPixelEndsFlatness()
{
    QFETCH(QSize, size);
    constexpr int edge = 64;
    for (const QPoint odd : {QPoint(0, 0), QPoint(31, 17), QPoint(32, 40), QPoint(63, 5), QPoint(63, 63)}) {
        ColorPlanes source(QSize(edge, edge), 1, SampleDepth::Bits8);
        for (int y = 0; y < edge; ++y)
            std::fill_n(source.row<std::uint8_t>(0, y), edge, std::uint8_t{100});
        source.row<std::uint8_t>(0, odd.y())[odd.x()] = 101;
        // Every pixel is marked first, so that what is left of the marks are those that were not flat.
        ColorPlanes scaled(size, 1, SampleDepth::Bits8);
        for (int y = 0; y < size.height(); ++y)
            std::fill_n(scaled.row<std::uint8_t>(0, y), size.width(), std::uint8_t{7});
        FlatAreas(source).restoreIn(scaled);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const auto touches = [edge](int scaledAt, int scaledEdge, int at) {
                    const double scale = double(edge) / scaledEdge;
                    const double reach = std::max(scale, 1.0) / 2;
                    const double centre = (scaledAt + 0.5) * scale;
                    return at < centre + reach - 1e-9 && at + 1 > centre - reach + 1e-9;
                };
                const bool near = touches(x, size.width(), odd.x()) && touches(y, size.height(), odd.y());
                const int value = scaled.row<std::uint8_t>(0, y)[x];
                if (near)
                    QCOMPARE(value, 7);
                else if (value != 100)
                    // A pixel of exactly one source pixel asks one neighbour too.
                    QVERIFY(size.width() >= edge || size.height() >= edge);
            }
        }
    }
}

void FlatAreasTest::faintColoursStayFlatToo()
{
    const QColor faint(200, 101, 3, 9);
    const QImage result = resampleStraight(drawn(leftOfAnEdge, faint, paper), {512, 512});
    QCOMPARE(result.pixelColor(248, 100), faint);
    QCOMPARE(result.pixelColor(253, 100), paper);
}

void FlatAreasTest::enlargedAreasStayFlat()
{
    QImage picture(20, 20, QImage::Format_RGB32);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x)
            picture.setPixelColor(x, y, x < 10 ? green : paper);
    }
    const QImage result = resample(picture, {50, 50});
    for (int x = 0; x < 50; ++x) {
        const double fromEdge = std::abs((x + 0.5) * 20 / 50 - 10);
        if (fromEdge > 1.5)
            QCOMPARE(result.pixelColor(x, 25), x < 25 ? green : paper);
    }
    QVERIFY(result.pixelColor(24, 25) != green);
}

void FlatAreasTest::fineLinesKeepTheirWeight()
{
    // A line of one pixel, black on white, is thinner than any pixel of the result: its darkness must not get lost.
    QImage picture(sourceEdge, sourceEdge, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (int y = 0; y < sourceEdge; ++y)
        picture.setPixelColor(333, y, Qt::black);
    for (const int edge : {57, 256, 512, 700}) {
        const QImage result = resample(picture, {edge, edge});
        double darkness = 0;
        for (int x = 0; x < edge; ++x)
            darkness += 255 - qRed(result.pixel(x, edge / 2));
        // The middle lobe by itself weighs up to a quarter more than the whole filter.
        const double weight = darkness / (255.0 * edge / sourceEdge);
        QVERIFY2(weight > 0.95 && weight < 1.3, qPrintable(QString::number(weight)));
    }
}

QTEST_GUILESS_MAIN(FlatAreasTest)
#include "FlatAreasTest.moc"
