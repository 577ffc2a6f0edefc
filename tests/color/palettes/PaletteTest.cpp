// SPDX-License-Identifier: MIT
#include "color/palettes/Palette.h"

#include "color/forms/ColorReader.h"
#include "color/palettes/ColorCatalogue.h"
#include "foundation/WholeFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

WideColor color(const QString &text)
{
    return readColor(text).value().color;
}

Palette sample()
{
    return {{u"sky"_s, color(u"#3498db"_s)},
            {u"Warm red"_s, color(u"color(display-p3 1 0 0)"_s)},
            {u"sky"_s, color(u"#33669980"_s)},
            {u"../../etc"_s, color(u"black"_s)}};
}

/// The colors of all files; each color set is named for its folder.
Palette readAll(const std::vector<PaletteFile> &files)
{
    Palette all;
    for (const PaletteFile &file : files) {
        const QString name = file.path.section(u'/', -2, -2).chopped(9);
        const Result<Palette> palette = readPalette(file.content, name);
        if (palette)
            all.insert(all.end(), palette.value().begin(), palette.value().end());
    }
    return all;
}

} // namespace

/// Palettes written and read back in every format.
class PaletteTest : public QObject
{
    Q_OBJECT

private slots:
    void catalogueIsReadInOrder()
    {
        const QTemporaryDir folder;
        for (const PaletteFile &file : paletteFiles(sample(), u"p"_s, PaletteFormat::ColorSets)) {
            const QString path = folder.filePath(file.path);
            QVERIFY(QDir().mkpath(QFileInfo(path).path()) && writeWholeFile(path, file.content).ok());
        }
        QVERIFY(QDir(folder.path()).mkpath(u"p.xcassets/empty.colorset"_s));
        QVERIFY(QFile::link(folder.path(), folder.filePath(u"p.xcassets/loop.colorset"_s)));
        const auto read = readColorCatalogue(folder.path());
        QVERIFY(read.ok());
        QStringList names;
        for (const PaletteColor &one : read.value().palette)
            names << one.name;
        QCOMPARE(names, (QStringList{u"------etc"_s, u"Warm-red"_s, u"sky-2"_s, u"sky"_s}));
        QCOMPARE(read.value().failures.size(), std::size_t{1});
        QVERIFY(read.value().failures.front().subject.endsWith(u"empty.colorset"_s));
        // A set itself will do.
        QCOMPARE(readColorCatalogue(folder.filePath(u"p.xcassets/sky.colorset"_s)).value().palette.size(),
                 std::size_t{1});
    }

    void unnamedColorsGetNames()
    {
        const Palette palette{{u"#336699ff"_s, wideColorFromBytes(0x33, 0x66, 0x99)},
                              {u"#336699ff"_s, wideColorFromBytes(0x33, 0x66, 0x99)}};
        const std::vector<PaletteFile> sets = paletteFiles(palette, u"p"_s, PaletteFormat::ColorSets);
        QCOMPARE(sets[1].path, u"p.xcassets/color-336699ff.colorset/Contents.json"_s);
        QCOMPARE(sets[2].path, u"p.xcassets/color-336699ff-2.colorset/Contents.json"_s);
        const QByteArray css = paletteFiles(palette, u"p"_s, PaletteFormat::CssVariables)[0].content;
        QVERIFY2(css.contains("\n  --color-336699ff: #336699ff;\n  --color-336699ff-2: #336699ff;\n"), css);
    }

    void badCataloguesAreRefused()
    {
        const QTemporaryDir folder;
        QCOMPARE(readColorCatalogue(folder.path()).failure().code, FailureCode::MissingContent);
        QCOMPARE(readColorCatalogue(folder.filePath(u"none"_s)).failure().code, FailureCode::NotFound);
        QVERIFY(writeWholeFile(folder.filePath(u"a"_s), "a").ok());
        QCOMPARE(readColorCatalogue(folder.filePath(u"a"_s)).failure().code, FailureCode::NotAFolder);
        QVERIFY(QDir(folder.path()).mkdir(u"b"_s));
        QCOMPARE(readColorCatalogue(folder.path(), {}, 1).failure().code, FailureCode::TooLarge);
        QCOMPARE(readColorCatalogue(folder.path(), {}, 2).failure().code, FailureCode::MissingContent);
    }

