// SPDX-License-Identifier: MIT
#include "color/spaces/Contrast.h"

#include "color/forms/ColorReader.h"
#include "color/spaces/ColorModels.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

WideColor color(const QString &text)
{
    return readColor(text).value().color;
}

bool isGray(const WideColor &color)
{
    return color.red == color.green && color.green == color.blue;
}

} // namespace

/// WCAG 2's ratio, its thresholds, and the passing color nearest to one that fails.
class ContrastTest : public QObject
{
    Q_OBJECT

private slots:
    void theRatioIsThePublishedOne_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("background");
        QTest::addColumn<QString>("ratio");
        QTest::addColumn<QString>("passes");
        const auto row = [](const char *text, const char *background, const char *ratio, const char *passes) {
            QTest::addRow("%s on %s", text, background) << QString::fromLatin1(text) << QString::fromLatin1(background)
                                                        << QString::fromLatin1(ratio) << QString::fromLatin1(passes);
        };
        // WCAG 2.1, Understanding 1.4.3: #777777 on white has 4.47:1, just below the threshold; #767676 passes.
        row("#000", "#fff", "21.00", "aa aaLarge aaa aaaLarge ui");
        row("#fff", "#000", "21.00", "aa aaLarge aaa aaaLarge ui");
        row("#fff", "#fff", "1.00", "");
        row("#777777", "#fff", "4.48", "aaLarge ui");
        row("#767676", "#fff", "4.54", "aa aaLarge aaaLarge ui");
        row("#595959", "#fff", "7.00", "aa aaLarge aaa aaaLarge ui");
        row("#5a5a5a", "#fff", "6.90", "aa aaLarge aaaLarge ui");
        row("#949494", "#fff", "3.03", "aaLarge ui");
        row("#959595", "#fff", "2.995", "");
        row("#0000ff", "#fff", "8.59", "aa aaLarge aaa aaaLarge ui");
        row("#f00", "#fff", "3.998", "aaLarge ui");
        row("rgb(0 0 0 / 0.5)", "#fff", "3.98", "aaLarge ui");
        row("#000", "rgb(0 0 0 / 0)", "21.00", "aa aaLarge aaa aaaLarge ui");
    }
    void theRatioIsThePublishedOne()
    {
        QFETCH(QString, text);
        QFETCH(QString, background);
        QFETCH(QString, ratio);
        const Contrast contrast = contrastOf(color(text), color(background));
        QVERIFY2(std::abs(contrast.ratio - ratio.toDouble()) < 0.006, qPrintable(QString::number(contrast.ratio)));
        QStringList passes;
        for (const auto &[name, passed] :
             {std::pair{u"aa"_s, contrast.aa()}, std::pair{u"aaLarge"_s, contrast.aaLarge()},
              std::pair{u"aaa"_s, contrast.aaa()}, std::pair{u"aaaLarge"_s, contrast.aaaLarge()},
              std::pair{u"ui"_s, contrast.interfacePart()}}) {
            if (passed)
                passes << name;
        }
        QTEST(passes.join(u' '), "passes");
    }

    void aRatioIsNeverRoundedUpToAThreshold()
    {
        QCOMPARE(ratioText(4.4961), u"4.496"_s);
        QVERIFY(ratioText(2.9999999).toDouble() < 3.0);
        QCOMPARE(ratioText(4.5), u"4.50"_s);
        QCOMPARE(ratioText(4.4781), u"4.48"_s);
    }

    void theNearestPasses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("background");
        QTest::addColumn<double>("ratio");
        for (const char *text : {"#777777", "#3498db", "#ffff00", "#336699", "#fefefe"}) {
            for (const char *background : {"#ffffff", "#808080", "#224466"}) {
                for (const double ratio : {3.0, 4.5})
                    QTest::addRow("%s on %s at %g", text, background, ratio)
                        << QString::fromLatin1(text) << QString::fromLatin1(background) << ratio;
            }
        }
    }
    void theNearestPasses()
    {
        QFETCH(QString, text);
        QFETCH(QString, background);
        QFETCH(double, ratio);
        const std::optional<WideColor> nearest = nearestWithContrast(color(text), color(background), ratio);
        QVERIFY(nearest.has_value());
        QVERIFY(contrastOf(*nearest, color(background)).ratio >= ratio);
        const double distance = oklabDistance(oklabOf(*nearest), oklabOf(color(text)));
        // No color of a grid over all colors is nearer, within the distance of the grid's points.
        double best = 9.0;
        for (int red = 0; red <= 255; red += 9) {
            for (int green = 0; green <= 255; green += 9) {
                for (int blue = 0; blue <= 255; blue += 9) {
                    // A gray is only replaced by a gray.
                    if (isGray(color(text)) && !(red == green && green == blue))
                        continue;
                    const WideColor other = wideColorFromBytes(red, green, blue);
                    const double apart = oklabDistance(oklabOf(other), oklabOf(color(text)));
                    if (apart < best && contrastOf(other, color(background)).ratio >= ratio)
                        best = apart;
                }
            }
        }
        QVERIFY2(distance <= best + 1e-9,
                 qPrintable(u"%1: %2 is nearer than %3"_s.arg(hex8Of(*nearest)).arg(best).arg(distance)));
    }

    void theNearestOfAGrayIsAGray_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("background");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QString>("nearest");
        QTest::newRow("darker") << u"#777777"_s << u"#ffffff"_s << 4.5 << u"#767676ff"_s;
        QTest::newRow("lighter") << u"#777777"_s << u"#000000"_s << 7.0 << u"#959595ff"_s;
        QTest::newRow("translucent on white") << u"#00000080"_s << u"#ffffff"_s << 4.5 << u"#767676ff"_s;
        QTest::newRow("on a color") << u"#777777"_s << u"#3498db"_s << 4.5 << u"#2a2a2aff"_s;
    }
    void theNearestOfAGrayIsAGray()
    {
        QFETCH(QString, text);
        QFETCH(QString, background);
        QFETCH(double, ratio);
        const std::optional<WideColor> nearest = nearestWithContrast(color(text), color(background), ratio);
        QVERIFY(nearest.has_value());
        QTEST(hex8Of(*nearest), "nearest");
    }

    void whatPassesStaysAndWhatCannotIsNone()
    {
        QCOMPARE(hex8Of(*nearestWithContrast(color(u"#123456"_s), color(u"#fff"_s), 4.5)), u"#123456ff"_s);
        QVERIFY(!nearestWithContrast(color(u"#808080"_s), color(u"#808080"_s), 7.0).has_value());
    }
};

QTEST_GUILESS_MAIN(ContrastTest)
#include "ContrastTest.moc"
