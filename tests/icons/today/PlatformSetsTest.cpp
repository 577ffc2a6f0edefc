// SPDX-License-Identifier: MIT
#include "MadeSets.h"
#include "icons/today/AndroidFigures.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/ContentExtent.h"
#include "icons/today/LinuxSizes.h"
#include "icons/today/Motifs.h"
#include "icons/today/TodayExport.h"
#include "icons/today/WindowsAssets.h"
#include "pictures/scaling/PicturePlanes.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>
#include <QtEndian>

using namespace lumora;
using namespace Qt::StringLiterals;

class PlatformSetsTest : public QObject
{
    Q_OBJECT

private slots:
    void macGridIsKept();
    void macShadowIsThatOfTheShape();
    void icnsHoldsEveryPicture();
    void adaptiveLayers_data();
    void adaptiveLayers();
    void adaptiveBackgrounds_data();
    void adaptiveBackgrounds();
    void roundIconIsADisk();
    void monochromeIsWhite();
    void manifestNamesItsFiles();
    void maskableStaysInItsCircle();
    void contentStaysInTheSafeZone_data();
    void contentStaysInTheSafeZone();
    void windowsAssetsByTheirNames();
    void linuxTree();
    void layersAreNeeded_data();
    void layersAreNeeded();
    void layeredStacks();
    void composerBundle();
};

void PlatformSetsTest::macGridIsKept()
{
    QImage plain(1024, 1024, QImage::Format_RGBA8888);
    plain.fill(QColor(0, 0, 255));
    MadeSets sets({TodaySet::MacOs}, sourcesOf(plain));
    const QImage picture = sets.picture(u"macOS/Assets.xcassets/AppIcon.appiconset/icon_512x512@2x.png"_s);
    QCOMPARE(picture.pixelColor(512, 100), QColor(0, 0, 255));
    QCOMPARE(picture.pixelColor(512, 923), QColor(0, 0, 255));
    QCOMPARE(picture.pixelColor(100, 512), QColor(0, 0, 255));
    QVERIFY(picture.pixelColor(512, 99).alpha() < 128);
    QVERIFY(picture.pixelColor(104, 104).alpha() < 128);
    QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    // The shadow lies below the body rather than above it.
    QVERIFY(picture.pixelColor(512, 930).alpha() > picture.pixelColor(512, 93).alpha());
    QVERIFY(picture.pixelColor(512, 930).alpha() > 20);

    MadeSets bleeding({TodaySet::MacOs}, sourcesOf(plain), {u"App"_s}, MacForm::FullBleed);
    QCOMPARE(bleeding.picture(u"macOS/Assets.xcassets/AppIcon.appiconset/icon_512x512@2x.png"_s).pixelColor(0, 0),
             QColor(0, 0, 255));
}

void PlatformSetsTest::macShadowIsThatOfTheShape()
{
    MadeSets sets({TodaySet::MacOs}, sourcesOf(disk(500)));
    const QImage picture = sets.picture(u"macOS/Assets.xcassets/AppIcon.appiconset/icon_512x512@2x.png"_s);
    QCOMPARE(picture.pixelColor(512, 512), QColor(255, 0, 0));
    QCOMPARE(picture.pixelColor(512, 800).alpha(), 0);
    QVERIFY(picture.pixelColor(512, 512 + 206 + 6).alpha() > 20);
}

void PlatformSetsTest::icnsHoldsEveryPicture()
{
    MadeSets sets({TodaySet::MacOs}, sourcesOf(opaquePicture()));
    const QByteArray icns = sets.content(u"macOS/AppIcon.icns"_s);
    QVERIFY(icns.startsWith("icns"));
    for (const MacSlot &slot : macSlots) {
        const QByteArray file =
            sets.content(u"macOS/Assets.xcassets/AppIcon.appiconset/"_s + QLatin1StringView(slot.file));
        const quint32 length = qToBigEndian(static_cast<quint32>(file.size() + 8));
        const QByteArray head = slot.icnsType + QByteArray(reinterpret_cast<const char *>(&length), sizeof length);
        QVERIFY2(icns.contains(QByteArray(head + file)), slot.icnsType);
    }
}

