// SPDX-License-Identifier: MIT
#include "color/forms/ColorForm.h"

#include "color/forms/ColorReader.h"

#include <QSet>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The text of each form, and that every text is read back.
class ColorFormTest : public QObject
{
    Q_OBJECT

private slots:
    void everyNameIsThereOnceAndInOrder()
    {
        QStringList names;
        for (const ColorForm &form : colorForms())
            names << form.name;
        QCOMPARE(names.join(u' '),
                 u"swiftui uikit-swift uikit-objc appkit-swift appkit-objc colorset compose flutter android-xml kotlin "
                 "css-hex css-rgb css-hsl css-hwb css-oklch css-p3 maui tailwind qml"_s);
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
        QVERIFY(colorFormNamed(u"css-hwb") != nullptr);
        QCOMPARE(colorFormNamed(u"css-hsv"), nullptr);
    }

    void aFormPrints_data()
    {
        QTest::addColumn<QString>("color");
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("wide");
        const auto row = [](const char *color, const char *form, const QString &text, const QString &wide = {}) {
            QTest::addRow("%s as %s", color, form)
                << QString::fromLatin1(color) << QString::fromLatin1(form) << text << wide;
        };
        row("#336699", "swiftui", u"Color(red: 0.2, green: 0.4, blue: 0.6, opacity: 1)"_s,
            u"Color(.displayP3, red: 0.2499, green: 0.3952, blue: 0.584, opacity: 1)"_s);
        row("#336699", "uikit-swift", u"UIColor(red: 0.2, green: 0.4, blue: 0.6, alpha: 1)"_s,
            u"UIColor(displayP3Red: 0.2499, green: 0.3952, blue: 0.584, alpha: 1)"_s);
        row("#336699", "uikit-objc", u"[UIColor colorWithRed:0.2 green:0.4 blue:0.6 alpha:1.0]"_s,
            u"[UIColor colorWithDisplayP3Red:0.2499 green:0.3952 blue:0.584 alpha:1.0]"_s);
        row("#336699", "appkit-swift", u"NSColor(srgbRed: 0.2, green: 0.4, blue: 0.6, alpha: 1)"_s,
            u"NSColor(displayP3Red: 0.2499, green: 0.3952, blue: 0.584, alpha: 1)"_s);
        row("#336699", "appkit-objc", u"[NSColor colorWithSRGBRed:0.2 green:0.4 blue:0.6 alpha:1.0]"_s,
            u"[NSColor colorWithDisplayP3Red:0.2499 green:0.3952 blue:0.584 alpha:1.0]"_s);
        row("#336699", "colorset",
            u"{\"colors\":[{\"color\":{\"color-space\":\"srgb\",\"components\":{\"alpha\":\"1.000\",\"blue\":\"0x99\","
            "\"green\":\"0x66\",\"red\":\"0x33\"}},\"idiom\":\"universal\"}],"
            "\"info\":{\"author\":\"xcode\",\"version\":1}}"_s,
            u"{\"colors\":[{\"color\":{\"color-space\":\"display-p3\",\"components\":{\"alpha\":\"1.000\","
            "\"blue\":\"0.584\",\"green\":\"0.3952\",\"red\":\"0.2499\"}},\"idiom\":\"universal\"}],"
            "\"info\":{\"author\":\"xcode\",\"version\":1}}"_s);
        row("#33669980", "compose", u"Color(0x80336699)"_s,
            u"Color(red = 0.2499f, green = 0.3952f, blue = 0.584f, alpha = 0.502f, colorSpace = ColorSpaces.DisplayP3)"_s);
        row("#33669980", "flutter", u"const Color(0x80336699)"_s,
            u"const Color.from(alpha: 0.502, red: 0.2499, green: 0.3952, blue: 0.584, "
            "colorSpace: ColorSpace.displayP3)"_s);
        row("#33669980", "android-xml", u"<color name=\"color\">#80336699</color>"_s);
        row("#33669980", "kotlin", u"Color.argb(128, 51, 102, 153)"_s,
            u"Color.valueOf(0.2499f, 0.3952f, 0.584f, 0.502f, ColorSpace.get(ColorSpace.Named.DISPLAY_P3))"_s);
        row("#336699", "css-hex", u"#336699ff"_s);
        row("#33669980", "css-rgb", u"rgb(51 102 153 / 0.502)"_s);
        row("#336699", "css-rgb", u"rgb(51 102 153)"_s);
        row("#33669980", "css-hsl", u"hsl(210 50% 40% / 0.502)"_s);
        row("#336699", "css-hwb", u"hwb(210 20% 40%)"_s);
        row("#336699", "css-oklch", u"oklch(49.931% 0.09866 250.433)"_s);
        row("#ff0000", "css-oklch", u"oklch(62.796% 0.25768 29.234)"_s);
        row("#ff0000", "css-p3", u"color(display-p3 0.9175 0.2003 0.1386)"_s);
        row("#336699", "css-p3", u"color(display-p3 0.2499 0.3952 0.584)"_s);
        row("#336699", "maui", u"Color.FromArgb(\"#FF336699\")"_s);
        row("#336699", "tailwind", u"bg-[#336699]"_s, u"@theme { --color-brand: oklch(49.931% 0.09866 250.433); }"_s);
        row("#33669980", "tailwind", u"bg-[#33669980]"_s,
            u"@theme { --color-brand: oklch(49.931% 0.09866 250.433 / 0.502); }"_s);
        row("#336699", "qml", u"\"#FF336699\""_s);
        row("color(display-p3 1 0 0)", "swiftui", u"Color(red: 1, green: 0, blue: 0, opacity: 1)"_s,
            u"Color(.displayP3, red: 1, green: 0, blue: 0, opacity: 1)"_s);
        row("color(display-p3 1 0 0)", "css-p3", u"color(display-p3 1 0 0)"_s);
        row("color(display-p3 1 0 0)", "css-hex", u"#ff0000ff"_s);
    }
    void aFormPrints()
    {
        QFETCH(QString, color);
        QFETCH(QString, form);
        const Result<ColorReading> reading = readColor(color);
        QVERIFY(reading.ok());
        const ColorForm *row = colorFormNamed(form);
        QVERIFY(row != nullptr);
        QTEST(formText(*row, reading.value().color), "text");
        if (QString wide = displayP3FormText(*row, reading.value().color); !wide.isEmpty())
            QTEST(wide, "wide");
    }

