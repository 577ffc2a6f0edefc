// SPDX-License-Identifier: MIT
#include "icons/RenderedIcons.h"

#include "pictures/pixels/SizeText.h"
#include "tests/pictures/TestPictures.h"

#include <QTest>

#include <array>

using namespace lumora;
using namespace Qt::StringLiterals;

class RenderedIconsTest : public QObject
{
    Q_OBJECT

private slots:
    void eachSizeIsWhatItWouldBeAlone();
    void failsWithItsReason_data();
    void failsWithItsReason();
};

void RenderedIconsTest::eachSizeIsWhatItWouldBeAlone()
{
    const QImage picture = testPicture(1024, 1024);
    RenderedIcons icons(picture);
    const std::array sizes = {57, 1024, 512, 57};
    icons.prepare(sizes);
    for (const int size : sizes)
        QCOMPARE(icons.png(size).value(), encodedPng(resampled(picture, {size, size})));
    QCOMPARE(icons.png(29).value(), encodedPng(resampled(picture, {29, 29})));
}

void RenderedIconsTest::failsWithItsReason_data()
{
    QTest::addColumn<QImage>("icon");
    QTest::addColumn<int>("size");
    QTest::addColumn<FailureDetail>("detail");
    QTest::newRow("no size") << quarters(8, 8) << 0 << pixelsDetail({0, 0});
    QTest::newRow("negative size") << quarters(8, 8) << -5 << pixelsDetail({-5, -5});
    QTest::newRow("null icon") << QImage() << 57 << FailureDetail("DETAIL_EMPTY_PICTURE");
    QTest::newRow("null icon and no size") << QImage() << 0 << FailureDetail("DETAIL_EMPTY_PICTURE");
}

void RenderedIconsTest::failsWithItsReason()
{
    QFETCH(QImage, icon);
    QFETCH(int, size);
    QFETCH(FailureDetail, detail);
    RenderedIcons icons(icon);
    const Result<QByteArray> png = icons.png(size);
    QVERIFY(!png.ok());
    QCOMPARE(png.failure(), (Failure{FailureCode::InvalidValue, {}, detail}));
}

QTEST_GUILESS_MAIN(RenderedIconsTest)
#include "RenderedIconsTest.moc"
