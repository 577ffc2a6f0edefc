// SPDX-License-Identifier: MIT
#include "pictures/scaling/EdgeShades.h"

#include "FlatDrawings.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/scaling/FlatAreas.h"
#include "pictures/scaling/Resampler.h"

#include <QPainter>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

using namespace lumora;
using namespace flat_drawings;

namespace
{

constexpr int steps = 32;
/// Half a step of 255, and what the filter's own rounding may add.
constexpr int mostChange = 255 / (2 * steps) + 2;

std::set<QRgb> colours(const QImage &picture)
{
    std::set<QRgb> found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            found.insert(picture.pixel(x, y));
    }
    return found;
}

/// Discs over each other in four colours, so that two, three and four meet.
QImage manyColours()
{
    QImage picture(sourceEdge, sourceEdge, QImage::Format_RGB32);
    picture.fill(paper);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QColor inks[] = {Qt::red, green, Qt::black, Qt::yellow};
    for (int i = 0; i < 16; ++i) {
        painter.setBrush(inks[i % 4]);
        painter.drawEllipse(QPointF(90 + 61 * i, 512 + 300 * std::sin(i)), 30 + 11 * i, 30 + 11 * i);
    }
    return picture;
}

/// The red channel scaled and its flat areas mended, its shades as the filter made them.
ColorPlanes mended(const ColorPlanes &source, QSize size)
{
    auto scaled = source.scaledTo(size);
    FlatAreas(source).restoreIn(*scaled);
    return std::move(*scaled);
}

/// The same by way of halves, as small sizes are made, and rounded at the end.
ColorPlanes roundedOnce(const ColorPlanes &source, int edge)
{
    constexpr int fewestPixelsOfTheSource = 5;
    if (source.size().width() >= fewestPixelsOfTheSource * edge)
        return roundedOnce(mended(source, source.size() / 2), edge);
    ColorPlanes result = mended(source, {edge, edge});
    FlatAreas(source).roundEdgesIn(result);
    return result;
}

/// The value kept between those that occur in the source around the pixel of a picture of that size.
int withoutRim(int value, const ColorPlanes &source, QSize size, QPoint pixel)
{
    const auto seen = [](int at, int scaled, int whole) {
        const double scale = double(whole) / scaled;
        const double centre = (at + 0.5) * scale;
        const double reach = 1.5 * scale + 2;
        return std::pair(std::max(0, static_cast<int>(std::floor(centre - reach))),
                         std::min(whole - 1, static_cast<int>(std::ceil(centre + reach)) - 1));
    };
    const auto [left, right] = seen(pixel.x(), size.width(), source.size().width());
    const auto [top, bottom] = seen(pixel.y(), size.height(), source.size().height());
    int least = 255;
    int most = 0;
    for (int y = top; y <= bottom; ++y) {
        const auto *row = source.row<std::uint8_t>(0, y);
        least = std::min<int>(least, *std::min_element(row + left, row + right + 1));
        most = std::max<int>(most, *std::max_element(row + left, row + right + 1));
    }
    return std::clamp(value, least, most);
}

} // namespace

class EdgeShadesTest : public QObject
{
    Q_OBJECT

private slots:
    void anEdgeHasFewShades_data();
    void anEdgeHasFewShades();
    void theFilterAloneMakesMany();
    void shadesLieOnTheWay();
    void nothingChangesByMoreThanHalfAStep_data();
    void nothingChangesByMoreThanHalfAStep();
    void whatIsScaledFurtherIsNotRoundedBefore_data();
    void whatIsScaledFurtherIsNotRoundedBefore();
    void aGradientKeepsItsShades();
    void aLineBetweenTwoColoursStays();
    void faintEdgesAreRoundedToo();
    void lightOnNothingStaysPure();
    void picturesOfAFewPixelsAreScaled();
};

void EdgeShadesTest::anEdgeHasFewShades_data()
{
    QTest::addColumn<int>("edge");
    // 700 is made from the source at once, 512 is the half, the others are made from halves of it.
    for (const int edge : {57, 120, 256, 512, 700})
        QTest::addRow("%d", edge) << edge;
}

void EdgeShadesTest::anEdgeHasFewShades()
{
    QFETCH(int, edge);
    const std::set<QRgb> found = colours(resample(drawn(insideADisc, green, paper), {edge, edge}));
    QVERIFY(found.size() > steps / 2);
    // A few pixels do not see enough of both sides, and keep their own.
    QVERIFY2(found.size() <= 2 * steps, qPrintable(QString::number(found.size())));
}

void EdgeShadesTest::theFilterAloneMakesMany()
{
    // Or the test above would hold without any care taken.
    const ColorPlanes scaled = mended(redPlane(drawn(insideADisc, Qt::white, Qt::black)), {512, 512});
    std::set<int> shades;
    for (int y = 0; y < 512; ++y)
        shades.insert(scaled.row<std::uint8_t>(0, y), scaled.row<std::uint8_t>(0, y) + 512);
    QVERIFY(shades.size() > 4 * steps);
}

void EdgeShadesTest::shadesLieOnTheWay()
{
    std::set<QRgb> allowed;
    for (int step = 0; step <= steps; ++step) {
        const auto channel = [step](int from, int to) {
            return static_cast<int>(std::floor(from + (to - from) * step / double(steps) + 0.5));
        };
        allowed.insert(qRgb(channel(paper.red(), green.red()), channel(paper.green(), green.green()),
                            channel(paper.blue(), green.blue())));
        allowed.insert(qRgb(channel(green.red(), paper.red()), channel(green.green(), paper.green()),
                            channel(green.blue(), paper.blue())));
    }
    const QImage result = resample(drawn(aboveASlope, green, paper), {300, 300});
    int others = 0;
    for (int y = 4; y < 296; ++y) {
        for (int x = 4; x < 296; ++x)
            others += allowed.contains(result.pixel(x, y)) ? 0 : 1;
    }
    QVERIFY2(others < 10, qPrintable(QString::number(others)));
}

