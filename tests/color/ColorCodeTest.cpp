// SPDX-License-Identifier: MIT
#include "color/ColorCode.h"

#include <QTest>

#include <limits>

using namespace lumora;
using namespace Qt::StringLiterals;

class ColorCodeTest : public QObject
{
    Q_OBJECT

private slots:
    void writesTheCodeList_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("ios");
        QTest::addColumn<QString>("mac");
        QTest::addColumn<QString>("rgb");
        QTest::addColumn<QString>("css");

        const auto row = [](const char *name, const QString &text, const QString &fractions, const QString &rgb,
                            const QString &css) {
            const QStringList part = fractions.split(u' ');
            const QString tail = part[0] + u"f green:"_s + part[1] + u"f blue:"_s + part[2] + u"f alpha:"_s + part[3];
            QTest::newRow(name) << text << QString(u"[UIColor colorWithRed:"_s + tail + u"f]"_s)
                                << QString(u"[NSColor colorWithCalibratedRed:"_s + tail + u"f]"_s) << rgb << css;
        };
        row("the color at start-up", u"#34485e"_s, u"0.204 0.282 0.369 1.000"_s, u"rgb(52, 72, 94)"_s,
            u"color: #34485e;"_s);
        row("three digits", u"#abc"_s, u"0.667 0.733 0.800 1.000"_s, u"rgb(170, 187, 204)"_s, u"color: #abc;"_s);
        row("three digits without a hash sign", u"abc"_s, u"0.667 0.733 0.800 1.000"_s, u"rgb(170, 187, 204)"_s,
            u"color: #abc;"_s);
        row("black", u"#000000"_s, u"0.000 0.000 0.000 1.000"_s, u"rgb(0, 0, 0)"_s, u"color: #000000;"_s);
        row("white", u"#ffffff"_s, u"1.000 1.000 1.000 1.000"_s, u"rgb(255, 255, 255)"_s, u"color: #ffffff;"_s);
        row("upper case is read alike and kept for CSS", u"#80FF00"_s, u"0.502 1.000 0.000 1.000"_s,
            u"rgb(128, 255, 0)"_s, u"color: #80FF00;"_s);
        row("hash signs anywhere are removed", u"#a#b#c"_s, u"0.667 0.733 0.800 1.000"_s, u"rgb(170, 187, 204)"_s,
            u"color: #abc;"_s);
        row("a pair counts up to its first other character", u"1z2y3x"_s, u"0.004 0.008 0.012 1.000"_s,
            u"rgb(1, 2, 3)"_s, u"color: #1z2y3x;"_s);
        row("eight digits carry their own opacity", u"#00000080"_s, u"0.000 0.000 0.000 0.502"_s, u"rgb(0, 0, 0)"_s,
            u"color: #00000080;"_s);
    }
    void writesTheCodeList()
    {
        QFETCH(QString, text);
        const Result<ColorCodes> result = colorWithHexString(text);
        QVERIFY(result.ok());
        QTEST(result.value().code(ColorNotation::Ios), "ios");
        QTEST(result.value().code(ColorNotation::Mac), "mac");
        QTEST(result.value().code(ColorNotation::Rgb), "rgb");
        QTEST(result.value().code(ColorNotation::Css), "css");
    }

    void refusesWhatIsNoColor_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("empty") << u""_s;
        QTest::newRow("only hash signs") << u"####"_s;
        QTest::newRow("two digits") << u"#ab"_s;
        QTest::newRow("four digits") << u"abcd"_s;
        QTest::newRow("five digits") << u"12345"_s;
        QTest::newRow("seven digits") << u"1234567"_s;
        QTest::newRow("four digits around a hash sign") << u"#ab#cd"_s;
        QTest::newRow("a pair without a digit") << u"#zz0000"_s;
        QTest::newRow("a blue pair without a digit") << u"#0000zz"_s;
        QTest::newRow("a doubled character that is no digit") << u"#1z2"_s;
        QTest::newRow("a pair that begins with a blank") << u"# 10000"_s;
        QTest::newRow("a sign is no digit") << u"-1+1-1"_s;
        QTest::newRow("digits of another script") << QString::fromUtf8("٣٣٣");
        QTest::newRow("full-width letters") << QString::fromUtf8("ａｂｃ");
        QTest::newRow("characters beyond the basic plane") << QString::fromUtf8("😀😀😀");
        QTest::newRow("an opacity pair without a digit") << u"#000000zz"_s;
    }
    void refusesWhatIsNoColor()
    {
        QFETCH(QString, text);
        const Result<ColorCodes> result = colorWithHexString(text);
        QVERIFY(!result.ok());
        QCOMPARE(result.failure().code, FailureCode::InvalidValue);
        QCOMPARE(result.failure().subject, text);
    }

    void acceptsForCopyingByLength_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("accepted");

        QTest::newRow("hash sign and three") << u"#abc"_s << true;
        QTest::newRow("three") << u"abc"_s << true;
        QTest::newRow("hash sign and six") << u"#aabbcc"_s << true;
        QTest::newRow("six") << u"aabbcc"_s << true;
        QTest::newRow("two") << u"ab"_s << false;
        QTest::newRow("hash sign and two: long enough, but no color") << u"#ab"_s << false;
        QTest::newRow("five") << u"12345"_s << false;
        QTest::newRow("seven digits: short enough, but no color") << u"1234567"_s << false;
        QTest::newRow("empty") << u""_s << false;
        QTest::newRow("eight digits") << u"#aabbccdd"_s << false;
        QTest::newRow("three digits among too many hash signs") << u"#####abc"_s << false;
        QTest::newRow("two inner hash signs") << u"#ab#cd"_s << false;
    }
    void acceptsForCopyingByLength()
    {
        QFETCH(QString, text);
        QTEST(codesForCopying(text).ok(), "accepted");
    }

    void theLengthAloneCountsEveryCharacter()
    {
        QVERIFY(!isCopyableLength(u"ab"));
        QVERIFY(isCopyableLength(u"abc"));
        QVERIFY(isCopyableLength(u"#abcdef"));
        QVERIFY(!isCopyableLength(u"#abcdefa"));
    }

    void everyByteSurvivesTheFraction()
    {
        for (int byte = 0; byte < 256; ++byte) {
            const QString pair = QString::asprintf("%02x", static_cast<unsigned>(byte));
            const Result<ColorCodes> result = colorWithHexString(pair + pair + pair);
            QVERIFY(result.ok());
            QCOMPARE(result.value().code(ColorNotation::Rgb), QString::asprintf("rgb(%i, %i, %i)", byte, byte, byte));
            QCOMPARE(stringFromColor(result.value().color), u'#' + pair + pair + pair);
            // Converting to a platform color, as in a well or on the clipboard, and back loses nothing either.
            QCOMPARE(stringFromColor(rgbaFrom(platformColor(result.value().color))), u'#' + pair + pair + pair);
        }
    }

    void writesAColorAsText_data()
    {
        QTest::addColumn<float>("red");
        QTest::addColumn<float>("green");
        QTest::addColumn<float>("blue");
        QTest::addColumn<QString>("text");

        QTest::newRow("72.93 is cut to 72") << 0.204F << 0.286F << 0.369F << u"#34485e"_s;
        QTest::newRow("254.7 is cut to fe") << 0.999F << 0.0F << 0.0F << u"#fe0000"_s;
        QTest::newRow("one digit gets its zero") << 0.004F << 0.02F << 0.06F << u"#01050f"_s;
        QTest::newRow("beyond one is not clamped") << 1.2F << 0.0F << 0.0F << u"#1320000"_s;
        QTest::newRow("below zero is not clamped") << 0.0F << -0.01F << 0.0F << u"#00fffffffe00"_s;
        QTest::newRow("no number is zero") << std::numeric_limits<float>::quiet_NaN() << 0.0F << 0.0F << u"#000000"_s;
    }
    void writesAColorAsText()
    {
        QFETCH(float, red);
        QFETCH(float, green);
        QFETCH(float, blue);
        QTEST(stringFromColor({red, green, blue, 0.5F}), "text");
    }

    void componentsBeyondEveryRangeStayDefined()
    {
        QVERIFY(componentByte(std::numeric_limits<float>::infinity()) > 0);
        QVERIFY(componentByte(-std::numeric_limits<float>::infinity()) < 0);
        QVERIFY(componentByte(std::numeric_limits<float>::max()) > 0);
    }
};

QTEST_GUILESS_MAIN(ColorCodeTest)
#include "ColorCodeTest.moc"
