// SPDX-License-Identifier: MIT
#include "TodayPictures.h"
#include "icons/today/AndroidFigures.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/ContentExtent.h"
#include "icons/today/LinuxSizes.h"
#include "icons/today/Motifs.h"
#include "icons/today/PictureWorkshop.h"
#include "icons/today/TodayExport.h"
#include "icons/today/UncertainFigures.h"
#include "icons/today/WindowsAssets.h"
#include "pictures/PictureReader.h"
#include "pictures/ico/IcoReader.h"
#include "pictures/png/PngHeader.h"
#include "pictures/scaling/PicturePlanes.h"
#include "tests/doubles/FilesOnDisk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QList<TodaySet> commonSets()
{
    QList<TodaySet> sets;
    for (const TodaySetInfo &info : todaySets) {
        if (info.isCommon)
            sets << info.set;
    }
    return sets;
}

/// Sets as they would be written; a file is made when it is asked for.
class MadeSets
{
public:
    MadeSets(const QList<TodaySet> &sets, const TodaySources &sources, const SetOptions &options = {u"App"_s},
             MacForm macForm = MacForm::Body)
        : motifs(sources, macForm), m_workshop(motifs)
    {
        const Result<FilePlan> planned = planSets(sets, motifs, options);
        if (planned)
            plan = planned.value();
        else
            failure = planned.failure();
    }

    /// Empty for a file that is not planned.
    QByteArray content(const QString &path)
    {
        for (const PlannedFile &file : plan.files) {
            if (file.path == path)
                return plannedBytes(file, m_workshop).value();
        }
        return {};
    }
    QStringList files() const
    {
        QStringList paths;
        for (const PlannedFile &file : plan.files)
            paths << file.path;
        paths.sort();
        return paths;
    }
    QImage picture(const QString &name)
    {
        const Result<QImage> read = readPicture(content(name), name);
        return read ? read.value() : QImage();
    }
    PngHeader header(const QString &name) { return pngHeader(content(name)).value_or(PngHeader{}); }
    QJsonObject json(const QString &name) { return QJsonDocument::fromJson(content(name)).object(); }
    bool says(Derivation derivation) const
    {
        return std::any_of(plan.derived.begin(), plan.derived.end(),
                           [derivation](const Derived &one) { return one.derivation == derivation; });
    }

    Motifs motifs;
    FilePlan plan;
    std::optional<Failure> failure;

private:
    PictureWorkshop m_workshop;
};

constexpr int opaqueForm = 2;
constexpr int transparentForm = 6;

} // namespace

class TodaySetsTest : public QObject
{
    Q_OBJECT

private slots:
    void tables();
    void everyFileIsWrittenInItsSize_data();
    void everyFileIsWrittenInItsSize();
    void filesOfASet_data();
    void filesOfASet();
    void sameBytesOnEveryRun();
    void iosForms_data();
    void iosForms();
    void iosAppearances();
    void transparencyIsRefused_data();
    void transparencyIsRefused();
    void transparencyIsFlattened();
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
    void drawingsAreKept();
};

void TodaySetsTest::tables()
{
    QSet<QString> names;
    for (const TodaySetInfo &info : todaySets)
        names << QLatin1StringView(info.commandName);
    QCOMPARE(names.size(), static_cast<qsizetype>(todaySets.size()));
    QCOMPARE(commonSets().size(), 7);
    QSet<QString> uncertain;
    for (const UncertainFigure &figure : uncertainFigures)
        uncertain << QLatin1StringView(figure.id);
    QCOMPARE(uncertain.size(), static_cast<qsizetype>(uncertainFigures.size()));
    const QList<int> iosPixels = {40, 60, 58, 87, 76, 114, 80, 120, 120, 180, 128, 192, 136, 152, 167, 1024};
    for (std::size_t index = 0; index < iosSlots.size(); ++index)
        QCOMPARE(iosSlots[index].pixels(), iosPixels[static_cast<qsizetype>(index)]);
    QCOMPARE(lowDensity.pixels(legacyIconDp), 36);
    QCOMPARE(lowDensity.pixels(adaptiveLayerDp), 81);
    for (const DerivationText &text : derivationTexts)
        QCOMPARE(text.derivation, static_cast<Derivation>(&text - derivationTexts.data()));
}

