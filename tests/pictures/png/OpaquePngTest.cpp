// SPDX-License-Identifier: MIT
#include "pictures/png/OpaquePng.h"

#include "pictures/PictureReader.h"
#include "pictures/png/PngEncoder.h"
#include "pictures/png/PngHeader.h"
#include "tests/pictures/TestPictures.h"

#include <QColorSpace>
#include <QTest>

using namespace lumora;

namespace
{

QImage opaque(QImage picture)
{
    return picture.convertToFormat(QImage::Format_RGBX8888).convertToFormat(QImage::Format_RGBA8888);
}

} // namespace

class OpaquePngTest : public QObject
{
    Q_OBJECT

private slots:
    void pixels_data();
    void pixels();
    void transparencyIsTakenOnBlack();
    void nothing();
};

void OpaquePngTest::pixels_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::newRow("one pixel") << opaque(testPicture(1, 1));
    QTest::newRow("one row") << opaque(testPicture(300, 1));
    QTest::newRow("one column") << opaque(testPicture(1, 300));
    QTest::newRow("small") << opaque(testPicture(57, 31));
    QTest::newRow("several sections") << opaque(testPicture(1024, 1024));
    QImage plain(700, 900, QImage::Format_RGBA8888);
    plain.fill(QColor(1, 2, 3));
    QTest::newRow("plain") << plain;
}

void OpaquePngTest::pixels()
{
    QFETCH(QImage, picture);
    const QByteArray file = encodeOpaquePng(picture);
    const auto header = pngHeader(file);
    QVERIFY(header.has_value());
    QCOMPARE(header->colorType, 2);
    QCOMPARE(header->bitDepth, 8);
    QVERIFY(!QImage::fromData(file, "png").hasAlphaChannel());
    QCOMPARE(readStraightPicture(file, {}).value(), picture);
    QImage byAnother = QImage::fromData(file, "png").convertToFormat(QImage::Format_RGBA8888);
    byAnother.setColorSpace({});
    QCOMPARE(byAnother, picture);
    QCOMPARE(encodeOpaquePng(picture, 4), file);
    QVERIFY(file.size() <= encodePng(picture).size() + encodePng(picture).size() / 10);
}

void OpaquePngTest::transparencyIsTakenOnBlack()
{
    QImage picture(2, 1, QImage::Format_RGBA8888);
    picture.setPixelColor(0, 0, QColor(255, 255, 255, 0));
    picture.setPixelColor(1, 0, QColor(255, 255, 255, 51));
    const QImage read = QImage::fromData(encodeOpaquePng(picture), "png");
    QCOMPARE(read.pixelColor(0, 0), QColor(0, 0, 0));
    QCOMPARE(read.pixelColor(1, 0), QColor(51, 51, 51));
}

void OpaquePngTest::nothing()
{
    QCOMPARE(encodeOpaquePng({}), QByteArray());
}

QTEST_APPLESS_MAIN(OpaquePngTest)

#include "OpaquePngTest.moc"
