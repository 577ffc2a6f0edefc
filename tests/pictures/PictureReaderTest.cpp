// SPDX-License-Identifier: MIT
#include "pictures/PictureReader.h"

#include "TestPictures.h"
#include "pictures/IcnsWriter.h"
#include "pictures/png/PngEncoder.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <sys/resource.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QByteArray encoded(const QImage &picture, const char *format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    return writer.write(picture) ? buffer.data() : QByteArray();
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
    void readsEveryKindOfPng_data();
    void readsEveryKindOfPng();
    void takesTheLargestOfAnIconFile();
    void resolutionIsIgnored();
    void anotherSizeThanTheHeadersIsRefused();
    void refuses_data();
    void refuses();
    void hugeClaimCostsNothing_data();
    void hugeClaimCostsNothing();
    void largestPictureFitsTheMemory();
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

void PictureReaderTest::readsEveryKindOfPng_data()
{
    QTest::addColumn<QStringList>("how");
    QTest::addColumn<int>("tolerance");
    for (const int bits : {1, 2, 4, 8, 16}) {
        QTest::addRow("grey, %d bits", bits)
            << QStringList{u"-colorspace"_s,      u"Gray"_s,    u"-define"_s,
                           u"png:color-type=0"_s, u"-define"_s, u"png:bit-depth=%1"_s.arg(bits)}
            << 255 / ((1 << std::min(bits, 8)) - 1);
    }
    QTest::newRow("grey with alpha") << QStringList{u"-colorspace"_s, u"Gray"_s, u"-define"_s, u"png:color-type=4"_s}
                                     << 1;
    QTest::newRow("RGB") << QStringList{u"-define"_s, u"png:color-type=2"_s} << 1;
    QTest::newRow("RGB, 16 bits") << QStringList{u"-define"_s, u"png:color-type=2"_s, u"-define"_s,
                                                 u"png:bit-depth=16"_s}
                                  << 1;
    QTest::newRow("palette") << QStringList{u"-colors"_s, u"200"_s, u"-define"_s, u"png:color-type=3"_s} << 40;
    QTest::newRow("RGBA") << QStringList{u"-define"_s, u"png:color-type=6"_s} << 1;
    QTest::newRow("RGBA, interlaced") << QStringList{u"-interlace"_s, u"PNG"_s, u"-define"_s, u"png:color-type=6"_s}
                                      << 1;
    QTest::newRow("RGBA, interlaced, 16 bits")
        << QStringList{u"-interlace"_s,       u"PNG"_s,     u"-define"_s,
                       u"png:color-type=6"_s, u"-define"_s, u"png:bit-depth=16"_s}
        << 1;
}

void PictureReaderTest::readsEveryKindOfPng()
{
    QFETCH(QStringList, how);
    QFETCH(int, tolerance);
    // ImageMagick writes the file, and its pixels as raw bytes.
    const QTemporaryDir folder;
    QFile source(folder.filePath(u"source.png"_s));
    QVERIFY(source.open(QIODevice::WriteOnly));
    source.write(pictureFile(testPicture(61, 47).convertToFormat(QImage::Format_RGB32)));
    source.close();
    const QString made = folder.filePath(u"made.png"_s);
    QCOMPARE(QProcess::execute(u"convert"_s, QStringList{source.fileName()} + how + QStringList{made}), 0);
    const QString raw = folder.filePath(u"made.rgba"_s);
    QCOMPARE(
        QProcess::execute(u"convert"_s, {made, u"-colorspace"_s, u"sRGB"_s, u"-depth"_s, u"8"_s, u"rgba:"_s + raw}), 0);
    QFile rawFile(raw);
    QVERIFY(rawFile.open(QIODevice::ReadOnly));
    const QByteArray pixels = rawFile.readAll();
    QCOMPARE(pixels.size(), 61 * 47 * 4);
    const Result<QImage> read = readPicture(made);
    QVERIFY(read.ok());
    for (int y = 0; y < 47; ++y) {
        for (int x = 0; x < 61 * 4; ++x) {
            const int wanted = static_cast<uchar>(pixels[y * 61 * 4 + x]);
            QVERIFY(std::abs(wanted - read.value().constScanLine(y)[x]) <= std::min(tolerance, 1));
        }
    }
}

void PictureReaderTest::takesTheLargestOfAnIconFile()
{
    const IcnsMember members[] = {{"icp4", pictureFile(testPicture(16, 16))},
                                  {"TOC ", QByteArray("anything")},
                                  {"ic08", pictureFile(testPicture(256, 256))},
                                  {"ic07", pictureFile(testPicture(128, 128))}};
    const QByteArray file = icnsFile(members);
    QCOMPARE(storedPixelSize(file, u"x"_s).value(), QSize(256, 256));
    QCOMPARE(readPicture(file, u"x"_s).value().size(), QSize(256, 256));
    QVERIFY(!readPicture(file.chopped(1), u"x"_s).ok());
}

