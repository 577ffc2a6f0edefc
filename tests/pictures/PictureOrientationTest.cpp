// SPDX-License-Identifier: MIT
#include "TestPictures.h"
#include "pictures/PictureReader.h"

#include <QTest>
#include <QtEndian>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr QSize storedSize(64, 48);

QImage opaqueQuarters()
{
    return quarters(storedSize.width(), storedSize.height()).convertToFormat(QImage::Format_RGB32);
}

QByteArray littleEndianBlock(char orientation)
{
    return QByteArray("II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0", 18) + orientation +
           QByteArray("\0\0\0\0\0\0\0", 7);
}

QByteArray bigEndianBlock(char orientation)
{
    return QByteArray("MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0", 19) + orientation +
           QByteArray("\0\0\0\0\0\0", 6);
}

/// A TIFF file holds the orientation in its own directory, which Qt writes in the machine's byte order.
QByteArray turnedTiff(quint16 orientation)
{
    QByteArray file = pictureFile(opaqueQuarters(), "tiff");
    const auto number16 = [&file](qsizetype at) { return qFromLittleEndian<quint16>(file.constData() + at); };
    constexpr quint16 orientationTag = 274;
    const qsizetype directory = qFromLittleEndian<quint32>(file.constData() + 4);
    for (int entry = 0; entry < number16(directory); ++entry) {
        const qsizetype at = directory + 2 + 12 * entry;
        if (number16(at) == orientationTag) {
            qToLittleEndian(orientation, file.data() + at + 8);
            return file;
        }
    }
    return {};
}

} // namespace

class PictureOrientationTest : public QObject
{
    Q_OBJECT

private slots:
    void turnsAsTheFileAsks_data();
    void turnsAsTheFileAsks();
};

void PictureOrientationTest::turnsAsTheFileAsks_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QList<QRgb>>("corners");
    const QRgb red = 0xFFFF0000;
    const QRgb green = 0xFF00FF00;
    const QRgb blue = 0xFF0000FF;
    const QRgb white = 0x80808080;
    // The expected top left, top right, bottom left and bottom right, for the orientations of EXIF.
    const QList<QRgb> seen[] = {{red, green, blue, white}, {green, red, white, blue}, {white, blue, green, red},
                                {blue, white, red, green}, {red, blue, green, white}, {blue, red, white, green},
                                {white, green, blue, red}, {green, white, red, blue}};
    const QByteArray png = pictureFile(quarters(storedSize.width(), storedSize.height()));
    const QByteArray jpeg = pictureFile(opaqueQuarters(), "jpeg");
    const QByteArray webp = pictureFile(quarters(storedSize.width(), storedSize.height()), "webp");
    const QByteArray jpegMark("Exif\0\0", 6);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const QByteArray little = littleEndianBlock(static_cast<char>(orientation));
        const QByteArray big = bigEndianBlock(static_cast<char>(orientation));
        const QList<QRgb> corners = seen[orientation - 1];
        QList<QRgb> opaque = corners;
        opaque.replace(opaque.indexOf(white), 0xFFFFFFFF);
        QTest::addRow("png, %d", orientation) << withPngChunk(png, "eXIf", little) << corners;
        QTest::addRow("png, big-endian, %d", orientation) << withPngChunk(png, "eXIf", big) << corners;
        QTest::addRow("jpeg, %d", orientation) << withJpegSegment(jpeg, 0xE1, jpegMark + little) << opaque;
        QTest::addRow("jpeg, big-endian, %d", orientation) << withJpegSegment(jpeg, 0xE1, jpegMark + big) << opaque;
        QTest::addRow("tiff, %d", orientation) << turnedTiff(static_cast<quint16>(orientation)) << opaque;
        QTest::addRow("webp, %d", orientation) << withWebpChunk(webp, storedSize, "EXIF", little) << corners;
        QTest::addRow("webp, big-endian, %d", orientation) << withWebpChunk(webp, storedSize, "EXIF", big) << corners;
        QTest::addRow("webp, with the mark of JPEG files, %d", orientation)
            << withWebpChunk(webp, storedSize, "EXIF", jpegMark + little) << corners;
    }
    QTest::newRow("png, 9") << withPngChunk(png, "eXIf", littleEndianBlock(9)) << seen[0];
    QTest::newRow("png, directory beyond the end")
        << withPngChunk(png, "eXIf", QByteArray("II*\0\xFF\xFF\xFF\xFF", 8)) << seen[0];
    QTest::newRow("png, empty block") << withPngChunk(png, "eXIf", "II") << seen[0];
    QTest::newRow("webp, directory beyond the end")
        << withWebpChunk(webp, storedSize, "EXIF", QByteArray("II*\0\xFF\xFF\xFF\xFF", 8)) << seen[0];
    QTest::newRow("webp, empty block") << withWebpChunk(webp, storedSize, "EXIF", {}) << seen[0];
}

void PictureOrientationTest::turnsAsTheFileAsks()
{
    QFETCH(QByteArray, file);
    QFETCH(QList<QRgb>, corners);
    QVERIFY(!file.isEmpty());
    QCOMPARE(storedPixelSize(file, u"x"_s).value(), storedSize);
    const Result<QImage> read = readPicture(file, u"x"_s);
    QVERIFY(read.ok());
    const QImage &picture = read.value();
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    const QPoint places[] = {{0, 0}, {right, 0}, {0, bottom}, {right, bottom}};
    // JPEG is never exact.
    constexpr int tolerance = 3;
    for (int corner = 0; corner < 4; ++corner)
        QVERIFY2(near(picture.pixel(places[corner]), corners[corner], tolerance), qPrintable(QString::number(corner)));
    QCOMPARE(picture.format(), QImage::Format_RGBA8888_Premultiplied);
}

QTEST_GUILESS_MAIN(PictureOrientationTest)
#include "PictureOrientationTest.moc"
