// SPDX-License-Identifier: MIT
#include "resizer/RetinaPicture.h"
#include "tests/pictures/TestPictures.h"
#include "tests/pictures/scaling/ZonePlate.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QTest>
#include <QtEndian>

#include <cmath>

using namespace lumora;

namespace
{

QImage flat(QImage::Format format, const QColor &color)
{
    QImage picture(33, 20, QImage::Format_ARGB32);
    picture.fill(color);
    return picture.convertToFormat(format);
}

QByteArray gammaChunk(quint32 hundredThousandths)
{
    QByteArray content(4, Qt::Uninitialized);
    qToBigEndian(hundredThousandths, content.data());
    return content;
}

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// The content of a PNG file's only chunk of pixels.
QByteArray pixelsOf(const QByteArray &file)
{
    const qsizetype type = file.indexOf("IDAT");
    return file.mid(type + 4, qFromBigEndian<quint32>(file.constData() + type - 4));
}

/// An animated PNG of two frames of the pictures' size.
QByteArray animation(const QByteArray &first, const QByteArray &second)
{
    const QByteArray size = first.mid(16, 8);
    const QByteArray timing("\0\0\0\0\0\0\0\0\0\1\0\2\0\0", 14);
    // Each is inserted directly after the header, so the last one first.
    QByteArray file = withPngChunk(first, "fcTL", bigEndian(0) + size + timing);
    file = withPngChunk(file, "acTL", bigEndian(2) + bigEndian(0));
    QByteArray more = withPngChunk(first, "fdAT", bigEndian(2) + pixelsOf(second));
    more = withPngChunk(more, "fcTL", bigEndian(1) + size + timing);
    const qsizetype grown = more.size() - first.size();
    constexpr qsizetype headerEnd = 8 + 12 + 13;
    return file.insert(file.size() - 12, more.mid(headerEnd, grown));
}

/// Pure P3 red, which no sRGB screen can show: it becomes the strongest red there is.
QByteArray displayP3Red()
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
    return pictureFile(picture);
}

} // namespace

class RetinaPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void halfOfAFlatPictureIsItsColor_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QColor>("color");
        const QColor opaque(10, 20, 200);
        // A color that its alpha shows exactly.
        const QColor faint(204, 102, 5, 50);
        QTest::newRow("RGB") << pictureFile(flat(QImage::Format_RGB32, opaque)) << opaque;
        QTest::newRow("RGBA") << pictureFile(flat(QImage::Format_ARGB32, faint)) << faint;
        QTest::newRow("palette") << pictureFile(
                                        flat(QImage::Format_ARGB32, opaque)
                                            .convertToFormat(QImage::Format_Indexed8, QList<QRgb>{opaque.rgb()}))
                                 << opaque;
        QTest::newRow("grey") << pictureFile(flat(QImage::Format_Grayscale8, QColor(77, 77, 77))) << QColor(77, 77, 77);
        QTest::newRow("16 bits a sample") << pictureFile(flat(QImage::Format_RGBX64, opaque)) << opaque;
        QTest::newRow("16 bits, faint") << pictureFile(flat(QImage::Format_RGBA64, faint)) << faint;
        QTest::newRow("marked by the gamma of sRGB")
            << withPngChunk(pictureFile(flat(QImage::Format_RGB32, opaque)), "gAMA", gammaChunk(45455)) << opaque;
        QTest::newRow("16 bits, marked by the gamma of sRGB")
            << withPngChunk(pictureFile(flat(QImage::Format_RGBX64, opaque)), "gAMA", gammaChunk(45455)) << opaque;
        QTest::newRow("a profile wider than sRGB") << displayP3Red() << QColor(255, 0, 0);
        QTest::newRow("resolution of a double-resolution screen") << [] {
            QImage picture = flat(QImage::Format_RGB32, QColor(1, 2, 3));
            picture.setDotsPerMeterX(5669);
            picture.setDotsPerMeterY(5669);
            return pictureFile(picture);
        }() << QColor(1, 2, 3);
    }
    void halfOfAFlatPictureIsItsColor()
    {
        QFETCH(QByteArray, file);
        QFETCH(QColor, color);
        const QSize source = QImage::fromData(file).size();
        const Result<HalvedPicture> half = halvedPicture(file, {});
        QVERIFY(half.ok());
        QCOMPARE(half.value().size, QSize(source.width() / 2, source.height() / 2));
        QImage picture = QImage::fromData(half.value().png, "png");
        QCOMPARE(picture.size(), half.value().size);
        QCOMPARE(picture.format(), QImage::Format_ARGB32);
        QCOMPARE(picture.colorSpace(), QColorSpace(QColorSpace::SRgb));
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                QCOMPARE(picture.pixelColor(x, y), color);
        }
    }

    void anAnimationGivesItsFirstFrame_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("8 bits") << QImage::Format_ARGB32;
        QTest::newRow("16 bits") << QImage::Format_RGBA64;
        QTest::newRow("no alpha") << QImage::Format_RGB32;
    }
    void anAnimationGivesItsFirstFrame()
    {
        QFETCH(QImage::Format, format);
        const Result<HalvedPicture> half =
            halvedPicture(animation(pictureFile(flat(format, Qt::green)), pictureFile(flat(format, Qt::red))), {});
        QVERIFY(half.ok());
        const QImage picture = QImage::fromData(half.value().png);
        QCOMPARE(picture.size(), QSize(16, 10));
        QCOMPARE(picture.pixelColor(3, 3), QColor(Qt::green));
    }

    void keepsDetailAndAddsNone_data()
    {
        QTest::addColumn<int>("alpha");
        // With transparency the colors are scaled in 16 bits.
        QTest::newRow("opaque") << 255;
        QTest::newRow("translucent") << 200;
    }
    void keepsDetailAndAddsNone()
    {
        QFETCH(int, alpha);
        QImage plate = zonePlatePicture().convertToFormat(QImage::Format_ARGB32);
        for (int y = 0; y < plate.height(); ++y) {
            for (int x = 0; x < plate.width(); ++x) {
                const int gray = qRed(plate.pixel(x, y));
                plate.setPixel(x, y, qRgba(gray, gray, gray, alpha));
            }
        }
        const Result<HalvedPicture> half = halvedPicture(pictureFile(plate), {});
        QVERIFY(half.ok());
        const QImage picture = QImage::fromData(half.value().png).convertToFormat(QImage::Format_RGBA8888);
        QCOMPARE(picture.size(), QSize(512, 512));
        // A little above the limits of Lanczos 3; a filter with fewer lobes fails both by far.
        const ZonePlateErrors errors = zonePlateErrors(picture);
        QVERIFY2(errors.aliasing <= 7.5, qPrintable(QString::number(errors.aliasing)));
        QVERIFY2(errors.passband <= 1.2, qPrintable(QString::number(errors.passband)));
    }

    void transparentSurroundingsLeaveNoHalo()
    {
        QImage picture(201, 160, QImage::Format_ARGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const double inside = std::clamp(60.5 - std::hypot(x - 100, y - 80), 0.0, 1.0);
                // Transparent pixels are black, as most programs write them.
                const int alpha = static_cast<int>(std::lround(255 * inside));
                picture.setPixel(x, y, alpha == 0 ? qRgba(0, 0, 0, 0) : qRgba(255, 255, 255, alpha));
            }
        }
        const Result<HalvedPicture> half = halvedPicture(pictureFile(picture), {});
        QVERIFY(half.ok());
        const QImage result = QImage::fromData(half.value().png);
        int partly = 0;
        for (int y = 0; y < result.height(); ++y) {
            for (int x = 0; x < result.width(); ++x) {
                const QRgb pixel = result.pixel(x, y);
                partly += qAlpha(pixel) > 0 && qAlpha(pixel) < 255;
                if (qAlpha(pixel) > 0)
                    QCOMPARE(pixel | 0xFF000000, qRgb(255, 255, 255));
            }
        }
        QVERIFY(partly > 0);
    }

    void theContentCountsNotTheName()
    {
        QImage picture = flat(QImage::Format_RGB32, Qt::white);
        QVERIFY(halvedPicture(pictureFile(picture, "bmp"), QStringLiteral("bitmap@2x.png")).ok());
    }

    void whatIsTooLargeHasNoHalf()
    {
        QCOMPARE(halvedSize({8192, 8192}, QStringLiteral("x")).value(), QSize(4096, 4096));
        const Result<QSize> half = halvedSize({8192, 8193}, QStringLiteral("x"));
        QVERIFY(!half);
        QCOMPARE(half.failure().code, FailureCode::TooLarge);
        QCOMPARE(half.failure().subject, QStringLiteral("x"));
    }

    void sameBytesAgain()
    {
        const QByteArray file = pictureFile(testPicture(301, 200));
        QCOMPARE(halvedPicture(file, {}).value(), halvedPicture(file, {}).value());
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<FailureCode>("code");
        QTest::newRow("nothing") << QByteArray() << FailureCode::NotAPicture;
        QTest::newRow("text") << QByteArray("hello") << FailureCode::NotAPicture;
        QTest::newRow("huge claim") << pngClaiming(60000, 60000) << FailureCode::TooLarge;
        QTest::newRow("one row more than allowed") << pngClaiming(8192, 8193) << FailureCode::TooLarge;
        const QByteArray whole = pictureFile(testPicture(64, 64));
        for (const qsizetype part : {8, 20, 33, 60})
            QTest::addRow("cut off after %d bytes", int(part)) << whole.first(part) << FailureCode::NotAPicture;
        QTest::newRow("cut off in the middle") << whole.first(whole.size() / 2) << FailureCode::NotAPicture;
        QTest::newRow("cut off at the last byte") << whole.chopped(1) << FailureCode::NotAPicture;
    }
    void refuses()
    {
        QFETCH(QByteArray, file);
        QFETCH(FailureCode, code);
        const Result<HalvedPicture> half = halvedPicture(file, QStringLiteral("name"));
        QVERIFY(!half.ok());
        QCOMPARE(half.failure().code, code);
        QCOMPARE(half.failure().subject, QStringLiteral("name"));
    }
};

QTEST_GUILESS_MAIN(RetinaPictureTest)
#include "RetinaPictureTest.moc"