void PlatformSetsTest::adaptiveLayers_data()
{
    QTest::addColumn<QImage>("icon");
    QTest::addColumn<int>("contentEdge"); ///< of the largest layer, in pixels
    // 66 of 108 dp are 264 of 432 pixels.
    QTest::newRow("disk that touches the edges") << disk(1000) << 264;
    QTest::newRow("disk of half the edge") << disk(500) << 216;
    QTest::newRow("small disk") << disk(200) << 86;
    QTest::newRow("full square") << opaquePicture() << 186;
    QTest::newRow("disk on its own ground") << disk(960, Qt::red, Qt::white) << 264;
}

void PlatformSetsTest::adaptiveLayers()
{
    QFETCH(QImage, icon);
    TodaySources sources = sourcesOf(icon);
    sources.flatten = QColor(Qt::white);
    MadeSets sets({TodaySet::Adaptive}, sources);
    const QImage layer = sets.picture(u"Android/res/mipmap-xxxhdpi/ic_launcher_foreground.png"_s);
    QCOMPARE(layer.size(), QSize(432, 432));
    // Along the middle row: what differs from the ground.
    const QColor ground = isOpaque(icon.convertToFormat(QImage::Format_RGBA8888_Premultiplied)) &&
                                  icon.pixelColor(0, 0) == QColor(Qt::white)
                              ? QColor(Qt::white)
                              : QColor(Qt::transparent);
    int first = 432;
    int last = 0;
    for (int x = 0; x < 432; ++x) {
        const QColor color = layer.pixelColor(x, 216);
        if (color.alpha() > 40 && !(ground.alpha() > 0 && color.green() > 215)) {
            first = std::min(first, x);
            last = std::max(last, x);
        }
    }
    QFETCH(int, contentEdge);
    // Both edges may be rounded by a pixel.
    QVERIFY2(qAbs(last - first + 1 - contentEdge) <= 3, qPrintable(QString::number(last - first + 1)));
}

void PlatformSetsTest::adaptiveBackgrounds_data()
{
    QTest::addColumn<QImage>("icon");
    QTest::addColumn<QColor>("given");
    QTest::addColumn<QByteArray>("color");
    QTest::addColumn<int>("said"); ///< the derivation, -1 for none
    QTest::newRow("given") << disk(900, Qt::red, Qt::blue) << QColor(1, 2, 3) << QByteArray("#010203") << -1;
    QTest::newRow("the border's") << disk(900, Qt::red, QColor(0, 0, 254)) << QColor() << QByteArray("#0000FE")
                                  << static_cast<int>(Derivation::BackgroundFromBorder);
    QTest::newRow("no uniform border") << opaquePicture() << QColor() << QByteArray("#FFFFFF")
                                       << static_cast<int>(Derivation::BackgroundWhite);
    QTest::newRow("transparent") << disk(900) << QColor() << QByteArray("#FFFFFF")
                                 << static_cast<int>(Derivation::BackgroundWhite);
}

void PlatformSetsTest::adaptiveBackgrounds()
{
    QFETCH(QImage, icon);
    QFETCH(QColor, given);
    QFETCH(int, said);
    TodaySources sources = sourcesOf(icon);
    sources.flatten = QColor(Qt::white);
    if (given.isValid())
        sources.backgroundColor = given;
    MadeSets sets({TodaySet::Adaptive}, sources);
    QFETCH(QByteArray, color);
    QVERIFY(sets.content(u"Android/res/values/ic_launcher_background.xml"_s)
                .contains(QByteArray("<color name=\"ic_launcher_background\">" + color + "</color>")));
    for (const Derivation derivation : {Derivation::BackgroundFromBorder, Derivation::BackgroundWhite})
        QCOMPARE(sets.says(derivation), static_cast<int>(derivation) == said);

    sources.background = Artwork(opaquePicture());
    MadeSets pictured({TodaySet::Adaptive}, sources);
    QCOMPARE(pictured.header(u"Android/res/mipmap-mdpi/ic_launcher_background.png"_s).size, QSize(108, 108));
    QVERIFY(!pictured.files().contains(u"Android/res/values/ic_launcher_background.xml"_s));
    QVERIFY(pictured.content(u"Android/res/mipmap-anydpi-v26/ic_launcher.xml"_s)
                .contains("@mipmap/ic_launcher_background"));
}

