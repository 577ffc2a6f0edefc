// SPDX-License-Identifier: MIT
#include "resizer/RetinaPicture.h"
#include "tests/icons/TestPictures.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QTest>

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
    void halfOfAFlatPictureIsItsColour_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QColor>("color");
        const QColor opaque(10, 20, 200);
        const QColor faint(200, 101, 3, 50);
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
    void halfOfAFlatPictureIsItsColour()
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

    void anAnimationGivesItsFirstFrame()
    {
        QByteArray file = withPngChunk(pictureFile(flat(QImage::Format_ARGB32, Qt::green)), "acTL",
                                       QByteArray("\0\0\0\2\0\0\0\0", 8));
        const Result<HalvedPicture> half = halvedPicture(file, {});
        QVERIFY(half.ok());
        QCOMPARE(QImage::fromData(half.value().png).pixelColor(3, 3), QColor(Qt::green));
    }

    void theContentCountsNotTheName()
    {
        QImage picture = flat(QImage::Format_RGB32, Qt::white);
        QVERIFY(halvedPicture(pictureFile(picture, "bmp"), QStringLiteral("bitmap@2x.png")).ok());
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
        QTest::newRow("one pixel") << pictureFile(flat(QImage::Format_RGB32, Qt::red).copy(0, 0, 1, 1))
                                   << FailureCode::TooSmall;
        QTest::newRow("a line one pixel wide")
            << pictureFile(flat(QImage::Format_RGB32, Qt::red).copy(0, 0, 1, 20)) << FailureCode::TooSmall;
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
