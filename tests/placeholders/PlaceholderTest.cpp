// SPDX-License-Identifier: MIT
#include "placeholders/Placeholder.h"
#include "placeholders/LabelFont.h"
#include "placeholders/OutlineCoverage.h"
#include "placeholders/PlaceholderLabel.h"

#include <QFontDatabase>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr QRgb gray = qRgba(128, 128, 128, 255);
constexpr QRgb white = qRgba(255, 255, 255, 255);

/// The smallest rectangle around every pixel that is not plain gray.
QRect labelPixels(const QImage &image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != gray)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

bool isNeutralAndOpaque(QRgb pixel)
{
    return qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel) && qRed(pixel) >= 128 && qAlpha(pixel) == 255;
}

} // namespace

class PlaceholderTest : public QObject
{
    Q_OBJECT

private slots:
    void hasExactlyItsSize_data()
    {
        QTest::addColumn<QSizeF>("asked");
        QTest::addColumn<QSize>("size");
        QTest::newRow("landscape") << QSizeF(480, 320) << QSize(480, 320);
        QTest::newRow("fractions are cut off") << QSizeF(20.9, 10.5) << QSize(20, 10);
        QTest::newRow("one pixel") << QSizeF(1, 1) << QSize(1, 1);
        QTest::newRow("a column") << QSizeF(1, 9999) << QSize(1, 9999);
        QTest::newRow("a strip") << QSizeF(9999, 1) << QSize(9999, 1);
    }
    void hasExactlyItsSize()
    {
        QFETCH(QSizeF, asked);
        QFETCH(QSize, size);
        const Placeholder placeholder = placeholderWithSize(asked, LabelFont());
        QCOMPARE(placeholder.size(), size);
        QCOMPARE(placeholder.toImage().size(), size);
    }

    void isGrayWithACenteredWhiteLabel_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("landscape") << QSizeF(1136, 640);
        QTest::newRow("portrait") << QSizeF(320, 480);
        QTest::newRow("square") << QSizeF(512, 512);
    }
    void isGrayWithACenteredWhiteLabel()
    {
        QFETCH(QSizeF, size);
        const QImage image = placeholderWithSize(size, LabelFont()).toImage();
        const QRect label = labelPixels(image);
        bool sawWhite = false;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QVERIFY(isNeutralAndOpaque(image.pixel(x, y)));
                sawWhite = sawWhite || image.pixel(x, y) == white;
            }
        }
        QVERIFY(sawWhite);
        // The ink's center is the line's except for side bearings, the place of the digits in the line and the
        // rounding: together less than a tenth of the font size, which is a hundredth of the width, plus a pixel.
        const double allowed = size.width() / 100 + 1;
        QVERIFY(std::abs(label.x() + label.width() / 2.0 - size.width() / 2) <= allowed);
        QVERIFY(std::abs(label.y() + label.height() / 2.0 - size.height() / 2) <= allowed);
    }

    void aStripShowsASliceOfItsLabel()
    {
        const QImage strip = placeholderWithSize(QSizeF(9999, 1), LabelFont()).toImage();
        const QRect slice = labelPixels(strip);
        // 999.9 points: 5 digits, two spaces and the x are about 3900 pixels wide.
        QVERIFY(slice.width() > 3500 && slice.width() < 4000);
        QCOMPARE(strip.pixel(0, 0), gray);
        QCOMPARE(strip.pixel(9998, 0), gray);
    }

    void theLabelIsDrawnToItsEdges()
    {
        const QSizeF size(320, 100);
        const LabelFont font;
        const OutlineCoverage label(labelOutline(size, font));
        const QRect bounds = label.bounds();
        const QImage picture = placeholderWithSize(size, font).toImage();
        std::vector<unsigned char> row(static_cast<std::size_t>(bounds.width()));
        bool leftIsMet = false;
        bool rightIsMet = false;
        for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
            label.readRow(y, row);
            // The least coverage that is visible on gray.
            constexpr int least = 2;
            QCOMPARE(picture.pixel(bounds.left(), y) != gray, row.front() >= least);
            QCOMPARE(picture.pixel(bounds.right(), y) != gray, row.back() >= least);
            leftIsMet = leftIsMet || row.front() >= least;
            rightIsMet = rightIsMet || row.back() >= least;
        }
        QVERIFY(leftIsMet && rightIsMet);
    }

    void rowsAgreeWithTheWholePicture()
    {
        const Placeholder placeholder = placeholderWithSize(QSizeF(320, 480), LabelFont());
        const QImage image = placeholder.toImage();
        std::vector<unsigned char> row(320 * 4);
        for (int y = 479; y >= 0; --y) {
            placeholder.readRow(y, row);
            QVERIFY(std::equal(row.begin(), row.end(), image.constScanLine(y)));
        }
    }

    void installedFontsDoNotMatter()
    {
        const QImage before = placeholderWithSize(QSizeF(640, 100), LabelFont()).toImage();
        const int added = QFontDatabase::addApplicationFont(u":/fonts/Lato-Regular.ttf"_s);
        QVERIFY(added >= 0);
        QFont other(QFontDatabase::applicationFontFamilies(added).constFirst());
        other.setPixelSize(40);
        QGuiApplication::setFont(other);
        QCOMPARE(placeholderWithSize(QSizeF(640, 100), LabelFont()).toImage(), before);
    }
};

QTEST_MAIN(PlaceholderTest)
#include "PlaceholderTest.moc"
