// SPDX-License-Identifier: MIT
#include "resizer/densities/DensityLayout.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The path and size of a picture of each density, in each kind of project.
class DensityLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void aPlaceLeadsToAnother_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("density");
        QTest::addColumn<QString>("target");
        const auto row = [](const char *layout, const char *path, const char *density, const char *target) {
            QTest::addRow("%s %s at %s", layout, path, density)
                << QString::fromLatin1(layout) << QString::fromLatin1(path) << QString::fromLatin1(density)
                << QString::fromLatin1(target);
        };
        row("ios", "logo@3x.png", "2x", "logo@2x.png");
        row("ios", "logo@3x.png", "1x", "logo.png");
        row("ios", "A.xcassets/logo.imageset/logo@3x.png", "1x", "A.xcassets/logo.imageset/logo.png");
        row("ios", "logo@2x~ipad.png", "1x", "logo~ipad.png");
        row("ios", "me@home@3x.png", "2x", "me@home@2x.png");
        row("ios", "logo.v2@3x.png", "2x", "logo.v2@2x.png");
        row("react-native", "img/logo@4x.png", "1.5x", "img/logo@1.5x.png");
        row("web", "logo@2x.webp", "1x", "logo.webp");
        row("android", "res/drawable-xxxhdpi/logo.png", "xxhdpi", "res/drawable-xxhdpi/logo.png");
        row("android", "res/drawable-xxxhdpi/logo.png", "1.5x", "res/drawable-hdpi/logo.png");
        row("android", "drawable-xxxhdpi/logo.png", "ldpi", "drawable-ldpi/logo.png");
        row("android", "res/drawable-night-xxxhdpi-v24/logo.png", "2x", "res/drawable-night-xhdpi-v24/logo.png");
        row("android", "res/mipmap-xxxhdpi/ic.webp", "tvdpi", "res/mipmap-tvdpi/ic.webp");
        row("flutter", "assets/3.0x/logo.png", "2x", "assets/2.0x/logo.png");
        row("flutter", "assets/4.0x/logo.png", "1x", "assets/logo.png");
        row("flutter", "3x/logo.png", "1.5x", "1.5x/logo.png");
        row("flutter", "assets/logo.png", "3x", "assets/3.0x/logo.png");
    }
    void aPlaceLeadsToAnother()
    {
        QFETCH(QString, layout);
        QFETCH(QString, path);
        QFETCH(QString, density);
        const DensityLayout *row = densityLayoutNamed(layout);
        QVERIFY(row != nullptr);
        const std::optional<DensityPlace> place = row->place(path);
        QVERIFY(place.has_value());
        QTEST(row->path(*place, *densityNamed(density), place->extension), "target");
        if (!path.startsWith(u"3x/"_s))
            QCOMPARE(row->path(*place, place->density, place->extension), path);
    }

    void whatIsNoPlaceIsNone()
    {
        QVERIFY(!densityLayoutNamed(u"ios")->place(u"logo@5x.png"_s));
        QVERIFY(!densityLayoutNamed(u"android")->place(u"res/drawable/logo.png"_s));
        QVERIFY(!densityLayoutNamed(u"android")->place(u"logo@3x.png"_s));
        QVERIFY(!densityLayoutNamed(u"android")->place(u"res/layout-xxhdpi/logo.png"_s));
        QVERIFY(!densityLayoutNamed(u"flutter")->place(u"assets/7.0x/logo.png"_s));
        QCOMPARE(densityLayoutNamed(u"windows"), nullptr);
        QVERIFY(!densityNamed(u"5x"));
    }

    void aSizeIsRoundedToNearest_data()
    {
        QTest::addColumn<QSize>("pixels");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("rounded");
        QTest::newRow("whole") << QSize(90, 60) << u"3x"_s << u"2x"_s << QSize(60, 40) << false;
        QTest::newRow("one over") << QSize(91, 60) << u"3x"_s << u"2x"_s << QSize(61, 40) << true;
        QTest::newRow("two over") << QSize(92, 60) << u"3x"_s << u"1x"_s << QSize(31, 20) << true;
        QTest::newRow("one third") << QSize(91, 60) << u"3x"_s << u"1x"_s << QSize(30, 20) << true;
        QTest::newRow("a half goes up") << QSize(3, 5) << u"2x"_s << u"1x"_s << QSize(2, 3) << true;
        QTest::newRow("hdpi of xxxhdpi") << QSize(48, 72) << u"4x"_s << u"1.5x"_s << QSize(18, 27) << false;
        QTest::newRow("tvdpi") << QSize(48, 48) << u"4x"_s << u"tvdpi"_s << QSize(16, 16) << false;
        QTest::newRow("never nothing") << QSize(1, 1) << u"4x"_s << u"1x"_s << QSize(1, 1) << true;
        QTest::newRow("largest") << QSize(2000000000, 1) << u"4x"_s << u"3x"_s << QSize(1500000000, 1) << true;
    }
    void aSizeIsRoundedToNearest()
    {
        QFETCH(QSize, pixels);
        QFETCH(QString, from);
        QFETCH(QString, to);
        const ScaledSize scaled = scaledSize(pixels, *densityNamed(from), *densityNamed(to));
        QTEST(scaled.size, "size");
        QTEST(scaled.rounded, "rounded");
    }
};

QTEST_GUILESS_MAIN(DensityLayoutTest)
#include "DensityLayoutTest.moc"
