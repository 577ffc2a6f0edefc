// SPDX-License-Identifier: MIT
#include "color/forms/ColorReader.h"

#include <QColor>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// Texts that people paste, and texts that are not colors.
class ColorReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void isUnderstood_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("hex8");
        QTest::addColumn<QString>("notation");
        const auto row = [](const char *text, const char *hex8, const char *notation) {
            QTest::addRow("%s", text) << QString::fromUtf8(text) << QString::fromLatin1(hex8)
                                      << QString::fromLatin1(notation);
        };
        row("336699", "#336699ff", "css-hex");
        row(" #369 ", "#336699ff", "css-hex");
        row("#3698", "#33669988", "css-hex");
        row("#33669980", "#33669980", "css-hex");
        row("RebeccaPurple", "#663399ff", "css-name");
        row("transparent", "#00000000", "css-name");
        row("grey", "#808080ff", "css-name");
        row("color: #34485e;", "#34485eff", "css-hex");
        row("--brand: rgb(1 2 3);", "#010203ff", "css-rgb");
        row(":root { --brand: hwb(210 20% 40%) }", "#336699ff", "css-hwb");
        row("rgba(51, 102, 153, 0.5)", "#33669980", "css-rgb");
        row("rgb(20%,40%,60%)", "#336699ff", "css-rgb");
        row("rgb(51 102 153 / 50%)", "#33669980", "css-rgb");
        row("RGB(51 40% none)", "#336600ff", "css-rgb");
        row("hsl(210deg 50% 40%)", "#336699ff", "css-hsl");
        row("hsl(-150, 50%, 40%)", "#336699ff", "css-hsl");
        row("hsl(0.5turn 100 50)", "#00ffffff", "css-hsl");
        row("hsla(210, 50%, 40%, 50%)", "#33669980", "css-hsl");
        row("hsl(200grad 100% 50%)", "#00ffffff", "css-hsl");
        row("hwb(45 40% 80%)", "#555555ff", "css-hwb");
        row("oklch(0.49931 0.09866 250.433)", "#336699ff", "css-oklch");
        row("oklab(100% 0 0)", "#ffffffff", "css-oklab");
        row("color(srgb 0.2 40% 0.6)", "#336699ff", "css-color");
        row("color(display-p3 1 0 0 / 0.5)", "#ff000080", "css-p3");
        // Browsers clamp these; the values are those of Chromium 156.
        row("rgb(256 0 0)", "#ff0000ff", "css-rgb");
        row("rgb(-1 -1e9 127.5)", "#000080ff", "css-rgb");
        row("rgba(150%, -10%, 20%, 2)", "#ff0033ff", "css-rgb");
        row("rgb(1 2 3 / 2)", "#010203ff", "css-rgb");
        row("rgb(1 2 3 / -10%)", "#01020300", "css-rgb");
        row("hsl(210 50% 140%)", "#ffffffff", "css-hsl");
        row("hsl(-30 300% 40%)", "#cc0066ff", "css-hsl");
        row("hsl(210,-10%,40%)", "#666666ff", "css-hsl");
        row("hsl(1e9 100% 50%)", "#aa00ffff", "css-hsl");
        row("hwb(-30 -10% 40%)", "#99004dff", "css-hwb");
        row("hwb(210 150 130)", "#898989ff", "css-hwb");
        row("hwb(400 50% 0%)", "#ffd580ff", "css-hwb");
        row("oklch(2 0 0)", "#ffffffff", "css-oklch");
        row("oklab(-0.2 0 0)", "#000000ff", "css-oklab");
        row("bg-[rgb(51_102_153)]", "#336699ff", "tailwind");
        row("hover-text-[#369]", "#336699ff", "tailwind");
        row("Color(red: 0.2, green: 0.4, blue: 0.6)", "#336699ff", "swiftui");
        row("Color( .sRGB,red:0.2,green:0.4,blue:0.6,opacity:0.5 )", "#33669980", "swiftui");
        row("Color(white: 0.2)", "#333333ff", "swiftui");
        row("Color(hue: 0.5833333, saturation: 0.6666667, brightness: 0.6)", "#336699ff", "swiftui");
        row("UIColor(hue: 0, saturation: 1, brightness: 1, alpha: 1)", "#ff0000ff", "uikit-swift");
        row("[UIColor colorWithRed:0.204f green:0.282f blue:0.369f alpha:1.000f];", "#34485eff", "uikit-objc");
        row("[NSColor colorWithCalibratedRed:0.204f green:0.282f blue:0.369f alpha:1.000f]", "#34485eff",
            "appkit-objc");
        row("Color(0xFF336699)", "#336699ff", "compose");
        row("Color(51, 102, 153)", "#336699ff", "compose");
        row("Color(red = 0.2f, green = 0.4f, blue = 0.6f)", "#336699ff", "compose");
        row("const Color(0xff336699);", "#336699ff", "flutter");
        row("Color.fromARGB(255, 51, 102, 153)", "#336699ff", "flutter");
        row("Color.fromRGBO(51, 102, 153, 0.5)", "#33669980", "flutter");
        row("<color name=\"accent_2\"> #80336699 </color>", "#33669980", "android-xml");
        row("<color name=\"short\">#8369</color>", "#33669988", "android-xml");
        row("Color.parseColor(\"#80336699\")", "#33669980", "kotlin");
        row("Color.argb(0.5f, 0.2f, 0.4f, 0.6f)", "#33669980", "kotlin");
        row("Color.FromRgba(51, 102, 153, 128)", "#33669980", "maui");
        row("Color.FromRgba(0.2, 0.4, 0.6, 0.5)", "#33669980", "maui");
        row("Color.FromRgba(1, 1, 1, 1)", "#01010101", "maui");
        row("\"#80336699\"", "#33669980", "qml");
        row("QColor(51, 102, 153)", "#336699ff", "qml");
        row("Qt.rgba(0.2, 0.4, 0.6, 1)", "#336699ff", "qml");
        // Colors out of lines of code.
        row("0xFF336699", "#336699ff", "compose");
        row("Color(0xff336699),", "#336699ff", "compose");
        row("rgb(51 102 153);", "#336699ff", "css-rgb");
        row("UIColor(red: 51/255, green: 102.0 / 255.0, blue: 153/255, alpha: 1)", "#336699ff", "uikit-swift");
        row("[UIColor colorWithRed:51/255.0 green:102.0f/255.0f blue:153/255. alpha:1]", "#336699ff", "uikit-objc");
        row("Qt.rgba(51/255, 102/255, 153/255, 1)", "#336699ff", "qml");
        row("#colorLiteral(red: 0.2, green: 0.4, blue: 0.6, alpha: 1)", "#336699ff", "uikit-swift");
        row("let brand = Color(red: 0.2, green: 0.4, blue: 0.6)", "#336699ff", "swiftui");
        row("static let brand: UIColor = UIColor(white: 0.2, alpha: 1)", "#333333ff", "uikit-swift");
        row("private val Brand = Color(0xFF336699)", "#336699ff", "compose");
        row("final brand = const Color(0xFF336699);", "#336699ff", "flutter");
        row("color: Color(0xFF336699),", "#336699ff", "compose");
        row("self.view.backgroundColor = [UIColor colorWithWhite:0.2 alpha:1];", "#333333ff", "uikit-objc");
        row("'#336699'", "#336699ff", "css-hex");
        row("backgroundColor: 'rgb(51, 102, 153)',", "#336699ff", "css-rgb");
        row("const brand = `oklch(0.49931 0.09866 250.433)`;", "#336699ff", "css-oklch");
        row("'#33669980'", "#33669980", "css-hex");
        row("color: \"#80336699\"", "#33669980", "qml");
        row("hover:bg-[#369]", "#336699ff", "tailwind");
        row("{\"colors\":[{\"idiom\":\"universal\",\"color\":{\"color-space\":\"srgb\",\"components\":"
            "{\"red\":\"51\",\"green\":\"0.400\",\"blue\":\"0x99\",\"alpha\":\"1\"}}}]}",
            "#336699ff", "colorset");
    }
    void isUnderstood()
    {
        QFETCH(QString, text);
        QFETCH(QString, hex8);
        QFETCH(QString, notation);
        const Result<ColorReading> reading = readColor(text);
        QVERIFY(reading.ok());
        QCOMPARE(hex8Of(reading.value().color), hex8);
        QCOMPARE(QString(reading.value().notation), notation);
    }

    void isRefused_data()
    {
        QTest::addColumn<QString>("text");
        // "51/255" is 0 in languages that divide whole numbers to whole ones.
        for (const char *text :
             {"",
              " ",
              "#",
              "#12",
              "#12345",
              "#1234567",
              "#123456789",
              "#ggg",
              "##369",
              "3698",
              "0x336699",
              "blu",
              "dark blue",
              "rgb()",
              "rgb(1 2)",
              "rgb(1 2 3 4)",
              "rgb(1, 2 3)",
              "rgb(1,2,3",
              "rgb(1, 2%, 3)",
              "rgb(none, 2, 3)",
              "rgb(1 2 3) x",
              "rgb(1 2 3);;",
              "rgb(1deg 2 3)",
              "hsl(50% 50% 50%)",
              "hwb(210, 20%, 40%)",
              "oklch(0.5 0.1 1px)",
              "color(rec2020 1 0 0)",
              "color(display-p3 1 0)",
              "color(1 0 0)",
              "color(display-p3 1e9 0 0)",
              "oklch(0.5 1e9 0)",
              "oklab(0.5 -1e9 0)",
              "hwb(210 1e9% 40%)",
              "rgb(1e999 0 0)",
              "Color(0x336699)",
              "Color(0xFF3366990)",
              "Color(red: 1.2, green: 0, blue: 0)",
              "Color(red: 0x33, green: 0, blue: 0)",
              "Color(green: 0.2, red: 0.4, blue: 0.6)",
              "Color(256, 0, 0)",
              "Color(1.0f, 0, -0.1f)",
              "UI Color(red: 0, green: 0, blue: 0, alpha: 1)",
              "UIColor(red: 0, green: 0, blue: 0, alpha: 1) // sky",
              "Color.argb(255, 51.5, 0, 0)",
              "\"#80336699",
              "<color name=\"a\">rgb(1 2 3)</color>",
              "{}",
              "{\"colors\":[]}",
              "{\"colors\":[{\"color\":{\"color-space\":\"cmyk\",\"components\":{\"red\":\"1\",\"green\":\"1\","
              "\"blue\":\"1\",\"alpha\":\"1\"}}}]}",
              "{\"colors\":[{\"color\":{\"color-space\":\"srgb\",\"components\":{\"red\":\"300\",\"green\":\"1\","
              "\"blue\":\"1\",\"alpha\":\"1\"}}}]}",
              "[UIColor colorWithRed:51/255 green:102/255 blue:153/255 alpha:1]",
              "Color.argb(1, 51/255, 102/255, 153/255)",
              "UIColor(red: 51/0.0, green: 0, blue: 0, alpha: 1)",
              "UIColor(red: 510/255, green: 0, blue: 0, alpha: 1)",
              "UIColor(red: 51/255/1, green: 0, blue: 0, alpha: 1)",
              "QColor(51/255, 102, 153)",
              "0xFF3366",
              "#colorLiteral(0.2, 0.4, 0.6, 1)",
              "= #369",
              "a = b = #369",
              "brand == #369",
              "f(x) = #369",
              "'#336699",
              "'#336699\"",
              "''",
              "'",
              "let brand =",
              "Color(0xFF336699),,",
              "bg-[]",
              "bg-[#12]",
              "--: #123",
              "color:",
              "url(#123)",
              "var(--brand)",
              "\xF0\x9F\x98\x80"})
            QTest::addRow("%s", text) << QString::fromUtf8(text);
    }
    void isRefused()
    {
        QFETCH(QString, text);
        const Result<ColorReading> reading = readColor(text);
        QVERIFY2(!reading.ok(), reading.ok() ? qPrintable(hex8Of(reading.value().color)) : "");
        QCOMPARE(reading.failure().code, FailureCode::InvalidValue);
    }

    void everyNameOfTheWebIsUnderstood()
    {
        const QStringList names = QColor::colorNames();
        QVERIFY(names.size() >= 148);
        for (const QString &name : names) {
            const Result<ColorReading> reading = readColor(name.toUpper());
            QVERIFY2(reading.ok(), qPrintable(name));
            const QColor color(name);
            QCOMPARE(bytesOf(reading.value().color),
                     (std::array<int, 4>{color.red(), color.green(), color.blue(), color.alpha()}));
        }
    }

    void aHugeTextIsRefusedUnread()
    {
        const Result<ColorReading> reading = readColor(QString(longestColorText + 1, u' '));
        QVERIFY(!reading.ok());
        QCOMPARE(reading.failure().code, FailureCode::TooLarge);
    }
};

QTEST_GUILESS_MAIN(ColorReaderTest)
#include "ColorReaderTest.moc"