    void everyFormOfAGridReadsBack()
    {
        constexpr int step = 31;
        for (int red = 0; red <= 255; red += step) {
            for (int green = 0; green <= 255; green += step) {
                for (int blue = 0; blue <= 255; blue += step) {
                    const int alpha = (red * 7 + green * 3 + blue) % 256;
                    const WideColor color = wideColorFromBytes(red, green, blue, alpha);
                    for (const ColorForm &form : colorForms())
                        readsBack(form, color);
                    if (QTest::currentTestFailed())
                        return;
                }
            }
        }
    }

    void everyByteReadsBack()
    {
        for (int byte = 0; byte <= 255; ++byte) {
            for (const ColorForm &form : colorForms()) {
                readsBack(form, wideColorFromBytes(byte, byte, byte, byte));
                readsBack(form, wideColorFromBytes(byte, 255 - byte, byte / 3, 255 - byte));
            }
            if (QTest::currentTestFailed())
                return;
        }
    }

    void graysHaveNoHue()
    {
        for (int byte = 0; byte <= 255; ++byte) {
            const WideColor gray = wideColorFromBytes(byte, byte, byte);
            const QString percent = QString::number(byte * 100 / 255.0, 'f', 2);
            QVERIFY(formText(*colorFormNamed(u"css-hsl"), gray).startsWith(u"hsl(0 0% "_s));
            QVERIFY(formText(*colorFormNamed(u"css-hwb"), gray).startsWith(u"hwb(0 "_s));
            QVERIFY2(formText(*colorFormNamed(u"css-oklch"), gray).endsWith(u"% 0 0)"_s), qPrintable(percent));
        }
    }

    void aWideColorIsMarkedAndKept()
    {
        const WideColor red{RgbSpace::DisplayP3, 1.0, 0.0, 0.0, 1.0};
        QVERIFY(isClippedIn(red, RgbSpace::Srgb));
        QVERIFY(!isClippedIn(red, RgbSpace::DisplayP3));
        QVERIFY(!isClippedIn(wideColorFromBytes(255, 0, 0), RgbSpace::DisplayP3));
        for (const ColorForm &form : colorForms()) {
            const QString text = form.showsAnyGamut ? formText(form, red) : displayP3FormText(form, red);
            if (text.isEmpty())
                continue;
            const Result<ColorReading> back = readColor(text);
            QVERIFY2(back.ok(), qPrintable(text));
            const WideColor shown = inSpace(back.value().color, RgbSpace::DisplayP3);
            QVERIFY2(std::abs(shown.red - 1) < 1e-4 && std::abs(shown.green) < 2e-3 && std::abs(shown.blue) < 2e-3,
                     qPrintable(text));
        }
    }

private:
    static void readsBack(const ColorForm &form, const WideColor &color)
    {
        for (const QString &text : {formText(form, color), displayP3FormText(form, color)}) {
            if (text.isEmpty())
                continue;
            const Result<ColorReading> back = readColor(text);
            QVERIFY2(back.ok(), qPrintable(text));
            QVERIFY2(bytesOf(back.value().color) == bytesOf(color), qPrintable(text + u" of "_s + hex8Of(color)));
            // Compose's and Flutter's numbers are the same text except for the word before them.
            QCOMPARE(QString(back.value().notation), QString(form.name));
        }
    }
};

QTEST_GUILESS_MAIN(ColorFormTest)
#include "ColorFormTest.moc"
