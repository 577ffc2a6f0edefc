// SPDX-License-Identifier: MIT
#include "icons/PictureReader.h"

#include "icons/PngEncoder.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// Coloured quarters: red, green / blue, half-transparent white.
QImage quarters(int width, int height)
{
    QImage picture(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool right = x >= width / 2;
            const bool low = y >= height / 2;
            picture.setPixel(x, y, low ? (right ? 0x80FFFFFF : 0xFF0000FF) : (right ? 0xFF00FF00 : 0xFFFF0000));
        }
    }
    return picture;
}

QByteArray encoded(const QImage &picture, const char *format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    return writer.write(picture) ? buffer.data() : QByteArray();
}

bool near(QRgb one, QRgb other, int tolerance)
{
    return std::abs(qRed(one) - qRed(other)) <= tolerance && std::abs(qGreen(one) - qGreen(other)) <= tolerance &&
           std::abs(qBlue(one) - qBlue(other)) <= tolerance && std::abs(qAlpha(one) - qAlpha(other)) <= tolerance;
}

long peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

class PictureReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void readsFormat_data();
    void readsFormat();
    void convertsTheProfile();
    void refuses_data();
    void refuses();
    void hugeClaimCostsNothing_data();
    void hugeClaimCostsNothing();
    void truncatedIsRefused_data();
    void truncatedIsRefused();
};

void PictureReaderTest::readsFormat_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("alpha");
    QTest::addColumn<int>("tolerance");
    const QImage picture = quarters(64, 48);
    const QList<QRgb> palette = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0x80FFFFFF};
    QTest::newRow("png") << encoded(picture, "png") << true << 0;
    QTest::newRow("png, 16 bits") << encoded(picture.convertToFormat(QImage::Format_RGBA64), "png") << true << 0;
    QTest::newRow("png, palette") << encoded(picture.convertToFormat(QImage::Format_Indexed8, palette), "png") << true
                                  << 1;
    QTest::newRow("jpeg") << encoded(picture, "jpeg") << false << 12;
    QTest::newRow("tiff") << encoded(picture, "tiff") << true << 0;
    QTest::newRow("webp") << encoded(picture, "webp") << true << 12;
    QTest::newRow("bmp") << encoded(picture.convertToFormat(QImage::Format_RGB32), "bmp") << false << 0;
}

void PictureReaderTest::readsFormat()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, alpha);
    QFETCH(int, tolerance);
    QVERIFY(!file.isEmpty());
    const Result<QSize> size = storedPixelSize(file, u"x"_s);
    QVERIFY(size.ok());
    QCOMPARE(size.value(), QSize(64, 48));
    const Result<QImage> picture = readPicture(file, u"x"_s);
    QVERIFY(picture.ok());
    QCOMPARE(picture.value().format(), QImage::Format_RGBA8888_Premultiplied);
    QCOMPARE(picture.value().size(), QSize(64, 48));
    QVERIFY(near(picture.value().pixel(10, 10), 0xFFFF0000, tolerance));
    QVERIFY(near(picture.value().pixel(50, 10), 0xFF00FF00, tolerance));
    QVERIFY(near(picture.value().pixel(10, 40), 0xFF0000FF, tolerance));
    if (alpha)
        QVERIFY(near(picture.value().pixel(50, 40), 0x80808080, std::max(tolerance, 1)));
}

void PictureReaderTest::convertsTheProfile()
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(qRgb(200, 100, 50));
    picture.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
    const Result<QImage> read = readPicture(encoded(picture, "png"), u"x"_s);
    QVERIFY(read.ok());
    // Display P3 (200, 100, 50) / 255 through linear light and the two spaces' published primaries.
    QVERIFY2(near(read.value().pixel(4, 4), qRgb(215, 93, 31), 1),
             qPrintable(QString::number(read.value().pixel(4, 4), 16)));
}

void PictureReaderTest::refuses_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("this is no picture\n");
    QTest::newRow("SVG") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='1024' height='1024'/>");
    QTest::newRow("signature only") << QByteArray("\x89PNG\r\n\x1A\n", 8);
    QTest::newRow("JPEG signature only") << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("zeroes") << QByteArray(100000, '\0');
    QTest::newRow("icns, empty") << QByteArray("icns\0\0\0\x08", 8);
    QTest::newRow("icns, member of length 0") << QByteArray("icns\0\0\0\x10ic10\0\0\0\0", 16);
    QTest::newRow("icns, longer than it is") << QByteArray("icns\x7F\0\0\x10ic10\0\0\0\x08", 16);
}

void PictureReaderTest::refuses()
{
    QFETCH(QByteArray, file);
    const Result<QImage> picture = readPicture(file, u"name"_s);
    QVERIFY(!picture.ok());
    QCOMPARE(picture.failure(), (Failure{FailureCode::NotAPicture, u"name"_s, {}}));
    QVERIFY(!storedPixelSize(file, u"name"_s).ok());
}

void PictureReaderTest::hugeClaimCostsNothing_data()
{
    QTest::addColumn<QByteArray>("file");
    QByteArray png = encodePng(quarters(64, 64));
    // 60000 in both places of the header; its checksum is then wrong, so both forms are tried.
    png.replace(16, 8, QByteArray("\0\0\xEA\x60\0\0\xEA\x60", 8));
    QTest::newRow("png, checksum wrong") << png;
    const quint32 checksum = [&] {
        quint32 crc = 0xFFFFFFFF;
        for (const char byte : png.mid(12, 17)) {
            crc ^= static_cast<uchar>(byte);
            for (int bit = 0; bit < 8; ++bit)
                crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0U);
        }
        return ~crc;
    }();
    for (int i = 0; i < 4; ++i)
        png[29 + i] = static_cast<char>(checksum >> (24 - 8 * i));
    QTest::newRow("png") << png;
    QByteArray bmp = encoded(quarters(64, 64).convertToFormat(QImage::Format_RGB32), "bmp");
    bmp.replace(18, 8, QByteArray("\x60\xEA\0\0\x60\xEA\0\0", 8));
    QTest::newRow("bmp") << bmp;
}

void PictureReaderTest::hugeClaimCostsNothing()
{
    QFETCH(QByteArray, file);
    const long before = peakKilobytes();
    const Result<QImage> picture = readPicture(file, u"x"_s);
    QVERIFY(!picture.ok());
    QVERIFY2(peakKilobytes() - before < 16 * 1024, qPrintable(QString::number(peakKilobytes() - before)));
}

void PictureReaderTest::truncatedIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    const QImage picture = quarters(64, 48);
    for (const char *format : {"png", "jpeg", "tiff", "webp", "bmp"}) {
        const QImage written = qstrcmp(format, "bmp") == 0 ? picture.convertToFormat(QImage::Format_RGB32) : picture;
        QTest::newRow(format) << encoded(written, format);
    }
}

void PictureReaderTest::truncatedIsRefused()
{
    QFETCH(QByteArray, file);
    QVERIFY(readPicture(file, u"x"_s).ok());
    // Every cut of a small file, down to nothing; the last bytes may be padding that no decoder misses.
    QList<qsizetype> accepted;
    for (qsizetype length = 0; length < file.size() - 16; ++length) {
        if (readPicture(file.first(length), u"x"_s).ok())
            accepted << length;
    }
    QCOMPARE(accepted, QList<qsizetype>());
}

QTEST_GUILESS_MAIN(PictureReaderTest)
#include "PictureReaderTest.moc"