void TodaySetsTest::everyFileIsWrittenInItsSize_data()
{
    QTest::addColumn<QImage>("icon");
    QTest::newRow("photo") << opaquePicture();
    QTest::newRow("shape") << disk(900);
}

void TodaySetsTest::everyFileIsWrittenInItsSize()
{
    QFETCH(QImage, icon);
    TodaySources sources = sourcesOf(icon);
    sources.flatten = QColor(10, 20, 30);
    MadeSets sets(commonSets(), sources);
    QVERIFY(!sets.failure);
    const QTemporaryDir folder;
    const TodayExport result = writePlan(sets.plan, sets.motifs, folder.path(), {});
    QVERIFY(result.failures().isEmpty());
    QStringList planned;
    for (qsizetype index = 0; index < sets.plan.files.size(); ++index) {
        const PlannedFile &file = sets.plan.files[index];
        planned << file.path;
        const QByteArray bytes = contentOfFile(folder.filePath(file.path));
        QVERIFY2(!bytes.isEmpty(), qPrintable(file.path));
        QCOMPARE(result.files[index].bytes, bytes.size());
        QCOMPARE(result.files[index].path, folder.filePath(file.path));
        if (file.kind == FileKind::Picture) {
            const PictureRecipe &recipe = file.pictures.front();
            const auto header = pngHeader(bytes);
            QVERIFY(header.has_value());
            QCOMPARE(header->size, QSize(recipe.width, recipe.height));
            QCOMPARE(header->colorType, recipe.form == PictureForm::Opaque ? opaqueForm : transparentForm);
            QVERIFY2(readPicture(bytes, {}).ok(), qPrintable(file.path));
        } else if (file.kind == FileKind::Ico) {
            const auto entries = readIcoEntries(bytes);
            QVERIFY(entries.has_value());
            QCOMPARE(entries->size(), file.pictures.size());
            for (std::size_t entry = 0; entry < entries->size(); ++entry) {
                QCOMPARE((*entries)[entry].size.width(), file.pictures[entry].edge);
                QCOMPARE((*entries)[entry].png, file.pictures[entry].edge == 256);
            }
        }
    }
    QCOMPARE(QSet<QString>(planned.begin(), planned.end()).size(), planned.size());
    planned.sort();
    QCOMPARE(filesBelowFolder(folder.path()), planned);
}

