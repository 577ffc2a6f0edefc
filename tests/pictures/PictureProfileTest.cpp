// SPDX-License-Identifier: MIT
#include "TestPictures.h"
#include "pictures/PictureReader.h"

#include <QColorSpace>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr QRgb stored = qRgb(200, 100, 50);
/// `stored`, taken for Display P3, in sRGB: by linear light and the two spaces' published primaries.
constexpr QRgb fromDisplayP3 = qRgb(215, 93, 31);
/// `stored`, taken for linear light, in sRGB: (200 / 255) to the power of 1 / 2.4 by the sRGB curve, and so on.
constexpr QRgb fromLinear = qRgb(229, 168, 122);

QImage plain(QColorSpace space = {})
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(stored);
    picture.setColorSpace(space);
    return picture;
}

/// The file with a chunk that names its colors by code points: primaries, transfer, and whether samples use their full
/// range.
QByteArray withCodePoints(const QByteArray &png, char primaries, char transfer, char fullRange = 1)
{
    const char fields[] = {primaries, transfer, 0, fullRange};
    return withPngChunk(png, "cICP", QByteArray(fields, sizeof fields));
}

QByteArray pngProfile(const QByteArray &profile)
{
    return QByteArray("name\0\0", 6) + qCompress(profile).sliced(4);
}

/// A profile with a valid header but unknown colors: every tag is renamed.
QByteArray namelessProfile()
{
    QByteArray profile = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    for (const char *tag : {"rXYZ", "gXYZ", "bXYZ", "rTRC", "gTRC", "bTRC"})
        profile.replace(QByteArray(tag), "none");
    return profile;
}

/// The file with its profile's signature overwritten, so that no reader recognizes it. Empty if it has none.
QByteArray withDamagedProfile(QByteArray file)
{
    const qsizetype at = file.indexOf("acsp");
    return at < 0 ? QByteArray() : file.replace(at, 4, "xxxx");
}

} // namespace

class PictureProfileTest : public QObject
{
    Q_OBJECT

private slots:
    void convertsTheProfile_data();
    void convertsTheProfile();
    void convertsCodePoints_data();
    void convertsCodePoints();
    void refusesHighDynamicRange_data();
    void refusesHighDynamicRange();
};

void PictureProfileTest::convertsTheProfile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QRgb>("color");
    const QImage displayP3 = plain(QColorSpace::DisplayP3);
    const QByteArray png = pictureFile(plain());
    const QByteArray linear("\0\1\x86\xA0", 4);
    QTest::newRow("png, none") << png << stored;
    QTest::newRow("png, sRGB") << pictureFile(plain(QColorSpace::SRgb)) << stored;
    QTest::newRow("png, Display P3") << pictureFile(displayP3) << fromDisplayP3;
    QTest::newRow("png, Display P3, 16 bits")
        << pictureFile(displayP3.convertToFormat(QImage::Format_RGBA64)) << fromDisplayP3;
    QTest::newRow("tiff, Display P3") << pictureFile(displayP3, "tiff") << fromDisplayP3;
    QTest::newRow("jpeg, Display P3") << pictureFile(displayP3, "jpeg") << fromDisplayP3;
    QTest::newRow("webp, Display P3") << withWebpChunk(pictureFile(plain(), "webp"), {8, 8}, "ICCP",
                                                       QColorSpace(QColorSpace::DisplayP3).iccProfile())
                                      << fromDisplayP3;
    QTest::newRow("png, usual gamma") << withPngChunk(png, "gAMA", QByteArray("\0\0\xB1\x8F", 4)) << stored;
    QTest::newRow("png, linear") << withPngChunk(png, "gAMA", linear) << fromLinear;

    // A profile that cannot be understood is ignored: the picture is read as most programs read it, not refused.
    QTest::newRow("png, not packed as a profile is") << withPngChunk(png, "iCCP", "name\0\0nonsense") << stored;
    QTest::newRow("png, no profile") << withPngChunk(png, "iCCP", pngProfile("nonsense")) << stored;
    QTest::newRow("png, unknown profile") << withPngChunk(png, "iCCP", pngProfile(namelessProfile())) << stored;
    QTest::newRow("png, unknown profile, but a gamma")
        << withPngChunk(withPngChunk(png, "gAMA", linear), "iCCP", pngProfile(namelessProfile())) << fromLinear;
    QTest::newRow("jpeg, no profile") << withJpegSegment(pictureFile(plain(), "jpeg"), 0xE2,
                                                         QByteArray("ICC_PROFILE\0\1\1", 14) + "nonsense")
                                      << stored;
    QTest::newRow("jpeg, unknown profile")
        << withJpegSegment(pictureFile(plain(), "jpeg"), 0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) + namelessProfile())
        << stored;
    QTest::newRow("tiff, damaged profile") << withDamagedProfile(pictureFile(displayP3, "tiff")) << stored;
    QTest::newRow("webp, no profile") << withWebpChunk(pictureFile(plain(), "webp"), {8, 8}, "ICCP", "nonsense")
                                      << stored;
    QTest::newRow("webp, unknown profile")
        << withWebpChunk(pictureFile(plain(), "webp"), {8, 8}, "ICCP", namelessProfile()) << stored;
}

