// SPDX-License-Identifier: MIT
#include "icons/IconCatalogue.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class IconCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void platform_data();
    void platform();
    void list_data();
    void list();
    void sizesAndCount();
    void touchIconsShareTheirSize();
    void customName_data();
    void customName();
};

void IconCatalogueTest::platform_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("facts");
    QTest::newRow("iPhone") << 0
                            << QStringList{u"iPhoneIcons"_s, u"iPhoneCheckbox"_s, u"/iPhone"_s,
                                           u"Export iPhone icons"_s};
    QTest::newRow("iPad") << 1 << QStringList{u"iPadIcons"_s, u"iPadCheckbox"_s, u"/iPad"_s, u"Export iPad icons"_s};
    QTest::newRow("Mac") << 2 << QStringList{u"MacIcons"_s, u"macCheckbox"_s, u"/Mac"_s, u"Export mac icons"_s};
    QTest::newRow("Android") << 3
                             << QStringList{u"AndroidIcons"_s, u"androidCheckbox"_s, u"/Android"_s,
                                            u"Export android icons"_s};
    QTest::newRow("web touch") << 4
                               << QStringList{u"WebTouchIcons"_s, u"webTouchCheckbox"_s, u"/Web Touch"_s,
                                              u"Export web icons"_s};
    QTest::newRow("favicon") << 5
                             << QStringList{u"FavIcons"_s, u"favIconCheckbox"_s, u"/Favicon"_s,
                                            u"Export favicons icons"_s};
}

void IconCatalogueTest::platform()
{
    QFETCH(int, index);
    const PlatformIcons &platform = iconPlatforms[static_cast<std::size_t>(index)];
    QTEST((QStringList{QString::fromLatin1(platform.property), QString::fromLatin1(platform.checkboxProperty),
                       QString::fromLatin1(platform.folderSuffix), QString::fromLatin1(platform.logLine)}),
          "facts");
}

void IconCatalogueTest::list_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("entries");
    QTest::newRow("iPhone") << 0
                            << u"Icon.png 57, Icon@2x.png 114, Icon-60.png 60, Icon-60@2x.png 120, Icon-Small.png 29, "
                               "Icon-Small@2x.png 58, Icon-Small-40.png 40, Icon-Small-40@2x.png 80, iTunesArtwork "
                               "512, iTunesArtwork@2x 1024"_s;
    QTest::newRow("iPad")
        << 1
        << u"Icon-72.png 72, Icon-72@2x.png 144, Icon-76.png 76, Icon-76@2x.png 152, Icon-Small.png "
           "29, Icon-Small@2x.png 58, Icon-Small-40.png 40, Icon-Small-40@2x.png 80, "
           "Icon-Small-50.png 50, Icon-Small-50@2x.png 100, iTunesArtwork 512, iTunesArtwork@2x 1024"_s;
    QTest::newRow("Mac") << 2
                         << u"icon_16x16.png 16, icon_16x16@2x.png 32, icon_32x32.png 32, icon_32x32@2x.png 64, "
                            "icon_128x128.png 128, icon_128x128@2x.png 256, icon_256x256.png 256, "
                            "icon_256x256@2x.png 512, icon_512x512.png 512, icon_512x512@2x.png 1024"_s;
    QTest::newRow("Android") << 3
                             << u"ic_launcher_ldpi.png 36, ic_launcher_mdpi.png 48, ic_launcher_hdpi.png 72, "
                                "ic_launcher_xhdpi.png 96, ic_512x512.png 512"_s;
    QTest::newRow("web touch")
        << 4
        << u"apple-touch-icon.png 57, apple-touch-icon-precomposed.png 57, "
           "apple-touch-icon-114x114-precomposed.png 114, apple-touch-icon-72x72-precomposed.png "
           "72, apple-touch-icon-144x144-precomposed.png 144, "
           "apple-touch-icon-60x60-precomposed.png 60, apple-touch-icon-120x120-precomposed.png "
           "120, apple-touch-icon-76x76-precomposed.png 76, "
           "apple-touch-icon-152x152-precomposed.png 152"_s;
    QTest::newRow("favicon") << 5
                             << u"favicon-16.png 16, favicon-32.png 32, favicon-48.png 48, favicon-64.png 64, "
                                "favicon-128.png 128"_s;
}

void IconCatalogueTest::list()
{
    QFETCH(int, index);
    QStringList found;
    for (const IconEntry &icon : iconPlatforms[static_cast<std::size_t>(index)].icons)
        found << u"%1 %2"_s.arg(QLatin1StringView(icon.name)).arg(icon.size);
    QTEST(found.join(u", "_s), "entries");
}

void IconCatalogueTest::sizesAndCount()
{
    std::size_t count = 0;
    int smallest = INT_MAX;
    int largest = 0;
    for (const PlatformIcons &platform : iconPlatforms) {
        count += platform.icons.size();
        for (const IconEntry &icon : platform.icons) {
            smallest = std::min(smallest, icon.size);
            largest = std::max(largest, icon.size);
        }
    }
    QCOMPARE(count, std::size_t{51});
    QCOMPARE(smallest, 16);
    QCOMPARE(largest, 1024);
}

void IconCatalogueTest::touchIconsShareTheirSize()
{
    QCOMPARE(WebTouchIcons[0].size, WebTouchIcons[1].size);
    QVERIFY(qstrcmp(WebTouchIcons[0].name, WebTouchIcons[1].name) != 0);
}

void IconCatalogueTest::customName_data()
{
    QTest::addColumn<CornerMode>("mode");
    QTest::addColumn<QString>("name");
    QTest::newRow("no corners") << CornerMode::None << u"/icon_100x100.png"_s;
    QTest::newRow("iOS 6") << CornerMode::Ios6 << u"/icon_100x100_iOS6.png"_s;
    QTest::newRow("iOS 7") << CornerMode::Ios7 << u"/icon_100x100_iOS7.png"_s;
}

void IconCatalogueTest::customName()
{
    QFETCH(CornerMode, mode);
    QTEST(customIconName(100, mode), "name");
}

QTEST_GUILESS_MAIN(IconCatalogueTest)
#include "IconCatalogueTest.moc"