void PictureReaderTest::resolutionIsIgnored()
{
    const QByteArray file =
        withPngChunk(pictureFile(quarters(64, 48)), "pHYs", QByteArray("\0\0\x2C\x4A\0\0\x2C\x4A\x01", 9));
    const Result<QImage> read = readPicture(file, u"x"_s);
    QVERIFY(read.ok());
    QCOMPARE(read.value().size(), QSize(64, 48));
    QCOMPARE(read.value().devicePixelRatio(), 1.0);
}

void PictureReaderTest::anotherSizeThanTheHeadersIsRefused()
{
    // For a screen so much higher than its only frame the decoder reports the frame's size but decodes the screen's.
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"high.gif"_s);
    QCOMPARE(QProcess::execute(u"convert"_s, {u"-size"_s, u"23x17"_s, u"plasma:red-blue"_s, path}), 0);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray bytes = file.readAll();
    QVERIFY(readPicture(bytes, u"x"_s).ok());
    constexpr qsizetype screenHeightAt = 8;
    bytes.replace(screenHeightAt, 2, QByteArray("\x00\x11", 2));
    QCOMPARE(storedPixelSize(bytes, u"x"_s).value(), QSize(23, 17));
    const Result<QImage> read = readPicture(bytes, u"x"_s);
    QVERIFY(!read.ok());
    QCOMPARE(read.failure().code, FailureCode::NotAPicture);
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
    const QByteArray picture = pictureFile(quarters(16, 16));
    QTest::newRow("icns, member longer than the file") << [&picture] {
        // The picture is complete; only the member's length is too large.
        QByteArray file = icnsFile({{IcnsMember{"ic10", picture}}});
        qToBigEndian<quint32>(static_cast<quint32>(8 + picture.size() + 1), file.data() + 12);
        return file;
    }();
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
    QByteArray png = encodedPng(quarters(64, 64));
    // 60000 for both lengths in the header. This makes the checksum wrong, so both forms are tested.
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
    QByteArray text = withPngChunk(pictureFile(quarters(64, 64)), "tEXt", "Title");
    text[text.indexOf("tEXt") - 4] = '\x70';
    QTest::newRow("png, a text of almost two gigabytes") << text;
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

void PictureReaderTest::largestPictureFitsTheMemory()
{
    // 16 bits a sample and a profile to convert: the slowest kind of picture.
    const QByteArray profile = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    const QByteArray packed = qCompress(profile).sliced(4);
    const QByteArray file = withPngChunk(pngOfZeroes(8000, 8000), "iCCP", QByteArray("P3\0\0", 4) + packed);
    QFile peak(u"/proc/self/clear_refs"_s);
    QVERIFY(peak.open(QIODevice::WriteOnly) && peak.write("5") == 1);
    peak.close();
    QVERIFY(readPicture(file, u"x"_s).ok());
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    QFile status(u"/proc/self/status"_s);
    QVERIFY(status.open(QIODevice::ReadOnly));
    const QByteArray text = status.readAll();
    const qsizetype at = text.indexOf("VmHWM:");
    QVERIFY(at >= 0);
    const int kilobytes = text.mid(at + 6, text.indexOf("kB", at) - at - 6).trimmed().toInt();
    QVERIFY2(kilobytes < 1'000'000, qPrintable(QString::number(kilobytes)));
#endif
}

void PictureReaderTest::truncatedIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    const QImage picture = quarters(64, 48);
    for (const char *format : {"png", "jpeg", "tiff", "webp", "bmp"}) {
        const QImage written = qstrcmp(format, "bmp") == 0 ? picture.convertToFormat(QImage::Format_RGB32) : picture;
        QTest::newRow(format) << encoded(written, format);
    }
    QTest::newRow("bmp, rows padded") << encoded(quarters(63, 48).convertToFormat(QImage::Format_RGB32), "bmp");
}

void PictureReaderTest::truncatedIsRefused()
{
    QFETCH(QByteArray, file);
    QVERIFY(readPicture(file, u"x"_s).ok());
    // Every cut of a small file, down to zero bytes; the last bytes may be padding that decoders do not need.
    QList<qsizetype> accepted;
    for (qsizetype length = 0; length < file.size() - 16; ++length) {
        if (readPicture(file.first(length), u"x"_s).ok())
            accepted << length;
    }
    QCOMPARE(accepted, QList<qsizetype>());
}

QTEST_GUILESS_MAIN(PictureReaderTest)
#include "PictureReaderTest.moc"
