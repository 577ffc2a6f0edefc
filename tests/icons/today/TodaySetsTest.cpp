// SPDX-License-Identifier: MIT
#include "MadeSets.h"
#include "icons/today/AndroidFigures.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/LinuxSizes.h"
#include "icons/today/TodayExport.h"
#include "icons/today/UncertainFigures.h"
#include "pictures/PictureReader.h"
#include "pictures/ico/IcoReader.h"
#include "pictures/png/PngHeader.h"
#include "pictures/scaling/PicturePlanes.h"
#include "tests/doubles/FilesOnDisk.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

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
    for (const QJsonValue value : images) {
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