void TodaySetsTest::filesOfASet_data()
{
    QTest::addColumn<TodaySet>("set");
    QTest::addColumn<QImage>("icon");
    QTest::addColumn<int>("files");
    QTest::addColumn<QStringList>("some");
    const QImage photo = opaquePicture();
    QTest::newRow("ios of a photo") << TodaySet::Ios << photo << 4
                                    << QStringList{u"iOS/Assets.xcassets/Contents.json"_s,
                                                   u"iOS/Assets.xcassets/AppIcon.appiconset/Contents.json"_s,
                                                   u"iOS/Assets.xcassets/AppIcon.appiconset/AppIcon.png"_s,
                                                   u"iOS/Assets.xcassets/AppIcon.appiconset/AppIcon-Tinted.png"_s};
    QTest::newRow("ios of a shape") << TodaySet::Ios << disk(900) << 5
                                    << QStringList{u"iOS/Assets.xcassets/AppIcon.appiconset/AppIcon-Dark.png"_s};
    QTest::newRow("macos") << TodaySet::MacOs << photo << 13
                           << QStringList{u"macOS/AppIcon.icns"_s,
                                          u"macOS/Assets.xcassets/AppIcon.appiconset/icon_512x512@2x.png"_s};
    QTest::newRow("watchos") << TodaySet::WatchOs << photo << 3
                             << QStringList{u"watchOS/Assets.xcassets/AppIcon.appiconset/AppIcon.png"_s};
    QTest::newRow("adaptive of a photo") << TodaySet::Adaptive << photo << 1 + 2 + 1 + 5 + 5 + 5
                                         << QStringList{u"Android/ic_launcher-playstore.png"_s,
                                                        u"Android/res/values/ic_launcher_background.xml"_s,
                                                        u"Android/res/mipmap-anydpi-v26/ic_launcher_round.xml"_s,
                                                        u"Android/res/mipmap-xxxhdpi/ic_launcher_foreground.png"_s};
    QTest::newRow("adaptive of a shape") << TodaySet::Adaptive << disk(900) << 1 + 2 + 1 + 5 + 5 + 5 + 5 + 5
                                         << QStringList{u"Android/res/mipmap-mdpi/ic_launcher_monochrome.png"_s,
                                                        u"Android/res/drawable-hdpi/ic_notification.png"_s};
    QTest::newRow("web") << TodaySet::Web << photo << 8
                         << QStringList{u"Web/favicon.ico"_s,      u"Web/apple-touch-icon.png"_s,
                                        u"Web/icon-192.png"_s,     u"Web/icon-512.png"_s,
                                        u"Web/maskable-192.png"_s, u"Web/maskable-512.png"_s,
                                        u"Web/site.webmanifest"_s, u"Web/head.html"_s};
    QTest::newRow("windows of a photo") << TodaySet::Windows << photo << 1 + 7 * 5 + 42
                                        << QStringList{u"Windows/app.ico"_s};
    QTest::newRow("windows of a shape") << TodaySet::Windows << disk(900) << 1 + 8 * 5 + 42
                                        << QStringList{u"Windows/Assets/BadgeLogo.scale-400.png"_s};
    QTest::newRow("linux") << TodaySet::Linux << photo << 13 << QStringList{u"Linux/hicolor/16x16/apps/App.png"_s};
}

void TodaySetsTest::filesOfASet()
{
    QFETCH(TodaySet, set);
    QFETCH(QImage, icon);
    TodaySources sources = sourcesOf(icon);
    sources.flatten = QColor(Qt::white);
    MadeSets sets({set}, sources);
    const QStringList files = sets.files();
    QTEST(static_cast<int>(files.size()), "files");
    QFETCH(QStringList, some);
    for (const QString &file : some)
        QVERIFY2(files.contains(file), qPrintable(file));
}

void TodaySetsTest::sameBytesOnEveryRun()
{
    MadeSets one({TodaySet::Adaptive, TodaySet::Web, TodaySet::MacOs}, sourcesOf(opaquePicture()));
    MadeSets other({TodaySet::Adaptive, TodaySet::Web, TodaySet::MacOs}, sourcesOf(opaquePicture()));
    QCOMPARE(one.files(), other.files());
    for (const QString &file : one.files())
        QVERIFY2(one.content(file) == other.content(file), qPrintable(file));
}

void TodaySetsTest::iosForms_data()
{
    QTest::addColumn<IosForm>("form");
    QTest::addColumn<int>("count");
    QTest::newRow("one size") << IosForm::OneSize << 3;
    QTest::newRow("sizes") << IosForm::Sizes << 3 * 16;
}

void TodaySetsTest::iosForms()
{
    QFETCH(IosForm, form);
    TodaySources sources = sourcesOf(disk(900));
    sources.flatten = QColor(Qt::white);
    MadeSets sets({TodaySet::Ios}, sources, {u"App"_s, form});
    const QString folder = u"iOS/Assets.xcassets/AppIcon.appiconset/"_s;
    const QJsonObject contents = sets.json(folder + u"Contents.json"_s);
    QCOMPARE(contents[u"info"_s].toObject(), (QJsonObject{{u"author"_s, u"xcode"_s}, {u"version"_s, 1}}));
    QCOMPARE(sets.json(u"iOS/Assets.xcassets/Contents.json"_s).keys(), QStringList{u"info"_s});
    const QJsonArray images = contents[u"images"_s].toArray();
    QTEST(static_cast<int>(images.size()), "count");
    for (const QJsonValue &value : images) {
        const QJsonObject image = value.toObject();
        QCOMPARE(image[u"idiom"_s].toString(), u"universal"_s);
        QCOMPARE(image[u"platform"_s].toString(), u"ios"_s);
        const double points = image[u"size"_s].toString().section(u'x', 0, 0).toDouble();
        const QString scale = image[u"scale"_s].toString(u"1x"_s);
        QCOMPARE(image.contains(u"scale"_s), points != 1024);
        const int pixels = qRound(points * scale.chopped(1).toInt());
        QCOMPARE(sets.header(folder + image[u"filename"_s].toString()).size, QSize(pixels, pixels));
    }
}

