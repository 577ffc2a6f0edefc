// SPDX-License-Identifier: MIT
#include "pictures/webp/WebPEncoder.h"

#include "foundation/WholeFile.h"
#include "tests/pictures/TestPictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QImage readByQt(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer, "webp").read().convertToFormat(QImage::Format_RGBA8888);
}

double largestError(const QImage &one, const QImage &other)
{
    double largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            largest = std::max({largest, std::abs(a.redF() * a.alphaF() - b.redF() * b.alphaF()) * 255.0,
                                std::abs(a.greenF() * a.alphaF() - b.greenF() * b.alphaF()) * 255.0,
                                std::abs(a.blueF() * a.alphaF() - b.blueF() * b.alphaF()) * 255.0,
                                std::abs(a.alphaF() - b.alphaF()) * 255.0});
        }
    }
    return largest;
}

} // namespace

/// WebP files as Qt's reader reads them.
class WebPEncoderTest : public QObject
{
    Q_OBJECT

private slots:
    void losslessKeepsEveryPixel_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::newRow("one pixel") << quarters(2, 2).copy(0, 0, 1, 1);
        QTest::newRow("quarters") << quarters(37, 19);
        QTest::newRow("gradients") << testPicture(200, 120);
        QTest::newRow("premultiplied") << testPicture(64, 64).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    }
    void losslessKeepsEveryPixel()
    {
        QFETCH(QImage, picture);
        const Result<QByteArray> bytes = encodeWebP(picture, {}, u"picture"_s);
        QVERIFY(bytes.ok());
        const QImage back = readByQt(bytes.value());
        QCOMPARE(back.size(), picture.size());
        QVERIFY(largestError(picture.convertToFormat(QImage::Format_RGBA8888), back) < 0.01);
        QCOMPARE(encodeWebP(picture, {}, u"picture"_s).value(), bytes.value());
    }

    void anotherProgramReadsTheSame_data() { losslessKeepsEveryPixel_data(); }
    void anotherProgramReadsTheSame()
    {
        QFETCH(QImage, picture);
        const Result<QByteArray> bytes = encodeWebP(picture, {}, u"picture"_s);
        QVERIFY(bytes.ok());
        const QTemporaryDir folder;
        QVERIFY(writeWholeFile(folder.filePath(u"a.webp"_s), bytes.value()).ok());
        QProcess convert;
        convert.start(u"convert"_s, {folder.filePath(u"a.webp"_s), u"-depth"_s, u"8"_s, u"rgba:-"_s});
        QVERIFY(convert.waitForFinished());
        const QByteArray pixels = convert.readAllStandardOutput();
        const QImage straight = picture.convertToFormat(QImage::Format_RGBA8888);
        const qsizetype rowBytes = qsizetype{4} * straight.width();
        QCOMPARE(pixels.size(), rowBytes * straight.height());
        const QImage back(reinterpret_cast<const uchar *>(pixels.constData()), straight.width(), straight.height(),
                          rowBytes, QImage::Format_RGBA8888);
        QVERIFY(largestError(straight, back) < 0.01);
    }

    void qualityTradesBytes()
    {
        const QImage picture = testPicture(256, 256);
        qsizetype before = 0;
        for (const int quality : {0, 50, 100}) {
            const Result<QByteArray> bytes = encodeWebP(picture, {quality}, u"picture"_s);
            QVERIFY(bytes.ok());
            QVERIFY(bytes.value().size() > before);
            before = bytes.value().size();
            QCOMPARE(readByQt(bytes.value()).size(), picture.size());
        }
    }

    void whatCannotBeIsRefused()
    {
        QCOMPARE(encodeWebP(QImage(), {}, u"p"_s).failure().code, FailureCode::InvalidValue);
        QCOMPARE(encodeWebP(quarters(2, 2), {101}, u"p"_s).failure().code, FailureCode::InvalidValue);
        QCOMPARE(encodeWebP(QImage(longestWebPEdge + 1, 1, QImage::Format_RGBA8888), {}, u"p"_s).failure().code,
                 FailureCode::TooLarge);
        QVERIFY(encodeWebP(quarters(longestWebPEdge, 1), {}, u"p"_s).ok());
    }
};

QTEST_GUILESS_MAIN(WebPEncoderTest)
#include "WebPEncoderTest.moc"