void PlatformSetsTest::roundIconIsADisk()
{
    TodaySources sources = sourcesOf(disk(400));
    sources.flatten = QColor(Qt::white);
    sources.backgroundColor = QColor(0, 0, 255);
    MadeSets sets({TodaySet::Adaptive}, sources);
    const QImage picture = sets.picture(u"Android/res/mipmap-xxxhdpi/ic_launcher_round.png"_s);
    QCOMPARE(picture.size(), QSize(192, 192));
    QCOMPARE(picture.pixelColor(2, 2).alpha(), 0);
    QCOMPARE(picture.pixelColor(96, 3), QColor(0, 0, 255));
    QCOMPARE(picture.pixelColor(96, 96), QColor(255, 0, 0));
}

void PlatformSetsTest::monochromeIsWhite()
{
    TodaySources sources = sourcesOf(disk(900));
    sources.flatten = QColor(Qt::white);
    MadeSets sets({TodaySet::Adaptive}, sources);
    const QImage layer = sets.picture(u"Android/res/mipmap-xxxhdpi/ic_launcher_monochrome.png"_s);
    QCOMPARE(layer.pixelColor(216, 216), QColor(255, 255, 255));
    QCOMPARE(layer.pixelColor(0, 0).alpha(), 0);
    QVERIFY(sets.says(Derivation::MonochromeFromIcon));
    const QImage notification = sets.picture(u"Android/res/drawable-mdpi/ic_notification.png"_s);
    QCOMPARE(notification.size(), QSize(24, 24));
    QCOMPARE(notification.pixelColor(12, 12), QColor(255, 255, 255));
    QVERIFY(sets.content(u"Android/res/mipmap-anydpi-v26/ic_launcher.xml"_s).contains("<monochrome "));
    MadeSets without({TodaySet::Adaptive}, sourcesOf(opaquePicture()));
    QVERIFY(without.says(Derivation::MonochromeLeftOut));
    QVERIFY(!without.content(u"Android/res/mipmap-anydpi-v26/ic_launcher.xml"_s).contains("monochrome"));
}

void PlatformSetsTest::manifestNamesItsFiles()
{
    MadeSets sets({TodaySet::Web}, sourcesOf(opaquePicture()), {u"My \"App\""_s});
    const QJsonObject manifest = sets.json(u"Web/site.webmanifest"_s);
    QCOMPARE(manifest[u"name"_s].toString(), u"My \"App\""_s);
    const QJsonArray icons = manifest[u"icons"_s].toArray();
    QCOMPARE(icons.size(), 4);
    int maskable = 0;
    for (const QJsonValue value : icons) {
        const QJsonObject icon = value.toObject();
        const QSize size = sets.header(u"Web"_s + icon[u"src"_s].toString()).size;
        QCOMPARE(icon[u"sizes"_s].toString(), u"%1x%2"_s.arg(size.width()).arg(size.height()));
        maskable += icon[u"purpose"_s].toString() == u"maskable" ? 1 : 0;
    }
    QCOMPARE(maskable, 2);
    const QByteArray head = sets.content(u"Web/head.html"_s);
    QVERIFY(head.contains("href=\"/favicon.ico\"") && head.contains("href=\"/apple-touch-icon.png\"") &&
            head.contains("href=\"/site.webmanifest\"") && !head.contains("favicon.svg"));
}

void PlatformSetsTest::maskableStaysInItsCircle()
{
    TodaySources sources = sourcesOf(opaquePicture());
    sources.backgroundColor = QColor(0, 0, 255);
    MadeSets sets({TodaySet::Web}, sources);
    const QImage picture = sets.picture(u"Web/maskable-512.png"_s);
    QCOMPARE(sets.header(u"Web/maskable-512.png"_s).colorType, opaqueForm);
    for (int y = 0; y < 512; ++y) {
        for (int x = 0; x < 512; ++x) {
            const double dx = x + 0.5 - 256;
            const double dy = y + 0.5 - 256;
            if (dx * dx + dy * dy > 204.8 * 204.8)
                QCOMPARE(picture.pixelColor(x, y), QColor(0, 0, 255));
        }
    }
    QVERIFY(picture.pixelColor(256 - 140, 256 - 140) != QColor(0, 0, 255));
}

void PlatformSetsTest::contentStaysInTheSafeZone_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<double>("circle");
    const double adaptive = double{adaptiveSafeDp} / adaptiveLayerDp;
    QTest::newRow("maskable 192") << u"Web/maskable-192.png"_s << 0.8;
    QTest::newRow("maskable 512") << u"Web/maskable-512.png"_s << 0.8;
    QTest::newRow("layer 108") << u"Android/res/mipmap-mdpi/ic_launcher_foreground.png"_s << adaptive;
    QTest::newRow("layer 432") << u"Android/res/mipmap-xxxhdpi/ic_launcher_foreground.png"_s << adaptive;
}

