// SPDX-License-Identifier: MIT
#include "pictures/png/ApplePngDecoder.h"
#include "pictures/png/PngHeader.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/archive/FolderSource.h"
#include "validator/bundle/BundleImages.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 plenty = 1 << 20;
const QSize size(13, 11);

/// The pixel that make_pictures.py draws, with straight colors.
QColor drawn(int x, int y)
{
    return QColor(20 * x, 20 * y, 10 * (x + y), 255 - 12 * x);
}

QRgb multiplied(int x, int y)
{
    const QColor pixel = drawn(x, y);
    const auto times = [&pixel](int value) { return (value * pixel.alpha() + 127) / 255; };
    return qRgba(times(pixel.red()), times(pixel.green()), times(pixel.blue()), pixel.alpha());
}

QRgb opaque(int x, int y)
{
    return QColor(drawn(x, y).rgb()).rgba();
}

QRgb cutToAlpha(int, int)
{
    return qRgba(100, 100, 100, 100);
}

QRgb storedPixel(const QImage &image, int x, int y)
{
    const uchar *pixel = image.constScanLine(y) + x * 4;
    return qRgba(pixel[0], pixel[1], pixel[2], pixel[3]);
}

} // namespace

class ApplePngDecoderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_pictures.py"_s, {m_pictures.path()})); }

    void decodes_data()
    {
        QTest::addColumn<QRgb (*)(int, int)>("expected");
        for (const char *name : {"multiplied", "multiplied interlaced", "data in many chunks", "other chunks between"})
            QTest::newRow(name) << &multiplied;
        for (const char *name : {"opaque", "opaque by the lowest number", "opaque interlaced", "three channels",
                                 "three channels that claim alpha"})
            QTest::newRow(name) << &opaque;
        QTest::newRow("colors above alpha") << &cutToAlpha;
    }
    void decodes()
    {
        using Pixel = QRgb (*)(int, int);
        QFETCH(Pixel, expected);
        const auto decoded = decodeApplePng(contents(), u"name"_s, plenty);
        QVERIFY(decoded);
        const QImage &image = decoded.value();
        QCOMPARE(image.size(), size);
        QCOMPARE(image.format(), QImage::Format_RGBA8888_Premultiplied);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                QVERIFY2(storedPixel(image, x, y) == expected(x, y), qPrintable(u"at %1, %2"_s.arg(x).arg(y)));
        }
    }

    void refuses_data()
    {
        QTest::addColumn<FailureCode>("code");
        for (const char *name :
             {"plain", "data ends early", "no data", "file ends early", "grey", "palette", "16 bits", "no width",
              "taller than its data", "wrong checksum", "chunk longer than the file", "signature only"})
            QTest::newRow(name) << FailureCode::NotAPicture;
        QTest::newRow("gigantic") << FailureCode::TooLarge;
    }
    void refuses()
    {
        const auto decoded = decodeApplePng(contents(), u"name"_s, plenty);
        QVERIFY(!decoded);
        QTEST(decoded.failure().code, "code");
        QCOMPARE(decoded.failure().subject, u"name"_s);
    }

    void takesSizesFromTheHeaderAlone_data()
    {
        QTest::addColumn<QSize>("expected");
        QTest::newRow("multiplied") << size;
        QTest::newRow("plain") << size;
        QTest::newRow("data ends early") << size;
        QTest::newRow("no data") << size;
        QTest::newRow("gigantic") << QSize(2'000'000'000, 2'000'000'000);
        QTest::newRow("no width") << QSize();
        QTest::newRow("signature only") << QSize();
        QTest::newRow("no such file") << QSize();
    }
    void takesSizesFromTheHeaderAlone()
    {
        const auto source = FolderSource::open(m_pictures.path(), FolderLayout::Package);
        QVERIFY(source);
        QTEST(pictureSize(*source.value(), QFileInfo(path()).fileName()), "expected");
    }

    void keepsToTheAreaItMayDecode()
    {
        QFile file(m_pictures.filePath(u"multiplied.png"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(decodeApplePng(bytes, {}, 13 * 11));
        QCOMPARE(decodeApplePng(bytes, {}, 13 * 11 - 1).failure().code, FailureCode::TooLarge);
    }

private:
    QString path() const { return m_pictures.filePath(QString::fromUtf8(QTest::currentDataTag()) + u".png"_s); }
    QByteArray contents() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_pictures;
};

QTEST_GUILESS_MAIN(ApplePngDecoderTest)
#include "ApplePngDecoderTest.moc"
