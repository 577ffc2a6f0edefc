// SPDX-License-Identifier: MIT
#include "color/spaces/ColorModels.h"

#include "color/forms/ColorReader.h"
#include "color/spaces/ColorMatrix.h"

#include <QTest>

#include <cmath>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The conversions against the published values of CSS Color Module Level 4.
class ColorModelsTest : public QObject
{
    Q_OBJECT

private slots:
    void publishedPairsAgree_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("hex8");
        const auto row = [](const char *text, const char *hex8) {
            QTest::addRow("%s", text) << QString::fromLatin1(text) << QString::fromLatin1(hex8);
        };
        // CSS Color 4, the examples of sections 4 to 9, https://www.w3.org/TR/css-color-4/
        row("oklab(40.101% 0.1147 0.0453)", "#7d2329ff");
        row("oklab(59.686% 0.1009 0.1192)", "#c65d07ff");
        row("oklab(0.65125 -0.0320 0.1274)", "#9d9318ff");
        row("oklab(66.016% -0.1084 0.1114)", "#68a639ff");
        row("oklab(72.322% -0.0465 -0.1150)", "#62acefff");
        row("oklch(40.101% 0.12332 21.555)", "#7d2329ff");
        row("oklch(0.65125 0.13138 104.097)", "#9d9318ff");
        row("oklch(0.66016 0.15546 134.231)", "#68a639ff");
        row("oklch(72.322% 0.12403 247.996)", "#62acefff");
        row("hsl(120 100% 25%)", "#008000ff");
        row("hsl(120 75% 75%)", "#8fef8fff");
        row("hsl(0 100% 50%)", "#ff0000ff");
        row("hwb(45 40% 80%)", "#555555ff");
    }
    void publishedPairsAgree()
    {
        QFETCH(QString, text);
        const Result<ColorReading> reading = readColor(text);
        QVERIFY(reading.ok());
        QTEST(hex8Of(reading.value().color), "hex8");
    }

    void theMatricesAreThePublishedOnes()
    {
        // CSS Color 4 gives them as fractions of whole numbers.
        const ColorMatrix srgb{{{506752.0 / 1228815, 87881.0 / 245763, 12673.0 / 70218},
                                {87098.0 / 409605, 175762.0 / 245763, 12673.0 / 175545},
                                {7918.0 / 409605, 87881.0 / 737289, 1001167.0 / 1053270}}};
        const ColorMatrix displayP3{{{608311.0 / 1250200, 189793.0 / 714400, 198249.0 / 1000160},
                                     {35783.0 / 156275, 247089.0 / 357200, 198249.0 / 2500400},
                                     {0.0, 32229.0 / 714400, 5220557.0 / 5000800}}};
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column) {
                QVERIFY(std::abs(xyzOfSrgb[row][column] - srgb[row][column]) < 1e-14);
                QVERIFY(std::abs(xyzOfDisplayP3[row][column] - displayP3[row][column]) < 1e-14);
            }
        }
    }

    void everyModelOfAGridLeadsBack()
    {
        for (int red = 0; red <= 255; red += 15) {
            for (int green = 0; green <= 255; green += 15) {
                for (int blue = 0; blue <= 255; blue += 15) {
                    const WideColor color = wideColorFromBytes(red, green, blue, 200);
                    isSame(color, wideColorFrom(hslOf(color), color.alpha), 1e-12);
                    isSame(color, wideColorFrom(hwbOf(color), color.alpha), 1e-12);
                    isSame(color, wideColorFrom(oklabOf(color), color.alpha), 1e-6);
                    isSame(color, wideColorFrom(oklchOf(color), color.alpha), 1e-6);
                    isSame(color, inSpace(inSpace(color, RgbSpace::DisplayP3), RgbSpace::Srgb), 1e-12);
                    if (QTest::currentTestFailed())
                        return;
                }
            }
        }
    }

    void graysAreTheSameInBothSpaces()
    {
        for (int level = 0; level <= 255; ++level) {
            const WideColor gray = wideColorFromBytes(level, level, level);
            const WideColor wide = inSpace(gray, RgbSpace::DisplayP3);
            QVERIFY(wide.red == gray.red && wide.green == gray.green && wide.blue == gray.blue);
        }
    }

    void everyHueIsOfOneTurn()
    {
        for (const auto &[red, green, blue] : {std::array{255, 0, 1}, std::array{255, 0, 0}, std::array{1, 0, 0}}) {
            const WideColor color = wideColorFromBytes(red, green, blue);
            for (const double hue : {hslOf(color).hue, hwbOf(color).hue, oklchOf(color).hue})
                QVERIFY(hue >= 0.0 && hue < 360.0);
        }
    }

private:
    static void isSame(const WideColor &one, const WideColor &other, double tolerance)
    {
        const double apart = std::max({std::abs(one.red - other.red), std::abs(one.green - other.green),
                                       std::abs(one.blue - other.blue), std::abs(one.alpha - other.alpha)});
        QVERIFY2(apart < tolerance, qPrintable(hex8Of(one) + u" misses by "_s + QString::number(apart)));
    }
};

QTEST_GUILESS_MAIN(ColorModelsTest)
#include "ColorModelsTest.moc"