/// Whatever its diameter is, although scaling spreads a contour by up to a pixel.
void PlatformSetsTest::contentStaysInTheSafeZone()
{
    QFETCH(QString, file);
    QFETCH(double, circle);
    for (const int thousandths : {820, 853, 883, 917, 950, 991}) {
        TodaySources sources = sourcesOf(disk(thousandths));
        sources.flatten = QColor(Qt::white);
        MadeSets sets({TodaySet::Web, TodaySet::Adaptive}, sources);
        const QImage picture = sets.picture(file);
        // The measured diameter counts the pixels at both of its ends whole.
        const double beyond = (contentDiameter(picture) - circle) * picture.width();
        QVERIFY2(beyond > -4 && beyond < 2, qPrintable(QString::number(beyond)));
    }
}

void PlatformSetsTest::windowsAssetsByTheirNames()
{
    MadeSets sets({TodaySet::Windows}, sourcesOf(opaquePicture()));
    const QList<std::pair<const char *, QSize>> some = {
        {"AppList.scale-125.png", {55, 55}},          {"AppList.scale-400.png", {176, 176}},
        {"SmallTile.scale-125.png", {89, 89}},        {"SmallTile.scale-150.png", {107, 107}},
        {"MedTile.scale-125.png", {188, 188}},        {"WideTile.scale-125.png", {388, 188}},
        {"WideTile.scale-400.png", {1240, 600}},      {"LargeTile.scale-125.png", {388, 388}},
        {"LargeTile.scale-400.png", {1240, 1240}},    {"StoreLogo.scale-125.png", {63, 63}},
        {"SplashScreen.scale-400.png", {2480, 1200}}, {"AppList.targetsize-256_altform-lightunplated.png", {256, 256}},
        {"AppList.targetsize-20.png", {20, 20}}};
    for (const auto &[name, size] : some)
        QCOMPARE(sets.header(u"Windows/Assets/"_s + QLatin1StringView(name)).size, size);
    QVERIFY(!sets.files().contains(u"Windows/Assets/BadgeLogo.scale-100.png"_s));
}

void PlatformSetsTest::linuxTree()
{
    MadeSets sets({TodaySet::Linux}, sourcesOf(opaquePicture()), {u"org.example.App"_s});
    for (const int edge : hicolorSizes)
        QCOMPARE(sets.header(u"Linux/hicolor/%1x%1/apps/org.example.App.png"_s.arg(edge)).size, QSize(edge, edge));
    QVERIFY(sets.says(Derivation::ScalableLeftOut));
}

void PlatformSetsTest::layersAreNeeded_data()
{
    QTest::addColumn<TodaySet>("set");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("refused");
    for (const auto &[name, set] : {std::pair{"tvos", TodaySet::TvOs}, std::pair{"visionos", TodaySet::VisionOs}}) {
        for (const int count : {0, 1, 2, 5, 6})
            QTest::addRow("%s, %d", name, count) << set << count << (count < 2 || count > 5);
    }
    QTest::newRow("icon-composer, 0") << TodaySet::IconComposer << 0 << false;
    QTest::newRow("icon-composer, 1") << TodaySet::IconComposer << 1 << true;
    QTest::newRow("icon-composer, 5") << TodaySet::IconComposer << 5 << false;
}

void PlatformSetsTest::layersAreNeeded()
{
    QFETCH(TodaySet, set);
    QFETCH(int, count);
    TodaySources sources = sourcesOf(opaquePicture(64));
    for (int layer = 0; layer < count; ++layer)
        sources.layers << Artwork(disk(900 - 100 * layer, Qt::red, Qt::transparent, 64));
    const Motifs motifs(sources, MacForm::Body);
    const Result<FilePlan> plan = planSets({set}, motifs, {u"App"_s});
    QTEST(!plan.ok(), "refused");
    if (!plan)
        QCOMPARE(plan.failure().code, FailureCode::NeedsLayers);
}

