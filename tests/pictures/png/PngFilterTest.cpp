// SPDX-License-Identifier: MIT
#include "pictures/png/PngFilter.h"

#include "pictures/png/ByteOrderliness.h"
#include "pictures/png/PngRows.h"

#include <QRandomGenerator>
#include <QTest>

#include <array>
#include <cmath>
#include <set>

using namespace lumora;

namespace
{

constexpr int width = 40;
constexpr int height = 12;

QImage noisePicture()
{
    QRandomGenerator random(5);
    QImage picture(width, height, QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < 4 * width; ++x)
            picture.scanLine(y)[x] = static_cast<uchar>(x % 4 == 3 ? 255 : 100 + 3 * y + random.bounded(20));
    }
    // Repeated rows have a code path of their own.
    std::copy_n(picture.constScanLine(5), 4 * width, picture.scanLine(6));
    return picture;
}

/// One row as a PNG decoder restores it, written from the standard's formulas.
QByteArray unfiltered(const std::uint8_t *row, const QByteArray &above)
{
    QByteArray result(4 * width, 0);
    for (int i = 0; i < 4 * width; ++i) {
        const int a = i < 4 ? 0 : static_cast<uchar>(result[i - 4]);
        const int b = static_cast<uchar>(above[i]);
        const int c = i < 4 ? 0 : static_cast<uchar>(above[i - 4]);
        const int p = a + b - c;
        const int nearestAboveLeft = std::abs(p - b) <= std::abs(p - c) ? b : c;
        const bool leftIsNearest = std::abs(p - a) <= std::abs(p - b) && std::abs(p - a) <= std::abs(p - c);
        const std::array<int, 5> predicted = {0, a, b, (a + b) / 2, leftIsNearest ? a : nearestAboveLeft};
        result[i] = static_cast<char>(row[1 + i] + predicted.at(row[0]));
    }
    return result;
}

QByteArray rowOf(const QImage &picture, int y)
{
    return {reinterpret_cast<const char *>(picture.constScanLine(y)), 4 * width};
}

} // namespace

class PngFilterTest : public QObject
{
    Q_OBJECT

private slots:
    void readsBack_data();
    void readsBack();
    void fewestBitsWin();
    void orderlinessIsTheSumOfItsLogarithms_data();
    void orderlinessIsTheSumOfItsLogarithms();
};

void PngFilterTest::readsBack_data()
{
    QTest::addColumn<PngFilterChoice>("choice");
    QTest::addColumn<int>("filter"); // -1: any
    QTest::newRow("by entropy") << PngFilterChoice::ByEntropy << -1;
    QTest::newRow("by magnitude") << PngFilterChoice::ByMagnitude << -1;
    QTest::newRow("left") << PngFilterChoice::Left << 1;
    QTest::newRow("up") << PngFilterChoice::Up << 2;
    QTest::newRow("average") << PngFilterChoice::Average << 3;
    QTest::newRow("none") << PngFilterChoice::None << 0;
}

void PngFilterTest::readsBack()
{
    QFETCH(PngFilterChoice, choice);
    QFETCH(int, filter);
    const QImage picture = noisePicture();
    // Each range begins in the middle of the picture, where the row above is in another range.
    const std::array ranges = {RowRange{0, 4}, RowRange{4, 8}, RowRange{9, height}};
    const std::vector<std::uint8_t> rows = filteredRows(ImageRows(picture), ranges, choice);
    std::size_t at = 0;
    for (const RowRange range : ranges) {
        for (int y = range.first; y < range.end; ++y, at += 4 * width + 1) {
            if (filter >= 0)
                QCOMPARE(int(rows[at]), filter);
            const QByteArray above = y == 0 ? QByteArray(4 * width, 0) : rowOf(picture, y - 1);
            QCOMPARE(unfiltered(rows.data() + at, above), rowOf(picture, y));
        }
    }
    QCOMPARE(at, rows.size());
}

void PngFilterTest::fewestBitsWin()
{
    // A slope of 40 from pixel to pixel gives the same large residue everywhere, which takes fewer bits than small,
    // varying ones.
    QRandomGenerator random(9);
    QImage picture(width, 2, QImage::Format_RGBA8888);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 4 * width; ++x) {
            const auto slope = static_cast<uchar>(40 * (x / 4));
            picture.scanLine(y)[x] = static_cast<uchar>(y == 1 ? slope : slope + random.bounded(9));
        }
    }
    const RowRange second{1, 2};
    QCOMPARE(int(filteredRows(ImageRows(picture), {&second, 1}, PngFilterChoice::ByEntropy)[0]), 1);
    QCOMPARE(int(filteredRows(ImageRows(picture), {&second, 1}, PngFilterChoice::ByMagnitude)[0]), 2);
}

void PngFilterTest::orderlinessIsTheSumOfItsLogarithms_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("values");
    for (const int count : {0, 1, 3, 229, 4096, 100000}) {
        for (const int values : {1, 2, 30, 256})
            QTest::addRow("%d bytes of %d values", count, values) << count << values;
    }
}

void PngFilterTest::orderlinessIsTheSumOfItsLogarithms()
{
    QFETCH(int, count);
    QFETCH(int, values);
    QRandomGenerator random(1);
    std::vector<std::uint8_t> bytes;
    std::array<int, 256> counts{};
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<std::uint8_t>(random.bounded(values)));
        ++counts[bytes.back()];
    }
    double expected = 0;
    for (const int n : counts)
        expected += n == 0 ? 0 : n * std::log2(n);
    const double sum = static_cast<double>(orderliness(bytes)) / 65536;
    // Each logarithm is truncated after sixteen binary places.
    QVERIFY2(sum <= expected + 0.001 && sum >= expected - 0.001 - count / 65536.0,
             qPrintable(QStringLiteral("%1 %2").arg(sum).arg(expected)));
}

QTEST_GUILESS_MAIN(PngFilterTest)
#include "PngFilterTest.moc"
