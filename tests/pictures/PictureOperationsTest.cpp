// SPDX-License-Identifier: MIT
#include "pictures/PictureOperations.h"

#include "pictures/PictureReader.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QImage plain(int edge, QColor color = QColor(10, 200, 90))
{
    QImage picture(edge, edge, QImage::Format_ARGB32);
    picture.fill(color);
    return picture;
}

int alphaAt(const QImage &picture, int x, int y)
{
    return picture.constScanLine(y)[4 * x + 3];
}

/// The area of the picture that is covered, in pixels.
double coveredArea(const QImage &picture)
{
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            sum += alphaAt(picture, x, y) / 255.0;
    }
    return sum;
}

} // namespace

class PictureOperationsTest : public QObject
{
    Q_OBJECT

private slots:
    void radius_data();
    void radius();
    void corners_data();
    void corners();
    void modeNoneIsThePlainOperation();
    void cornerColorsKeepTheirHue();
    void sizesBelowOneGiveNothing();
    void savedIconHasItsPixelsAndAlpha();
    void scaleFactorIsIgnored();
    void saveTellsOfItsFailures_data();
    void saveTellsOfItsFailures();
};

void PictureOperationsTest::radius_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("mode");
    QTest::addColumn<float>("radius");
    QTest::newRow("iOS 6 at 64") << 64 << 1 << 10.0F;
    QTest::newRow("iOS 7 at 64") << 64 << 2 << 64.0F / 4.444444F;
    QTest::newRow("iOS 6 at 1024") << 1024 << 1 << 160.0F;
    QTest::newRow("iOS 7 at 1024") << 1024 << 2 << 1024.0F / 4.444444F;
    QTest::newRow("iOS 6 at 57") << 57 << 1 << 8.90625F;
    QTest::newRow("iOS 7 at 57") << 57 << 2 << 57.0F / 4.444444F;
    QTest::newRow("none") << 57 << 0 << 0.0F;
    QTest::newRow("unknown") << 57 << 3 << 0.0F;
    QTest::newRow("negative") << 57 << -1 << 0.0F;
}

void PictureOperationsTest::radius()
{
    QFETCH(int, size);
    QFETCH(int, mode);
    QTEST(cornerRadius(size, cornerModeOf(mode)), "radius");
}

void PictureOperationsTest::corners_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("mode");
    for (const int size : {1, 2, 3, 10, 57, 64, 100, 333, 1024}) {
        for (const int mode : {1, 2, 3})
            QTest::addRow("mode %d at %d", mode, size) << size << mode;
    }
}

void PictureOperationsTest::corners()
{
    QFETCH(int, size);
    QFETCH(int, mode);
    const QImage icon = resizeImage(plain(1024), size, mode);
    QCOMPARE(icon.size(), QSize(size, size));
    const double r = cornerRadius(size, cornerModeOf(mode));
    // Four quarter circles are missing from four squares. Each of the arcs' pixels rounds to an 8-bit level.
    const double wanted = size * size - (4 - M_PI) * r * r;
    QVERIFY2(std::abs(coveredArea(icon) - wanted) < 0.002 * 8 * (r + 1),
             qPrintable(u"%1 instead of %2"_s.arg(coveredArea(icon)).arg(wanted)));
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            QCOMPARE(alphaAt(icon, x, y), alphaAt(icon, size - 1 - x, y));
            QCOMPARE(alphaAt(icon, x, y), alphaAt(icon, x, size - 1 - y));
            const int fromLeft = std::min(x, size - 1 - x);
            const int fromTop = std::min(y, size - 1 - y);
            const double distance = std::hypot(r - fromLeft - 0.5, r - fromTop - 0.5);
            if (fromLeft >= r || fromTop >= r || (fromLeft + 1 < r && fromTop + 1 < r && distance < r - 0.75))
                QCOMPARE(alphaAt(icon, x, y), 255);
            else if (fromLeft + 1 < r && fromTop + 1 < r && distance > r + 0.75)
                QCOMPARE(alphaAt(icon, x, y), 0);
        }
    }
}

void PictureOperationsTest::modeNoneIsThePlainOperation()
{
    QImage source = plain(1024);
    for (int i = 0; i < 1024; ++i)
        source.setPixel(i, (i * 7) % 1024, qRgba(255, 0, i % 256, i % 256));
    QCOMPARE(resizeImage(source, 120, 0), resizeImage(source, 120));
    QCOMPARE(resizeImage(source, 120, 7), resizeImage(source, 120));
}

void PictureOperationsTest::cornerColorsKeepTheirHue()
{
    const QImage icon = resizeImage(plain(1024, Qt::white), 100, 1);
    for (int y = 0; y < 100; ++y) {
        const uchar *pixel = icon.constScanLine(y);
        for (int x = 0; x < 100; ++x, pixel += 4)
            QVERIFY(pixel[0] == pixel[3] && pixel[1] == pixel[3] && pixel[2] == pixel[3]);
    }
}

void PictureOperationsTest::sizesBelowOneGiveNothing()
{
    QVERIFY(resizeImage(plain(64), 0).isNull());
    QVERIFY(resizeImage(plain(64), -5).isNull());
    QVERIFY(resizeImage(plain(64), 0, 1).isNull());
}

void PictureOperationsTest::savedIconHasItsPixelsAndAlpha()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"icon with no extension"_s);
    QVERIFY(saveImage(resizeImage(plain(1024), 29), BitmapType::Png, path).ok());
    const Result<QImage> back = readPicture(path);
    QVERIFY(back.ok());
    QCOMPARE(back.value().size(), QSize(29, 29));
    QVERIFY(QImage(path, "png").hasAlphaChannel());
    QCOMPARE(back.value(), resizeImage(plain(1024), 29));
}

void PictureOperationsTest::scaleFactorIsIgnored()
{
    const QTemporaryDir folder;
    QImage picture = plain(40);
    picture.setDevicePixelRatio(2);
    picture.setDotsPerMeterX(5669);
    QVERIFY(saveImage(picture, BitmapType::Png, folder.filePath(u"x.png"_s)).ok());
    QCOMPARE(QImage(folder.filePath(u"x.png"_s)).size(), QSize(40, 40));
}

void PictureOperationsTest::saveTellsOfItsFailures_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<QString>("path");
    QTest::newRow("null picture") << QImage() << u"x.png"_s;
    QTest::newRow("folder missing") << plain(4) << u"missing/x.png"_s;
    QTest::newRow("a folder at the path") << plain(4) << u"."_s;
    QTest::newRow("disk full") << plain(4) << u"/dev/full"_s;
    QTest::newRow("name too long") << plain(4) << QString(300, u'x');
}

void PictureOperationsTest::saveTellsOfItsFailures()
{
    QFETCH(QImage, picture);
    QFETCH(QString, path);
    const QTemporaryDir folder;
    const QString full = path.startsWith(u'/') ? path : folder.filePath(path);
    const Outcome outcome = saveImage(picture, BitmapType::Png, full);
    QVERIFY(!outcome.ok());
    QCOMPARE(outcome.failure().code, FailureCode::CannotWrite);
    QCOMPARE(outcome.failure().subject, full);
    QVERIFY(!outcome.failure().detail.isEmpty());
    QVERIFY(QFile::exists(u"/dev/full"_s));
}

QTEST_GUILESS_MAIN(PictureOperationsTest)
#include "PictureOperationsTest.moc"
