// SPDX-License-Identifier: MIT
#include "color/ColorCode.h"
#include "color/ColorExtensions.h"
#include "color/HsbColor.h"
#include "color/picking/DragRule.h"
#include "color/picking/NamedColors.h"
#include "color/picking/PickedColor.h"
#include "color/picking/RecentColors.h"
#include "color/picking/Wheel.h"

#include <QLineF>
#include <QTest>

#include <array>
#include <map>
#include <set>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

RgbaColor rgba(const char *name)
{
    return rgbaFrom(QColor(QLatin1StringView(name)));
}

} // namespace

class PickerValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void hueSaturationAndBrightness_data()
    {
        QTest::addColumn<QString>("color");
        QTest::addColumn<float>("degrees");
        QTest::addColumn<float>("saturation");
        QTest::addColumn<float>("brightness");

        QTest::newRow("red") << u"#ff0000"_s << 0.0F << 1.0F << 1.0F;
        QTest::newRow("yellow") << u"#ffff00"_s << 60.0F << 1.0F << 1.0F;
        QTest::newRow("green") << u"#00ff00"_s << 120.0F << 1.0F << 1.0F;
        QTest::newRow("cyan") << u"#00ffff"_s << 180.0F << 1.0F << 1.0F;
        QTest::newRow("blue") << u"#0000ff"_s << 240.0F << 1.0F << 1.0F;
        QTest::newRow("magenta") << u"#ff00ff"_s << 300.0F << 1.0F << 1.0F;
        QTest::newRow("dark olive") << u"#808000"_s << 60.0F << 1.0F << 128.0F / 255.0F;
        QTest::newRow("pink, just below a full turn") << u"#ff8095"_s << 350.0787F << 0.498039F << 1.0F;
    }
    void hueSaturationAndBrightness()
    {
        QFETCH(QString, color);
        QFETCH(float, degrees);
        QFETCH(float, saturation);
        QFETCH(float, brightness);
        const HsbColor hsb = hsbFrom(rgbaFrom(QColor(color)));
        // The expected numbers have four decimals, so half of the last is allowed.
        QVERIFY2(std::abs(hsb.hue * 360.0F - degrees) < 0.0005F, qPrintable(QString::number(hsb.hue * 360.0F)));
        QVERIFY(std::abs(hsb.saturation - saturation) < 0.00001F);
        QVERIFY(std::abs(hsb.brightness - brightness) < 0.00001F);
    }

    void everySampledColorSurvivesTheDetour()
    {
        for (int red = 0; red < 256; red += 15) {
            for (int green = 0; green < 256; green += 15) {
                for (int blue = 0; blue < 256; blue += 15) {
                    const RgbaColor color = rgbaFrom(QColor(red, green, blue));
                    const RgbaColor back = rgbaFrom(hsbFrom(color), 1.0F);
                    QCOMPARE(stringFromColor(back), stringFromColor(color));
                }
            }
        }
    }

    void whatAColorDoesNotTellIsKept()
    {
        const HsbColor before{0.6F, 0.7F, 0.8F};
        QCOMPARE(hsbFrom(rgba("black"), before), (HsbColor{0.6F, 0.7F, 0.0F}));
        QCOMPARE(hsbFrom(rgba("white"), before), (HsbColor{0.6F, 0.0F, 1.0F}));
        QCOMPARE(hsbFrom(rgba("red"), before), (HsbColor{0.0F, 1.0F, 1.0F}));
    }

    void aHueJustBelowAFullTurnIsNoDegreesAgain()
    {
        PickedColor color;
        for (const auto &[hue, degrees] :
             {std::pair(0.0F, 0), std::pair(358.4F / 360, 358), std::pair(358.6F / 360, 359),
              std::pair(359.4F / 360, 359), std::pair(359.6F / 360, 0)}) {
            color.hsb = {hue, 1.0F, 1.0F};
            QCOMPARE(channelNumber(color, ColorChannel::Hue), degrees);
        }
    }

    void aHueBeyondOneTurnWrapsAround()
    {
        QCOMPARE(rgbaFrom(HsbColor{1.0F, 1.0F, 1.0F}, 1.0F), rgba("#ff0000"));
        QCOMPARE(rgbaFrom(HsbColor{-0.25F, 1.0F, 1.0F}, 1.0F), rgbaFrom(HsbColor{0.75F, 1.0F, 1.0F}, 1.0F));
    }

    void findsThePlaceOnTheWheel_data()
    {
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<float>("hue");
        QTest::addColumn<float>("saturation");

        QTest::newRow("the middle is white") << QPointF(100, 60) << 0.0F << 0.0F;
        QTest::newRow("red at the right rim") << QPointF(150, 60) << 0.0F << 1.0F;
        QTest::newRow("a quarter turn is up") << QPointF(100, 10) << 0.25F << 1.0F;
        QTest::newRow("half a turn is left") << QPointF(50, 60) << 0.5F << 1.0F;
        QTest::newRow("three quarters are down") << QPointF(100, 110) << 0.75F << 1.0F;
        QTest::newRow("half way to the rim") << QPointF(100, 35) << 0.25F << 0.5F;
        QTest::newRow("beyond the rim stays on it") << QPointF(100, -500) << 0.25F << 1.0F;
    }
    void findsThePlaceOnTheWheel()
    {
        QFETCH(QPointF, point);
        const WheelGeometry wheel(QRectF(0, 0, 200, 120), 10);
        QCOMPARE(wheel.radius(), 50.0);
        QTEST(wheel.positionAt(point).hue, "hue");
        QTEST(wheel.positionAt(point).saturation, "saturation");
    }

    void placeAndPointAgree()
    {
        const WheelGeometry wheel(QRectF(0, 0, 200, 200));
        const QPointF point(143, 31);
        const QPointF back = wheel.pointAt(wheel.positionAt(point));
        QVERIFY(QLineF(point, back).length() < 0.001);
        QVERIFY(wheel.contains({100, 0.5}));
        QVERIFY(!wheel.contains({1, 1}));
    }

    void aWheelWithoutRoomIsEmpty()
    {
        const WheelGeometry wheel(QRectF(0, 0, 8, 8), 10);
        QCOMPARE(wheel.radius(), 0.0);
        QCOMPARE(wheel.positionAt({3, 3}).saturation, 0.0F);
    }

    void comesOffAtFiftyPoints_data()
    {
        QTest::addColumn<QPointF>("travel");
        QTest::addColumn<bool>("off");

        QTest::newRow("not at all") << QPointF(0, 0) << false;
        QTest::newRow("49 to the right") << QPointF(49, 0) << false;
        QTest::newRow("50 to the right") << QPointF(50, 0) << true;
        QTest::newRow("50 upwards") << QPointF(0, -50) << true;
        QTest::newRow("30 and 40 make 50") << QPointF(30, -40) << true;
        QTest::newRow("30 and 39 make less") << QPointF(-30, 39) << false;
    }
    void comesOffAtFiftyPoints()
    {
        QFETCH(QPointF, travel);
        const QPointF origin(300, 200);
        QTEST(tearsOff(dragDistance(origin, origin + travel)), "off");
    }

    void recentColorsStandOnceAndNewestFirst()
    {
        RecentColors recent;
        recent.add(rgba("red"));
        recent.add(rgba("green"));
        recent.add(rgba("red"));
        QCOMPARE(recent.colors().size(), std::size_t{2});
        QCOMPARE(recent.colors().front(), rgba("red"));
        recent.add({1.0F, 0.0F, 0.0F, 0.5F});
        QCOMPARE(recent.colors().size(), std::size_t{3});
    }

    void theOldestRecentColorsGo()
    {
        RecentColors recent;
        for (int gray = 0; gray < 60; ++gray)
            recent.add(rgbaFrom(QColor(gray, gray, gray)));
        QCOMPARE(recent.colors().size(), RecentColors::capacity);
        QCOMPARE(stringFromColor(recent.colors().front()), u"#3b3b3b"_s);
        QCOMPARE(stringFromColor(recent.colors().back()), u"#141414"_s);
    }

    void webColorsStandOnce()
    {
        const std::vector<NamedColor> colors = webColors();
        std::map<QString, QString> byName;
        std::set<QString> codes;
        for (const NamedColor &named : colors) {
            byName[named.name] = stringFromColor(named.color);
            QVERIFY2(codes.insert(stringFromColor(named.color)).second, qPrintable(named.name));
        }
        // 148 names without the second spellings of seven grays and of aqua and fuchsia.
        QCOMPARE(colors.size(), std::size_t{139});
        QCOMPARE(byName[u"rebeccapurple"_s], u"#663399"_s);
        QCOMPARE(byName[u"tomato"_s], u"#ff6347"_s);
        QCOMPARE(byName[u"aqua"_s], u"#00ffff"_s);
        QVERIFY(!byName.contains(u"cyan"_s));
        QVERIFY(!byName.contains(u"transparent"_s));
        QCOMPARE(colors.front().name, u"white"_s);
    }

    void drawsRandomComponentsInOrder()
    {
        long next = 0;
        const RgbaColor color = randomColor([&next] {
            constexpr std::array<long, 3> numbers{0, 1L << 30, 1L << 29};
            return numbers.at(static_cast<std::size_t>(next++));
        });
        QCOMPARE(color, (RgbaColor{0.0F, 0.5F, 0.25F, 1.0F}));
        QCOMPARE(next, 3L);
    }

    void drawsFromTheSystemsSourceByItself()
    {
        ::srandom(7);
        const auto number = static_cast<float>(std::ldexp(static_cast<double>(::random()), -31));
        ::srandom(7);
        QCOMPARE(randomColor().red, number);
    }

    void describesAColorForTheLog()
    {
        QCOMPARE(colorDescription({0.204F, 0.286F, 0.369F, 1.0F}), u"r: 52, g: 73, b: 94, a: 255"_s);
        QCOMPARE(colorDescription({0.0F, 1.0F, 0.999F, 0.5F}), u"r: 0, g: 255, b: 255, a: 128"_s);
    }

    void copiesAColorOfAnotherModelAsRgb()
    {
        const QColor copy = copyCGColor(QColor::fromHsvF(1.0F / 3.0F, 1.0F, 1.0F, 0.5F));
        QCOMPARE(copy.spec(), QColor::Rgb);
        QCOMPARE(copy.rgb(), qRgb(0, 255, 0));
        QCOMPARE(copy.alpha(), 128);
    }
};

QTEST_GUILESS_MAIN(PickerValuesTest)
#include "PickerValuesTest.moc"