void EdgeShadesTest::nothingChangesByMoreThanHalfAStep_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(40, 40), QSize(57, 57), QSize(180, 133), QSize(512, 512), QSize(1023, 700)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
}

void EdgeShadesTest::nothingChangesByMoreThanHalfAStep()
{
    QFETCH(QSize, size);
    const ColorPlanes source = redPlane(manyColours());
    const ColorPlanes before = mended(source, size);
    ColorPlanes after(before);
    FlatAreas(source).roundEdgesIn(after);
    int changed = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int wanted = withoutRim(before.row<std::uint8_t>(0, y)[x], source, size, {x, y});
            const int change = std::abs(after.row<std::uint8_t>(0, y)[x] - wanted);
            changed += change > 0 ? 1 : 0;
            // A rim that no flat colours are found for stays.
            if (after.row<std::uint8_t>(0, y)[x] != before.row<std::uint8_t>(0, y)[x])
                QVERIFY2(change <= mostChange, qPrintable(QString::number(change)));
        }
    }
    QVERIFY(changed > size.width());
}

void EdgeShadesTest::whatIsScaledFurtherIsNotRoundedBefore_data()
{
    QTest::addColumn<int>("edge");
    for (const int edge : {16, 32, 57, 120, 180})
        QTest::addRow("%d", edge) << edge;
}

void EdgeShadesTest::whatIsScaledFurtherIsNotRoundedBefore()
{
    QFETCH(int, edge);
    const QImage picture = manyColours().convertToFormat(QImage::Format_Grayscale8);
    const QImage result = resample(picture, {edge, edge});
    const ColorPlanes expected = roundedOnce(redPlane(picture), edge);
    for (int y = 0; y < edge; ++y) {
        for (int x = 0; x < edge; ++x)
            QCOMPARE(qRed(result.pixel(x, y)), expected.row<std::uint8_t>(0, y)[x]);
    }
}

void EdgeShadesTest::aGradientKeepsItsShades()
{
    // Flat left and right, and between the two as many shades as there are.
    QImage picture(sourceEdge, sourceEdge, QImage::Format_RGB32);
    for (int x = 0; x < sourceEdge; ++x) {
        const int shade = std::clamp((x - 200) / 2, 0, 255);
        for (int y = 0; y < sourceEdge; ++y)
            picture.setPixel(x, y, qRgb(shade, shade, shade));
    }
    const ColorPlanes source = redPlane(picture);
    for (const int edge : {200, 512}) {
        const ColorPlanes before = mended(source, {edge, edge});
        ColorPlanes after(before);
        FlatAreas(source).roundEdgesIn(after);
        for (int y = 0; y < edge; ++y) {
            for (int x = 0; x < edge; ++x)
                QCOMPARE(after.row<std::uint8_t>(0, y)[x], before.row<std::uint8_t>(0, y)[x]);
        }
    }
}

void EdgeShadesTest::aLineBetweenTwoColoursStays()
{
    // Thinner than any block of two by two, a little darker than the darker side: as faint as the filter's own rim.
    QImage picture(sourceEdge, sourceEdge, QImage::Format_Grayscale8);
    for (int y = 0; y < sourceEdge; ++y) {
        for (int x = 0; x < sourceEdge; ++x)
            picture.scanLine(y)[x] = x < 400 ? 255 : x == 400 ? 60 : 100;
    }
    const QImage result = resample(picture, {512, 512});
    int darkest = 255;
    for (int x = 0; x < 512; ++x)
        darkest = std::min(darkest, qRed(result.pixel(x, 256)));
    QVERIFY2(darkest < 95, qPrintable(QString::number(darkest)));
}

void EdgeShadesTest::faintEdgesAreRoundedToo()
{
    // Straight colours take the way through 16 bits.
    const QImage result =
        resampleStraight(drawn(insideADisc, QColor(200, 101, 3, 200), QColor(200, 101, 3, 0)), {512, 512});
    std::set<int> alphas;
    for (const QRgb colour : colours(result))
        alphas.insert(qAlpha(colour));
    QVERIFY(alphas.size() > steps / 2);
    QVERIFY2(alphas.size() <= 2 * steps, qPrintable(QString::number(alphas.size())));
}

void EdgeShadesTest::lightOnNothingStaysPure()
{
    for (const int edge : {29, 57, 180, 512}) {
        const QImage result = straight(resample(drawn(insideADisc, Qt::white, QColor(255, 255, 255, 0)), {edge, edge}));
        for (const QRgb colour : colours(result)) {
            if (qAlpha(colour) > 0)
                QCOMPARE(colour | 0xff000000U, 0xffffffffU);
        }
    }
}

void EdgeShadesTest::picturesOfAFewPixelsAreScaled()
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
                const QImage result = resampleStraight(picture, size);
                QCOMPARE(result.size(), size);
                // The middle of the upper edge lies in the green half, if there are two.
                if (height > 1 && size.height() > 3)
                    QVERIFY(qRed(result.pixel(size.width() / 2, 0)) < 110);
            }
        }
    }
}

QTEST_GUILESS_MAIN(EdgeShadesTest)
#include "EdgeShadesTest.moc"