void PictureProfileTest::convertsTheProfile()
{
    QFETCH(QByteArray, file);
    QFETCH(QRgb, color);
    QVERIFY(!file.isEmpty());
    const Result<QImage> read = readPicture(file, u"x"_s);
    QVERIFY(read.ok());
    const QRgb found = read.value().pixel(4, 4);
    QVERIFY2(near(found, color, 2), qPrintable(QColor(found).name()));
}

void PictureProfileTest::convertsCodePoints_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QRgb>("color");
    // Expected colors: the published transfer function, the published primaries by way of XYZ, the sRGB curve.
    const QByteArray png = pictureFile(plain());
    const QByteArray deep = pictureFile(plain().convertToFormat(QImage::Format_RGBX64));
    const QByteArray inDisplayP3 = pictureFile(plain(QColorSpace::DisplayP3));
    const QByteArray linear("\0\1\x86\xA0", 4);
    QTest::newRow("sRGB") << withCodePoints(png, 1, 13) << stored;
    QTest::newRow("Display P3") << withCodePoints(png, 12, 13) << fromDisplayP3;
    QTest::newRow("Display P3, 16 bits") << withCodePoints(deep, 12, 13) << fromDisplayP3;
    QTest::newRow("Display P3, linear") << withCodePoints(png, 12, 8) << qRgb(240, 165, 114);
    QTest::newRow("BT.709") << withCodePoints(png, 1, 1) << qRgb(206, 114, 66);
    QTest::newRow("BT.709, 16 bits") << withCodePoints(deep, 1, 1) << qRgb(206, 114, 66);
    QTest::newRow("BT.709 by the curve of BT.601") << withCodePoints(png, 1, 6) << qRgb(206, 114, 66);
    QTest::newRow("BT.2020, curve of sRGB") << withCodePoints(png, 9, 13) << qRgb(241, 76, 29);
    QTest::newRow("BT.2020 of 10 bits") << withCodePoints(png, 9, 14) << qRgb(246, 94, 50);
    QTest::newRow("BT.2020 of 12 bits") << withCodePoints(png, 9, 15) << qRgb(246, 94, 50);
    QTest::newRow("gamma 2.2") << withCodePoints(png, 1, 4) << qRgb(201, 100, 46);
    QTest::newRow("gamma 2.8") << withCodePoints(png, 1, 5) << qRgb(189, 76, 26);

    QTest::newRow("before a profile") << withCodePoints(inDisplayP3, 1, 13) << stored;
    QTest::newRow("before the mark of sRGB")
        << withCodePoints(withPngChunk(png, "sRGB", QByteArray(1, '\0')), 12, 13) << fromDisplayP3;
    QTest::newRow("before a gamma") << withCodePoints(withPngChunk(png, "gAMA", linear), 1, 13) << stored;

    // A chunk that cannot be understood is ignored.
    QTest::newRow("unknown primaries") << withCodePoints(png, 99, 13) << stored;
    QTest::newRow("unknown primaries, but a profile") << withCodePoints(inDisplayP3, 99, 13) << fromDisplayP3;
    QTest::newRow("unknown transfer, but a gamma")
        << withCodePoints(withPngChunk(png, "gAMA", linear), 1, 99) << fromLinear;
    QTest::newRow("narrow range") << withCodePoints(png, 12, 13, 0) << stored;
    QTest::newRow("too short") << withPngChunk(png, "cICP", QByteArray("\x0C\x0D\0", 3)) << stored;
    QTest::newRow("another matrix") << withPngChunk(png, "cICP", QByteArray("\x0C\x0D\1\1", 4)) << stored;
}

void PictureProfileTest::convertsCodePoints()
{
    convertsTheProfile();
}

void PictureProfileTest::refusesHighDynamicRange_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray png = pictureFile(plain());
    QTest::newRow("PQ") << withCodePoints(png, 9, 16);
    QTest::newRow("HLG") << withCodePoints(png, 9, 18);
    QTest::newRow("PQ, with a profile") << withCodePoints(pictureFile(plain(QColorSpace::DisplayP3)), 9, 16);
}

void PictureProfileTest::refusesHighDynamicRange()
{
    QFETCH(QByteArray, file);
    const Result<QImage> read = readPicture(file, u"x"_s);
    QVERIFY(!read.ok());
    QCOMPARE(read.failure(), (Failure{FailureCode::HighDynamicRange, u"x"_s, "DETAIL_PQ_OR_HLG"}));
}

QTEST_GUILESS_MAIN(PictureProfileTest)
#include "PictureProfileTest.moc"