void TodaySetsTest::iosAppearances()
{
    TodaySources sources = sourcesOf(disk(900, Qt::red));
    sources.flatten = QColor(0, 0, 255);
    MadeSets sets({TodaySet::Ios}, sources);
    const QString folder = u"iOS/Assets.xcassets/AppIcon.appiconset/"_s;
    QCOMPARE(sets.picture(folder + u"AppIcon.png"_s).pixelColor(0, 0), QColor(0, 0, 255));
    QCOMPARE(sets.picture(folder + u"AppIcon.png"_s).pixelColor(512, 512), QColor(255, 0, 0));
    QCOMPARE(sets.header(folder + u"AppIcon.png"_s).colorType, opaqueForm);
    QCOMPARE(sets.picture(folder + u"AppIcon-Dark.png"_s).pixelColor(0, 0).alpha(), 0);
    QCOMPARE(sets.picture(folder + u"AppIcon-Tinted.png"_s).pixelColor(0, 0), QColor(0, 0, 0));
    QCOMPARE(sets.picture(folder + u"AppIcon-Tinted.png"_s).pixelColor(512, 512), QColor(54, 54, 54));
    QCOMPARE(sets.header(folder + u"AppIcon-Tinted.png"_s).colorType, opaqueForm);
    for (const Derivation derivation :
         {Derivation::IconFlattened, Derivation::DarkIsIcon, Derivation::TintedFromIcon, Derivation::TintedOnBlack})
        QVERIFY(sets.says(derivation));

    TodaySources given = sourcesOf(opaquePicture());
    given.dark = Artwork(disk(500, Qt::green));
    given.tinted = Artwork(disk(500, Qt::white, Qt::black));
    MadeSets other({TodaySet::Ios}, given);
    QVERIFY(other.plan.derived.isEmpty());
    QCOMPARE(other.picture(folder + u"AppIcon-Dark.png"_s).pixelColor(512, 512), QColor(0, 255, 0));
    QCOMPARE(other.picture(folder + u"AppIcon-Tinted.png"_s).pixelColor(512, 512), QColor(255, 255, 255));
}

void TodaySetsTest::transparencyIsRefused_data()
{
    QTest::addColumn<TodaySet>("set");
    QTest::addColumn<bool>("refused");
    QTest::newRow("ios") << TodaySet::Ios << true;
    QTest::newRow("watchos") << TodaySet::WatchOs << true;
    QTest::newRow("adaptive") << TodaySet::Adaptive << true;
    QTest::newRow("macos") << TodaySet::MacOs << false;
    QTest::newRow("web") << TodaySet::Web << false;
    QTest::newRow("windows") << TodaySet::Windows << false;
    QTest::newRow("linux") << TodaySet::Linux << false;
}

void TodaySetsTest::transparencyIsRefused()
{
    QFETCH(TodaySet, set);
    MadeSets sets({set}, sourcesOf(disk(900)));
    QTEST(sets.failure.has_value(), "refused");
    if (sets.failure) {
        QCOMPARE(sets.failure->code, FailureCode::HasTransparency);
        QVERIFY(sets.files().isEmpty());
    }
}

void TodaySetsTest::transparencyIsFlattened()
{
    TodaySources sources = sourcesOf(disk(900));
    sources.flatten = QColor(0, 128, 0);
    MadeSets sets({TodaySet::WatchOs, TodaySet::Adaptive}, sources);
    const QString watch = u"watchOS/Assets.xcassets/AppIcon.appiconset/AppIcon.png"_s;
    QCOMPARE(sets.picture(watch).pixelColor(0, 0), QColor(0, 128, 0));
    const QString store = u"Android/ic_launcher-playstore.png"_s;
    QCOMPARE(sets.picture(store).pixelColor(0, 0), QColor(0, 128, 0));
    QCOMPARE(sets.header(store).colorType, transparentForm);
    QVERIFY(isOpaque(sets.picture(store)));
}