void PlatformSetsTest::layeredStacks()
{
    TodaySources sources = sourcesOf(opaquePicture());
    sources.layers = {Artwork(disk(1000, Qt::blue, Qt::white)), Artwork(disk(600, Qt::green)),
                      Artwork(disk(300, Qt::red))};
    MadeSets sets({TodaySet::TvOs, TodaySet::VisionOs}, sources);
    QVERIFY(!sets.failure);
    const QString brand = u"tvOS/Assets.xcassets/App Icon & Top Shelf Image.brandassets/"_s;
    const QJsonArray assets = sets.json(brand + u"Contents.json"_s)[u"assets"_s].toArray();
    QCOMPARE(assets.size(), 4);
    QCOMPARE(assets[2].toObject()[u"role"_s].toString(), u"top-shelf-image-wide"_s);
    const QString icon = brand + u"App Icon.imagestack/"_s;
    const QJsonArray layers = sets.json(icon + u"Contents.json"_s)[u"layers"_s].toArray();
    QCOMPARE(layers[0].toObject()[u"filename"_s].toString(), u"Front.imagestacklayer"_s);
    QCOMPARE(layers[2].toObject()[u"filename"_s].toString(), u"Back.imagestacklayer"_s);
    QCOMPARE(sets.header(icon + u"Back.imagestacklayer/Content.imageset/Content@2x.png"_s).size, QSize(800, 480));
    QCOMPARE(sets.header(icon + u"Back.imagestacklayer/Content.imageset/Content@2x.png"_s).colorType, opaqueForm);
    QCOMPARE(sets.header(icon + u"Front.imagestacklayer/Content.imageset/Content@1x.png"_s).size, QSize(400, 240));
    QCOMPARE(sets.picture(icon + u"Front.imagestacklayer/Content.imageset/Content@1x.png"_s).pixelColor(200, 120),
             QColor(255, 0, 0));
    QCOMPARE(
        sets.header(brand + u"App Icon - App Store.imagestack/Front.imagestacklayer/Content.imageset/Content@1x.png"_s)
            .size,
        QSize(1280, 768));
    QCOMPARE(sets.header(brand + u"Top Shelf Image Wide.imageset/Shelf@2x.png"_s).size, QSize(4640, 1440));
    QCOMPARE(sets.header(brand + u"Top Shelf Image Wide.imageset/Shelf@2x.png"_s).colorType, opaqueForm);
    const QString vision = u"visionOS/Assets.xcassets/AppIcon.solidimagestack/"_s;
    QCOMPARE(sets.json(vision + u"Middle.solidimagestacklayer/Content.imageset/Contents.json"_s)[u"images"_s]
                 .toArray()[0]
                 .toObject()[u"idiom"_s]
                 .toString(),
             u"vision"_s);
    QCOMPARE(sets.header(vision + u"Back.solidimagestacklayer/Content.imageset/Content@2x.png"_s).colorType,
             opaqueForm);
    QCOMPARE(sets.header(vision + u"Front.solidimagestacklayer/Content.imageset/Content@2x.png"_s).size,
             QSize(1024, 1024));
}

void PlatformSetsTest::composerBundle()
{
    TodaySources sources = sourcesOf(opaquePicture());
    sources.backgroundColor = QColor(255, 0, 0);
    sources.layers = {Artwork(opaquePicture()), Artwork(disk(600))};
    sources.dark = Artwork(disk(500, Qt::white));
    MadeSets sets({TodaySet::IconComposer}, sources, {u"Mine"_s});
    const QString bundle = u"IconComposer/Mine.icon/"_s;
    const QJsonObject icon = sets.json(bundle + u"icon.json"_s);
    QCOMPARE(icon[u"fill"_s].toObject()[u"solid"_s].toString(), u"extended-srgb:1.00000,0.00000,0.00000,1.00000"_s);
    const QJsonArray layers = icon[u"groups"_s].toArray()[0].toObject()[u"layers"_s].toArray();
    QCOMPARE(layers.size(), 2);
    QCOMPARE(layers[1].toObject()[u"image-name"_s].toString(), u"Back.png"_s);
    const QJsonArray values = layers[0].toObject()[u"image-name-specializations"_s].toArray();
    QCOMPARE(values[0].toObject()[u"value"_s].toString(), u"Front.png"_s);
    QCOMPARE(values[1].toObject()[u"appearance"_s].toString(), u"dark"_s);
    QCOMPARE(sets.files(), (QStringList{bundle + u"Assets/Back.png"_s, bundle + u"Assets/Dark.png"_s,
                                        bundle + u"Assets/Front.png"_s, bundle + u"icon.json"_s}));
}

QTEST_APPLESS_MAIN(PlatformSetsTest)
#include "PlatformSetsTest.moc"
