// SPDX-License-Identifier: MIT
#include "color/WellColor.h"
#include "color/forms/ColorReader.h"
#include "color/forms/FormList.h"
#include "color/palettes/PaletteSaving.h"
#include "color/palettes/PickedPalette.h"
#include "color/spaces/ContrastTable.h"
#include "foundation/WholeFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

WideColor colorFrom(const QString &text)
{
    return readColor(text).value().color;
}

const FormRow &rowNamed(const std::vector<FormRow> &rows, QLatin1StringView name)
{
    return *std::ranges::find_if(rows, [name](const FormRow &row) { return row.form->name == name; });
}

} // namespace

class TodayColorTablesTest : public QObject
{
    Q_OBJECT

private slots:
    void platformBringsItsFormsToTheTop_data()
    {
        QTest::addColumn<int>("platform");
        QTest::addColumn<QStringList>("first");
        const auto row = [](ColorPlatform platform, const QStringList &first) {
            QTest::newRow(platformName(platform).data()) << static_cast<int>(platform) << first;
        };
        row(ColorPlatform::Apple,
            {u"swiftui"_s, u"uikit-swift"_s, u"uikit-objc"_s, u"appkit-swift"_s, u"appkit-objc"_s, u"colorset"_s});
        row(ColorPlatform::Android, {u"compose"_s, u"android-xml"_s, u"kotlin"_s, u"swiftui"_s});
        row(ColorPlatform::Flutter, {u"flutter"_s, u"swiftui"_s});
        row(ColorPlatform::Web, {u"css-hex"_s, u"css-rgb"_s, u"css-hsl"_s, u"css-hwb"_s, u"css-oklch"_s, u"css-p3"_s,
                                 u"tailwind"_s, u"swiftui"_s});
        row(ColorPlatform::Qt, {u"qml"_s, u"swiftui"_s, u"uikit-swift"_s});
    }
    void platformBringsItsFormsToTheTop()
    {
        QFETCH(int, platform);
        QFETCH(QStringList, first);
        const auto rows = formRows(colorFrom(u"#34495e"_s), static_cast<ColorPlatform>(platform), FormGamut::Srgb);
        QCOMPARE(rows.size(), colorForms().size());
        QStringList names;
        for (const FormRow &row : rows)
            names << row.form->name;
        QCOMPARE(names.first(first.size()), first);
        names.removeDuplicates();
        QCOMPARE(static_cast<std::size_t>(names.size()), rows.size());
    }