void TodaySetsTest::macGridIsKept()
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

void TodaySetsTest::macShadowIsThatOfTheShape()
{
    MadeSets sets({TodaySet::MacOs}, sourcesOf(disk(500)));
    const QImage picture = sets.picture(u"macOS/Assets.xcassets/AppIcon.appiconset/icon_512x512@2x.png"_s);
    QCOMPARE(picture.pixelColor(512, 512), QColor(255, 0, 0));
    QCOMPARE(picture.pixelColor(512, 800).alpha(), 0);
    QVERIFY(picture.pixelColor(512, 512 + 206 + 6).alpha() > 20);
}

void TodaySetsTest::icnsHoldsEveryPicture()
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

void TodaySetsTest::adaptiveLayers_data()
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

void TodaySetsTest::adaptiveLayers()
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

void TodaySetsTest::adaptiveBackgrounds_data()
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

void TodaySetsTest::adaptiveBackgrounds()
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

void TodaySetsTest::roundIconIsADisk()
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

void TodaySetsTest::monochromeIsWhite()
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

void TodaySetsTest::manifestNamesItsFiles()
{
    MadeSets sets({TodaySet::Web}, sourcesOf(opaquePicture()), {u"My \"App\""_s});
    const QJsonObject manifest = sets.json(u"Web/site.webmanifest"_s);
    QCOMPARE(manifest[u"name"_s].toString(), u"My \"App\""_s);
    const QJsonArray icons = manifest[u"icons"_s].toArray();
    QCOMPARE(icons.size(), 4);
    int maskable = 0;
    for (const QJsonValue &value : icons) {
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

void TodaySetsTest::maskableStaysInItsCircle()
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

void TodaySetsTest::contentStaysInTheSafeZone_data()
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
void TodaySetsTest::contentStaysInTheSafeZone()
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

void TodaySetsTest::windowsAssetsByTheirNames()
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

void TodaySetsTest::linuxTree()
{
    MadeSets sets({TodaySet::Linux}, sourcesOf(opaquePicture()), {u"org.example.App"_s});
    for (const int edge : hicolorSizes)
        QCOMPARE(sets.header(u"Linux/hicolor/%1x%1/apps/org.example.App.png"_s.arg(edge)).size, QSize(edge, edge));
    QVERIFY(sets.says(Derivation::ScalableLeftOut));
}

void TodaySetsTest::layersAreNeeded_data()
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

void TodaySetsTest::layersAreNeeded()
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

void TodaySetsTest::layeredStacks()
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

void TodaySetsTest::composerBundle()
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

void TodaySetsTest::drawingsAreKept()
{
    const QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\">"
                           "<path d=\"M0 0h5v10h-5z\"/></svg>";
    const Result<ReadSource> read = readTodaySource(svg, u"a.svg"_s, SourceFit::Exact);
    QVERIFY(read.ok());
    TodaySources sources;
    sources.icon = read.value().artwork;
    sources.monochrome = sources.icon;
    MadeSets sets({TodaySet::Web, TodaySet::Linux}, sources);
    QCOMPARE(sets.content(u"Web/favicon.svg"_s), svg);
    QCOMPARE(sets.content(u"Linux/hicolor/scalable/apps/App.svg"_s), svg);
    QCOMPARE(sets.content(u"Linux/hicolor/symbolic/apps/App-symbolic.svg"_s), svg);
    QVERIFY(sets.content(u"Web/head.html"_s).contains("favicon.svg"));
    // Drawn in each size, so that the edge in its middle stays sharp.
    const QImage small = sets.picture(u"Linux/hicolor/16x16/apps/App.png"_s);
    QCOMPARE(small.pixelColor(7, 8).alpha(), 255);
    QCOMPARE(small.pixelColor(8, 8).alpha(), 0);
}

QTEST_APPLESS_MAIN(TodaySetsTest)

#include "TodaySetsTest.moc"
