// SPDX-License-Identifier: MIT
#include "pictures/scaling/PlaneScaler.h"

#include <QTest>

#include <future>
#include <limits>

using namespace lumora;

class PlaneScalerTest : public QObject
{
    Q_OBJECT

private slots:
    void theSameSizesGetTheSameScaler();
    void otherSizesGetAnother_data();
    void otherSizesGetAnother();
    void theOldestGoes();
    void eachThreadHasItsOwn();
    void refusalsSayWhy();
};

namespace
{

constexpr QSize whole(64, 48);
constexpr QSize half(32, 24);

} // namespace

void PlaneScalerTest::theSameSizesGetTheSameScaler()
{
    const auto first = PlaneScaler::kept(whole, half, SampleDepth::Bits8);
    PlaneScaler::kept(half, whole, SampleDepth::Bits8);
    QCOMPARE(PlaneScaler::kept(whole, half, SampleDepth::Bits8), first);
}

void PlaneScalerTest::otherSizesGetAnother_data()
{
    QTest::addColumn<QSize>("from");
    QTest::addColumn<QSize>("to");
    QTest::addColumn<SampleDepth>("depth");
    QTest::addRow("the picture's width") << QSize(63, 48) << half << SampleDepth::Bits8;
    QTest::addRow("the scaled height") << whole << QSize(32, 23) << SampleDepth::Bits8;
    QTest::addRow("the depth") << whole << half << SampleDepth::Bits16;
}

void PlaneScalerTest::otherSizesGetAnother()
{
    QFETCH(QSize, from);
    QFETCH(QSize, to);
    QFETCH(SampleDepth, depth);
    const auto other = PlaneScaler::kept(whole, half, SampleDepth::Bits8);
    QVERIFY(PlaneScaler::kept(from, to, depth) != other);
}

void PlaneScalerTest::theOldestGoes()
{
    const std::weak_ptr<const PlaneScaler> first = PlaneScaler::kept(whole, half, SampleDepth::Bits8);
    QVERIFY(!first.expired());
    for (int edge = 1; edge <= 8; ++edge)
        PlaneScaler::kept(whole, {edge, edge}, SampleDepth::Bits8);
    QVERIFY(first.expired());
}

void PlaneScalerTest::eachThreadHasItsOwn()
{
    const auto own = PlaneScaler::kept(whole, half, SampleDepth::Bits8);
    const auto others =
        std::async(std::launch::async, [] { return PlaneScaler::kept(whole, half, SampleDepth::Bits8); }).get();
    QVERIFY(own != others);
}

void PlaneScalerTest::refusalsSayWhy()
{
    // Wider than the library takes a picture.
    const PlaneScaler scaler(whole, {std::numeric_limits<int>::max(), 1}, SampleDepth::Bits8);
    const AlignedBytes row = alignedBytes(1);
    const Outcome scaled = scaler.scale(row.get(), row.get());
    QVERIFY(!scaled.ok());
    QCOMPARE(scaled.failure().code, FailureCode::TooLarge);
    QVERIFY(!scaled.failure().detail.isEmpty());
}

QTEST_APPLESS_MAIN(PlaneScalerTest)
#include "PlaneScalerTest.moc"