    void whatIsWrittenReadsBack_data()
    {
        QTest::addColumn<PaletteFormat>("format");
        QTest::addColumn<bool>("keepsOpacity");
        QTest::newRow("color sets") << PaletteFormat::ColorSets << true;
        QTest::newRow("gpl") << PaletteFormat::Gpl << false;
        QTest::newRow("json") << PaletteFormat::Json << true;
        QTest::newRow("css") << PaletteFormat::CssVariables << true;
    }
    void whatIsWrittenReadsBack()
    {
        QFETCH(PaletteFormat, format);
        QFETCH(bool, keepsOpacity);
        const Palette palette = sample();
        const std::vector<PaletteFile> files = paletteFiles(palette, u"My palette"_s, format);
        const Palette back =
            format == PaletteFormat::ColorSets ? readAll(files) : readPalette(files[0].content, u"p"_s).value();
        QCOMPARE(back.size(), palette.size());
        for (std::size_t index = 0; index < back.size(); ++index) {
            std::array<int, 4> expected = bytesOf(palette[index].color);
            if (!keepsOpacity)
                expected[3] = 255;
            QCOMPARE(bytesOf(back[index].color), expected);
        }
        if (keepsOpacity)
            QVERIFY(isClippedIn(back[1].color, RgbSpace::Srgb));
    }

    void namesStayApartAndInside()
    {
        QStringList paths;
        for (const PaletteFile &file : paletteFiles(sample(), u"a/b"_s, PaletteFormat::ColorSets))
            paths << file.path;
        QCOMPARE(paths, (QStringList{u"a-b.xcassets/Contents.json"_s, u"a-b.xcassets/sky.colorset/Contents.json"_s,
                                     u"a-b.xcassets/Warm-red.colorset/Contents.json"_s,
                                     u"a-b.xcassets/sky-2.colorset/Contents.json"_s,
                                     u"a-b.xcassets/------etc.colorset/Contents.json"_s}));
    }

    void otherProgramsPalettesAreRead()
    {
        const Result<Palette> gimp =
            readPalette("GIMP Palette\r\nName: Tango\r\nColumns: 3\r\n# Butter\r\n252 233  79\tButter 1\r\n"
                        "  0   0   0\r\n",
                        u"Tango"_s);
        QVERIFY(gimp.ok());
        QCOMPARE(gimp.value().size(), std::size_t{2});
        QCOMPARE(gimp.value()[0].name, u"Butter 1"_s);
        QCOMPARE(hex8Of(gimp.value()[0].color), u"#fce94fff"_s);
        QCOMPARE(gimp.value()[1].name, u"line 6"_s);

        const Result<Palette> css =
            readPalette("/* --old: red; */\n:root{--a:red;--b : oklch(0.5 0.1 20)\n}\n.x { color: blue }", u"c"_s);
        QVERIFY(css.ok());
        QCOMPARE(css.value().size(), std::size_t{2});
        QCOMPARE(css.value()[1].name, u"b"_s);
    }

    void aBrokenPaletteIsRefused_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<FailureCode>("code");
        QTest::newRow("empty") << QByteArray() << FailureCode::MissingContent;
        QTest::newRow("text") << QByteArray("hello") << FailureCode::MissingContent;
        QTest::newRow("gpl row of two") << QByteArray("GIMP Palette\n1 2\n") << FailureCode::NotReadable;
        QTest::newRow("gpl beyond a byte") << QByteArray("GIMP Palette\n1 2 256\n") << FailureCode::NotReadable;
        QTest::newRow("css length") << QByteArray(":root{--gap: 4px}") << FailureCode::NotReadable;
        QTest::newRow("json color") << QByteArray("{\"colors\":[{\"name\":\"a\",\"hex8\":\"#12\"}]}")
                                    << FailureCode::NotReadable;
        QTest::newRow("too large") << QByteArray(largestPaletteFile + 1, ' ') << FailureCode::TooLarge;
        QTest::newRow("too many") << QByteArray("GIMP Palette\n") + QByteArray("1 2 3\n").repeated(10001)
                                  << FailureCode::TooLarge;
    }
    void aBrokenPaletteIsRefused()
    {
        QFETCH(QByteArray, content);
        const Result<Palette> palette = readPalette(content, u"p"_s);
        QVERIFY(!palette.ok());
        QTEST(palette.failure().code, "code");
    }
};

QTEST_GUILESS_MAIN(PaletteTest)
#include "PaletteTest.moc"
