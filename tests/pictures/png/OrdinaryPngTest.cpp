// SPDX-License-Identifier: MIT
#include "pictures/png/OrdinaryPng.h"
#include "pictures/png/PngDecoder.h"
#include "tests/pictures/TestPictures.h"

#include <QColorSpace>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

#include <zlib.h>

using namespace lumora;

namespace
{

QByteArray number32(quint32 value)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &type, const QByteArray &content)
{
    const QByteArray checked = type + content;
    const auto checksum = crc32(0, reinterpret_cast<const Bytef *>(checked.constData()), uInt(checked.size()));
    return number32(quint32(content.size())) + checked + number32(quint32(checksum));
}

struct Kind
{
    int colorType = 6;
    int depth = 8;
    int interlaced = 0;
    int channels() const { return colorType == 2 ? 3 : colorType == 4 ? 2 : colorType == 6 ? 4 : 1; }
};

/// A PNG file of noise. The rows use the filters in turn; any bytes are valid after each filter.
QByteArray noisePng(QSize size, Kind kind, const QByteArray &before = {}, const QByteArray &after = {}, int filters = 5)
{
    QRandomGenerator random(quint32(kind.colorType * 16 + kind.depth));
    const int rowBytes = (size.width() * kind.channels() * kind.depth + 7) / 8;
    QByteArray rows;
    for (int y = 0; y < size.height(); ++y) {
        rows.append(char(y % filters));
        for (int i = 0; i < rowBytes; ++i)
            rows.append(char(random.bounded(256)));
    }
    const QByteArray stream = qCompress(rows).mid(4);
    QByteArray header = number32(quint32(size.width())) + number32(quint32(size.height()));
    header.append(char(kind.depth)).append(char(kind.colorType)).append(2, '\0').append(char(kind.interlaced));
    // Two chunks of pixels, as some writers make them.
    return QByteArray("\x89PNG\r\n\x1A\n", 8) + chunk("IHDR", header) + before +
           chunk("IDAT", stream.first(stream.size() / 2)) + chunk("IDAT", stream.mid(stream.size() / 2)) + after +
           chunk("IEND", {});
}

QByteArray palette(int colors)
{
    QByteArray content;
    for (int i = 0; i < 3 * colors; ++i)
        content.append(char(i * 37));
    return chunk("PLTE", content);
}

const QByteArray usualGamma = chunk("gAMA", number32(45455));
const QByteArray otherGamma = chunk("gAMA", number32(100000));

QByteArray primaries(quint32 redX)
{
    QByteArray content;
    for (const quint32 value : {31270U, 32900U, redX, 33000U, 30000U, 60000U, 15000U, 6000U})
        content += number32(value);
    return chunk("cHRM", content);
}

} // namespace

class OrdinaryPngTest : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTheGeneralDecoder_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QSize size(37, 23);
        QTest::newRow("RGBA") << noisePng(size, {6, 8});
        QTest::newRow("RGB") << noisePng(size, {2, 8});
        QTest::newRow("grey with alpha") << noisePng(size, {4, 8});
        for (const int depth : {1, 2, 4, 8}) {
            QTest::addRow("grey, %d bits", depth) << noisePng(size, {0, depth});
            QTest::addRow("palette, %d bits", depth) << noisePng(size, {3, depth}, palette(1 << depth));
            QTest::addRow("palette, %d bits, one transparent", depth)
                << noisePng(size, {3, depth}, palette(1 << depth) + chunk("tRNS", QByteArray("\x40", 1)));
        }
        QTest::newRow("grey with a transparent level")
            << noisePng(size, {0, 2}, chunk("tRNS", QByteArray("\0\x02", 2)));
        QTest::newRow("RGB with a transparent color")
            << noisePng({1000, 50}, {2, 8}, chunk("tRNS", QByteArray("\0\x07\0\x08\0\x09", 6)));
        QTest::newRow("one pixel") << noisePng({1, 1}, {6, 8});
        QTest::newRow("one column") << noisePng({1, 300}, {2, 8});
        QTest::newRow("text before and after the pixels")
            << noisePng(size, {6, 8}, chunk("tEXt", "a\0b"), chunk("tIME", QByteArray(7, '\1')));
        QTest::newRow("gamma of sRGB") << noisePng(size, {6, 8}, usualGamma);
        QTest::newRow("gamma and primaries of sRGB") << noisePng(size, {6, 8}, usualGamma + primaries(64000));
        QTest::newRow("sRGB beats another gamma")
            << noisePng(size, {6, 8}, chunk("sRGB", QByteArray(1, '\0')) + otherGamma);
        QTest::newRow("frames of an animation")
            << noisePng(size, {6, 8}, chunk("acTL", number32(2) + number32(0)), chunk("fdAT", QByteArray(40, 'x')));
        QTest::newRow("written by Qt") << pictureFile(testPicture(300, 200));
    }
    void agreesWithTheGeneralDecoder()
    {
        QFETCH(QByteArray, file);
        const std::optional<QImage> ordinary = decodeOrdinaryPng(file);
        QVERIFY(ordinary.has_value());
        Result<DecodedPng> general = decodePng(file, {});
        QVERIFY(general.ok());
        general.value().picture.setColorSpace({});
        QCOMPARE(*ordinary, general.value().picture);
    }

    void leavesTheRestToTheGeneralDecoder_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QSize size(37, 23);
        const QByteArray good = noisePng(size, {6, 8});
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no picture") << QByteArray("GIF89a");
        QTest::newRow("signature only") << good.first(8);
        QTest::newRow("16 bits") << noisePng(size, {6, 16});
        QTest::newRow("interlaced") << noisePng(size, {6, 8, 1});
        QTest::newRow("color profile") << noisePng(size, {6, 8}, chunk("iCCP", "a profile"));
        QTest::newRow("another gamma") << noisePng(size, {6, 8}, otherGamma);
        QTest::newRow("gamma of sRGB, other primaries") << noisePng(size, {6, 8}, usualGamma + primaries(68000));
        QTest::newRow("turned by its EXIF") << noisePng(size, {6, 8}, chunk("eXIf", "MM"));
        QTest::newRow("palette missing") << noisePng(size, {3, 8});
        QTest::newRow("critical chunk of unknown kind") << noisePng(size, {6, 8}, chunk("CgBI", number32(0)));
        QTest::newRow("impossible color type") << noisePng(size, {5, 8});
        QTest::newRow("impossible depth") << noisePng(size, {2, 4});
        QTest::newRow("filter that does not exist") << noisePng(size, {6, 8}, {}, {}, 6);
        QByteArray damaged = good;
        damaged[good.size() / 2] = char(good.at(good.size() / 2) ^ 1);
        QTest::newRow("checksum wrong") << damaged;
        QTest::newRow("no pixels") << QByteArray(good.first(33) + chunk("IEND", {}));
    }
    void leavesTheRestToTheGeneralDecoder()
    {
        QFETCH(QByteArray, file);
        QVERIFY(!decodeOrdinaryPng(file).has_value());
    }

    void truncatedAnywhereIsRefused()
    {
        const QByteArray file = noisePng({37, 23}, {2, 8});
        for (qsizetype length = 0; length < file.size(); ++length)
            QVERIFY2(!decodeOrdinaryPng(file.first(length)).has_value(), qPrintable(QString::number(length)));
    }
};

QTEST_APPLESS_MAIN(OrdinaryPngTest)
#include "OrdinaryPngTest.moc"