    void everyRowMeansTheColor_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("displayP3");
        QTest::newRow("opaque") << u"#34495e"_s << false;
        QTest::newRow("translucent") << u"#34495e80"_s << false;
        QTest::newRow("opaque, wide") << u"#34495e"_s << true;
        QTest::newRow("translucent, wide") << u"#34495e80"_s << true;
    }
    void everyRowMeansTheColor()
    {
        QFETCH(QString, code);
        QFETCH(bool, displayP3);
        const auto gamut = displayP3 ? FormGamut::DisplayP3 : FormGamut::Srgb;
        for (const FormRow &row : formRows(colorFrom(code), ColorPlatform::Web, gamut)) {
            for (const QString &text : {row.text, row.srgbText}) {
                if (!text.isEmpty())
                    QCOMPARE(hex8Of(colorFrom(text)), hex8Of(colorFrom(code)));
            }
            QCOMPARE(row.srgbText.isEmpty(), !displayP3 || row.form->displayP3Text.isEmpty());
            QVERIFY(!row.isClipped);
        }
    }

    void clippedFormsAreMarked()
    {
        const auto rows = formRows(colorFrom(u"color(display-p3 1 0 0)"_s), ColorPlatform::Apple, FormGamut::DisplayP3);
        QVERIFY(rowNamed(rows, "swiftui"_L1).isClipped);
        QCOMPARE(rowNamed(rows, "swiftui"_L1).text, u"Color(.displayP3, red: 1, green: 0, blue: 0, opacity: 1)"_s);
        QCOMPARE(rowNamed(rows, "swiftui"_L1).srgbText, u"Color(red: 1, green: 0, blue: 0, opacity: 1)"_s);
        QVERIFY(rowNamed(rows, "css-hex"_L1).isClipped);
        QVERIFY(!rowNamed(rows, "css-p3"_L1).isClipped);
        QVERIFY(!rowNamed(rows, "css-oklch"_L1).isClipped);
    }

    void fieldShowsTheShortestText_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("shown");
        QTest::newRow("opaque") << u"rgb(52 73 94)"_s << u"#34495e"_s;
        QTest::newRow("translucent") << u"rgb(52 73 94 / 0.5)"_s << u"#34495e80"_s;
        QTest::newRow("beyond sRGB") << u"color(display-p3 0 1 0)"_s << u"color(display-p3 0 1 0)"_s;
    }
    void fieldShowsTheShortestText()
    {
        QFETCH(QString, code);
        QTEST(fieldText(colorFrom(code)), "shown");
    }

    void bothSidesShowTheSameCode()
    {
        for (int byte = 0; byte < 256; ++byte) {
            const WideColor color = wideColorFromBytes(byte, 255 - byte, byte, byte);
            QCOMPARE(wideColorOfCode(wellColor(color)), color);
            QCOMPARE(wideColorFrom(wellColor(color)), color);
        }
    }

    void contrastIsJudged_data()
    {
        QTest::addColumn<QString>("color");
        QTest::addColumn<QString>("background");
        QTest::addColumn<QString>("verdicts"); ///< AA and AAA of text, of large text, AA of interface parts
        QTest::addColumn<QList<double>>("missed");
        QTest::addColumn<QString>("canPass");
        QTest::newRow("black on white") << u"black"_s << u"white"_s << u"+++++"_s << QList{0.0, 0.0, 0.0} << u"---"_s;
        QTest::newRow("gray on white") << u"#767676"_s << u"white"_s << u"+-+++"_s << QList{7.0, 0.0, 0.0} << u"+--"_s;
        QTest::newRow("light gray on white")
            << u"#959595"_s << u"white"_s << u"-----"_s << QList{4.5, 3.0, 3.0} << u"+++"_s;
        QTest::newRow("for large text only")
            << u"#777"_s << u"white"_s << u"--+-+"_s << QList{4.5, 4.5, 0.0} << u"++-"_s;
        QTest::newRow("no color is enough on gray")
            << u"#777"_s << u"#777"_s << u"-----"_s << QList{4.5, 3.0, 3.0} << u"+++"_s;
        QTest::newRow("enhanced contrast is out of reach")
            << u"black"_s << u"#777"_s << u"+-+++"_s << QList{7.0, 0.0, 0.0} << u"---"_s;
    }
    void contrastIsJudged()
    {
        QFETCH(QString, color);
        QFETCH(QString, background);
        QFETCH(QList<double>, missed);
        const auto table = contrastTable(colorFrom(color), colorFrom(background));
        QString verdicts;
        QString canPass;
        const auto sign = [](bool passes) { return passes ? u'+' : u'-'; };
        for (const ContrastRow &row : table) {
            verdicts += sign(row.aa);
            if (row.hasAaa)
                verdicts += sign(row.aaa);
            QCOMPARE(row.missed, missed.takeFirst());
            canPass += sign(row.canPass);
            // The promise holds: the search finds a color where the table says so, and none elsewhere.
            if (row.missed > 0.0)
                QCOMPARE(nearestWithContrast(colorFrom(color), colorFrom(background), row.missed).has_value(),
                         row.canPass);
        }
        QTEST(verdicts, "verdicts");
        QTEST(canPass, "canPass");
    }

    void paletteKeepsEachColorOnce()
    {
        PickedPalette picked;
        QVERIFY(picked.add(colorFrom(u"tomato"_s)));
        QVERIFY(picked.add(colorFrom(u"#12345680"_s)));
        QVERIFY(!picked.add(colorFrom(u"#ff6347"_s)));
        QCOMPARE(picked.add(Palette{{u"Sky"_s, colorFrom(u"#00aaff"_s)}, {u"Tomato"_s, colorFrom(u"tomato"_s)}}), 1U);
        QStringList names;
        for (const PaletteColor &entry : picked.colors())
            names << entry.name;
        QCOMPARE(names, (QStringList{u"tomato"_s, u"#12345680"_s, u"Sky"_s}));
        picked.remove(7);
        picked.remove(0);
        QCOMPARE(picked.colors().front().name, u"#12345680"_s);
    }

    void savedPalettesAreReadBack_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("read"); ///< the file to read, in the first one
        QTest::newRow("color sets") << static_cast<int>(PaletteFormat::ColorSets) << u"palette.xcassets"_s
                                    << u"palette-2.xcassets"_s << u"/tomato.colorset/Contents.json"_s;
        QTest::newRow("gpl") << static_cast<int>(PaletteFormat::Gpl) << u"palette.gpl"_s << u"palette-2.gpl"_s
                             << QString();
        QTest::newRow("json") << static_cast<int>(PaletteFormat::Json) << u"palette.json"_s << u"palette-2.json"_s
                              << QString();
        QTest::newRow("css") << static_cast<int>(PaletteFormat::CssVariables) << u"palette.css"_s << u"palette-2.css"_s
                             << QString();
    }
    void savedPalettesAreReadBack()
    {
        QFETCH(int, format);
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, read);
        const QTemporaryDir folder;
        const Palette palette{{u"tomato"_s, colorFrom(u"tomato"_s)}};
        for (const QString &name : {first, second}) {
            const auto saved = savePalette(palette, u"palette"_s, static_cast<PaletteFormat>(format), folder.path());
            QVERIFY(saved.ok());
            QCOMPARE(saved.value(), folder.filePath(name));
        }
        const auto bytes = readWholeFile(folder.filePath(first) + read, largestPaletteFile);
        QVERIFY(bytes.ok());
        const auto back = readPalette(bytes.value(), u"tomato"_s);
        QVERIFY(back.ok());
        QCOMPARE(back.value().size(), 1U);
        QCOMPARE(back.value().front().name, u"tomato"_s);
        QCOMPARE(hex8Of(back.value().front().color), u"#ff6347ff"_s);
        // It is the color that was picked.
        PickedPalette picked;
        picked.add(palette.front().color);
        QCOMPARE(picked.add(back.value()), 0U);
    }

    void folderThatCannotBeWrittenIsAFailure()
    {
        const QTemporaryDir folder;
        QVERIFY(writeWholeFile(folder.filePath(u"file"_s), "x").ok());
        const auto saved = savePalette({{u"a"_s, {}}}, u"palette"_s, PaletteFormat::Gpl, folder.filePath(u"file"_s));
        QVERIFY(!saved.ok());
        QCOMPARE(saved.failure().code, FailureCode::CannotCreateFolder);
    }
};

QTEST_GUILESS_MAIN(TodayColorTablesTest)
#include "TodayColorTablesTest.moc"
