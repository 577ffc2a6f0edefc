// SPDX-License-Identifier: MIT
#include "icons/check/IconCheck.h"
#include "UnsoundPictures.h"
#include "icons/check/CheckParts.h"
#include "icons/today/Motifs.h"
#include "icons/today/TodayExport.h"
#include "resources/Resources.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr char iosSet[] = "iOS/Assets.xcassets/AppIcon.appiconset/";
constexpr char layer[] = "Android/res/mipmap-xxxhdpi/ic_launcher_foreground.png";

/// Every set of a shape, written into a folder: what a check has nothing against.
bool writeEverySet(const QString &folder)
{
    TodaySources sources = sourcesOf(disk(900));
    sources.flatten = QColor(Qt::white);
    sources.layers = {Artwork(disk(1000, Qt::blue, Qt::white)), Artwork(disk(600))};
    const Motifs motifs(sources, MacForm::Body);
    QList<TodaySet> sets;
    for (const TodaySetInfo &info : todaySets)
        sets << info.set;
    const Result<FilePlan> plan = planSets(sets, motifs, {u"App"_s});
    return plan && writePlan(plan.value(), motifs, folder, {}).failures().isEmpty();
}

QStringList lines(const IconCheck &check)
{
    QStringList lines;
    for (const IconFinding &finding : check.findings)
        lines << QLatin1StringView(infoOf(finding.rule).id) + u' ' + finding.path + u' ' + finding.evidence.words();
    return lines;
}

/// The folder of a catalogue whose list is changed.
void changeList(const QString &folder, const std::function<void(QJsonObject &)> &change)
{
    const QString path = folder + u"/Contents.json"_s;
    QJsonObject list = readJson(path).value_or(QJsonObject());
    change(list);
    QVERIFY(replaceFile(path, QJsonDocument(list).toJson()));
}

/// What makes a sound tree unsound.
struct Change
{
    QString part; ///< the set's folder, within which it is
    std::function<void(const QString &folder)> make;
};

} // namespace

class IconCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rules();
    void whatIsWrittenIsSound();
    void faults_data();
    void faults();
    void evidenceInGerman_data();
    void evidenceInGerman();
    void severityOrder();
    void olderCatalogue();

private:
    QTemporaryDir m_sound;
};

void IconCheckTest::initTestCase()
{
    QVERIFY(writeEverySet(m_sound.path()));
}

void IconCheckTest::rules()
{
    QSet<QString> ids;
    for (const IconRuleInfo &info : iconRules) {
        QCOMPARE(info.rule, static_cast<IconRule>(&info - iconRules.data()));
        ids << QLatin1StringView(info.id);
    }
    QCOMPARE(ids.size(), static_cast<qsizetype>(iconRules.size()));
}

void IconCheckTest::whatIsWrittenIsSound()
{
    const Result<IconCheck> check = checkIcons(m_sound.path());
    QVERIFY(check.ok());
    QCOMPARE(lines(check.value()), QStringList());
    for (const char *part : {"AppIcon.appiconset", "solidimagestack", "brandassets", "App.icon", "Android/res",
                             "-playstore.png", "site.webmanifest", "app.ico", "favicon.ico", "AppIcon.icns",
                             "apple-touch-icon.png", "hicolor/512x512/apps/App.png", "WideTile.scale-200.png"}) {
        QVERIFY2(std::any_of(check.value().checked.begin(), check.value().checked.end(),
                             [part](const QString &path) { return path.contains(QLatin1StringView(part)); }),
                 part);
    }
}

void IconCheckTest::faults_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("found"); ///< the ids
    const auto partOf = [](const char *path) { return QString::fromLatin1(path).section(u'/', 0, 0); };
    const auto put = [partOf](const char *name, QByteArray content) -> Change {
        return {partOf(name), [name, content](const QString &folder) {
                    QVERIFY(replaceFile(folder + u'/' + QLatin1StringView(name), content));
                }};
    };
    const auto drop = [partOf](const char *name) -> Change {
        return {partOf(name),
                [name](const QString &folder) { QVERIFY(QFile::remove(folder + u'/' + QLatin1StringView(name))); }};
    };
    const auto change = [partOf](std::function<void(QJsonObject &)> edit) -> Change {
        return {partOf(iosSet),
                [edit](const QString &folder) { changeList(folder + u'/' + QLatin1StringView(iosSet), edit); }};
    };
    const auto changeImage = [change](int index, const char *key, const QJsonValue &value) {
        return change([index, key, value](QJsonObject &list) {
            QJsonArray images = list[u"images"_s].toArray();
            QJsonObject image = images[index].toObject();
            image[QLatin1StringView(key)] = value;
            images[index] = image;
            list[u"images"_s] = images;
        });
    };
    const char *light = "iOS/Assets.xcassets/AppIcon.appiconset/AppIcon.png";
    const char *tinted = "iOS/Assets.xcassets/AppIcon.appiconset/AppIcon-Tinted.png";
    const char *iosList = "iOS/Assets.xcassets/AppIcon.appiconset/Contents.json";
    const QByteArray sound = encodedOpaquePng(opaquePicture());
    QTest::newRow("no list") << drop(iosList) << QStringList{u"contents-unreadable"_s};
    QTest::newRow("broken list") << put(iosList, "{\"images\":") << QStringList{u"contents-unreadable"_s};
    QTest::newRow("list without images") << put(iosList, "{}") << QStringList{u"contents-unreadable"_s};
    QTest::newRow("missing picture") << drop(light) << QStringList{u"file-missing"_s};
    QTest::newRow("picture of no bytes") << put(light, "") << QStringList{u"picture-unreadable"_s};
    QTest::newRow("cut picture") << put(light, sound.first(5000)) << QStringList{u"picture-unreadable"_s};
    QTest::newRow("smaller picture") << put(light, encodedOpaquePng(opaquePicture(512)))
                                     << QStringList{u"wrong-size"_s};
    QTest::newRow("transparent picture") << put(light, encodedPng(disk(900)))
                                         << QStringList{u"store-icon-transparent"_s};
    QTest::newRow("opaque alpha channel") << put(light, encodedPng(opaquePicture())) << QStringList{u"alpha-channel"_s};
    QTest::newRow("jpeg") << put(light, jpegOf(1024)) << QStringList{u"foreign-format"_s};
    QTest::newRow("icns as png") << Change{u"iOS"_s,
                                           [light, this](const QString &folder) {
                                               QVERIFY(replaceFile(
                                                   folder + u'/' + QLatin1StringView(light),
                                                   contentOfFile(m_sound.filePath(u"macOS/AppIcon.icns"_s))));
                                           }}
                                 << QStringList{u"foreign-format"_s, u"store-icon-transparent"_s};
    QTest::newRow("palette") << put(light, palettePng(1024)) << QStringList{u"store-icon-colors"_s};
    QTest::newRow("display p3") << put(light, wideGamutPng(1024)) << QStringList{u"store-icon-colors"_s};
    QTest::newRow("deep") << put(light, deepPng(1024)) << QStringList{u"uncommon-pixels"_s};
    QTest::newRow("colored tinted") << put(tinted, sound) << QStringList{u"tinted-colors"_s};
    QTest::newRow("transparent tinted") << put(tinted, encodedPng(disk(900, Qt::white)))
                                        << QStringList{u"icon-transparent"_s};
    QTest::newRow("unassigned") << put("iOS/Assets.xcassets/AppIcon.appiconset/old.png", sound)
                                << QStringList{u"unassigned-file"_s};
    QTest::newRow("outside") << changeImage(0, "filename", u"../../../secret.png"_s)
                             << QStringList{u"file-outside"_s, u"store-icon-missing"_s, u"unassigned-file"_s};
    QTest::newRow("upper case platform") << changeImage(1, "platform", u"iOS"_s) << QStringList{u"platform-name"_s};
    QTest::newRow("one slot twice") << changeImage(1, "appearances", QJsonValue::Undefined)
                                    << QStringList{u"appearance-missing"_s, u"duplicate-slot"_s,
                                                   u"store-icon-transparent"_s};
    QTest::newRow("empty slots") << Change{u"iOS"_s,
                                           [=](const QString &folder) {
                                               changeImage(1, "filename", QJsonValue::Undefined).make(folder);
                                               QVERIFY(QFile::remove(folder + u'/' + QLatin1StringView(iosSet) +
                                                                     u"AppIcon-Dark.png"_s));
                                           }}
                                 << QStringList{u"slot-empty"_s};
    QTest::newRow("no slots") << change([](QJsonObject &list) {
        list[u"images"_s] = QJsonArray();
    }) << QStringList{u"store-icon-missing"_s, u"unassigned-file"_s, u"unassigned-file"_s, u"unassigned-file"_s};
    QTest::newRow("no store icon") << Change{u"iOS"_s,
                                             [=](const QString &folder) {
                                                 changeImage(0, "filename", QJsonValue::Undefined).make(folder);
                                                 QVERIFY(QFile::remove(folder + u'/' + QLatin1StringView(light)));
                                             }}
                                   << QStringList{u"slot-empty"_s, u"store-icon-missing"_s};

    QTest::newRow("layer of another size")
        << put(layer, encodedPng(disk(600, Qt::red, Qt::transparent, 400))) << QStringList{u"wrong-size"_s};
    QTest::newRow("beyond the safe zone")
        << put(layer, encodedPng(disk(700, Qt::red, Qt::transparent, 432))) << QStringList{u"outside-safe-zone"_s};
    QTest::newRow("resource that is not there")
        << Change{u"Android"_s,
                  [](const QString &folder) {
                      QVERIFY(QFile::remove(folder + u"/Android/res/values/ic_launcher_background.xml"_s));
                  }}
        << QStringList{u"resource-missing"_s, u"resource-missing"_s};
    QTest::newRow("no monochrome")
        << Change{u"Android"_s,
                  [](const QString &folder) {
                      for (const QString &name : {u"ic_launcher"_s, u"ic_launcher_round"_s}) {
                          const QString path = folder + u"/Android/res/mipmap-anydpi-v26/"_s + name + u".xml"_s;
                          QByteArray xml = contentOfFile(path);
                          const qsizetype at = xml.indexOf("    <monochrome");
                          xml.remove(at, xml.indexOf('\n', at) - at);
                          QVERIFY(replaceFile(path, xml));
                      }
                  }}
        << (QStringList{u"monochrome-missing"_s} + QStringList(5, u"unassigned-file"_s));
    QTest::newRow("opaque monochrome") << put("Android/res/mipmap-xxxhdpi/ic_launcher_monochrome.png",
                                              encodedPng(opaquePicture(432)))
                                       << QStringList{u"monochrome-opaque"_s};
    QTest::newRow("broken adaptive icon")
        << put("Android/res/mipmap-anydpi-v26/ic_launcher_round.xml", "<adaptive-icon>")
        << QStringList{u"contents-unreadable"_s};
    QTest::newRow("legacy icon of another size")
        << put("Android/res/mipmap-hdpi/ic_launcher.png", encodedPng(opaquePicture(49)))
        << QStringList{u"wrong-size"_s};
    QTest::newRow("transparent play picture")
        << put("Android/ic_launcher-playstore.png", encodedPng(disk(900, Qt::red, Qt::transparent, 512)))
        << QStringList{u"store-icon-transparent"_s};
    QTest::newRow("play picture with a palette")
        << put("Android/ic_launcher-playstore.png", palettePng(512)) << QStringList{u"play-icon-colors"_s};
    QTest::newRow("play picture of 16 bits a channel")
        << put("Android/ic_launcher-playstore.png", deepPng(512))
        << QStringList{u"play-icon-colors"_s, u"store-file-too-long"_s, u"uncommon-pixels"_s};
    QTest::newRow("long play picture") << put("Android/ic_launcher-playstore.png",
                                              encodedPng(opaquePicture(512)) + QByteArray(2 << 20, 'a'))
                                       << QStringList{u"store-file-too-long"_s};

    QTest::newRow("manifest of another size")
        << put("Web/icon-192.png", encodedPng(opaquePicture(512))) << QStringList{u"wrong-size"_s};
    QTest::newRow("manifest without its file") << drop("Web/maskable-192.png") << QStringList{u"file-missing"_s};
    QTest::newRow("maskable beyond its circle")
        << put("Web/maskable-512.png", encodedOpaquePng(opaquePicture(512))) << QStringList{u"outside-safe-zone"_s};
    QTest::newRow("transparent touch icon")
        << put("Web/apple-touch-icon.png", encodedPng(disk(900, Qt::red, Qt::transparent, 180)))
        << QStringList{u"icon-transparent"_s};
    QTest::newRow("any maskable") << put("Web/site.webmanifest",
                                         "{\"icons\":[{\"src\":\"maskable-512.png\",\"sizes\":\"512x512\","
                                         "\"purpose\":\"any maskable\"},{\"src\":\"https://a.example/b.png\"}]}")
                                  << QStringList{u"maskable-purpose"_s};
    QTest::newRow("manifest that climbs")
        << put("Web/site.webmanifest", "{\"icons\":[{\"src\":\"../iOS/a.png\"}]}") << QStringList{u"file-outside"_s};
    QTest::newRow("broken manifest") << put("Web/site.webmanifest", "icons") << QStringList{u"contents-unreadable"_s};

    QTest::newRow("broken ico") << put("Windows/app.ico", "MZ") << QStringList{u"icon-file-broken"_s};
    QTest::newRow("broken icns") << put("macOS/AppIcon.icns", "MZ") << QStringList{u"icon-file-broken"_s};
    QTest::newRow("icns without pictures")
        << put("macOS/AppIcon.icns", QByteArray("icns\0\0\0\x08", 8)) << QStringList{u"large-picture-missing"_s};
    QTest::newRow("asset of another size")
        << put("Windows/Assets/MedTile.scale-125.png", encodedPng(opaquePicture(187))) << QStringList{u"wrong-size"_s};
    QTest::newRow("theme icon of another size")
        << put("Linux/hicolor/22x22/apps/App.png", encodedPng(opaquePicture(24))) << QStringList{u"wrong-size"_s};

    const char *stack = "visionOS/Assets.xcassets/AppIcon.solidimagestack/";
    QTest::newRow("layer that is not there")
        << Change{u"visionOS"_s,
                  [stack](const QString &folder) {
                      QVERIFY(QDir(folder + u'/' + QLatin1StringView(stack) + u"Front.solidimagestacklayer"_s)
                                  .removeRecursively());
                  }}
        << QStringList{u"file-missing"_s};
    QTest::newRow("one layer") << Change{u"visionOS"_s,
                                         [stack](const QString &folder) {
                                             changeList(folder + u'/' + QLatin1StringView(stack),
                                                        [](QJsonObject &list) {
                                                            QJsonArray layers = list[u"layers"_s].toArray();
                                                            layers.removeFirst();
                                                            list[u"layers"_s] = layers;
                                                        });
                                         }}
                               << QStringList{u"layer-count"_s};
    QTest::newRow("shelf of another size")
        << put("tvOS/Assets.xcassets/App Icon & Top Shelf Image.brandassets/Top Shelf Image.imageset/Shelf@1x.png",
               encodedOpaquePng(opaquePicture(720)))
        << QStringList{u"wrong-size"_s};
    QTest::newRow("bundle without its picture")
        << drop("IconComposer/App.icon/Assets/Front.png") << QStringList{u"file-missing"_s};
    QTest::newRow("bundle with another picture")
        << put("IconComposer/App.icon/Assets/Old.png", sound) << QStringList{u"unassigned-file"_s};
}

void IconCheckTest::faults()
{
    const QTemporaryDir folder;
    QFETCH(Change, change);
    QVERIFY(linkTree(m_sound.filePath(change.part), folder.filePath(change.part)));
    change.make(folder.path());
    const Result<IconCheck> check = checkIcons(folder.path());
    QVERIFY(check.ok());
    QStringList ids;
    for (const IconFinding &finding : check.value().findings)
        ids << QLatin1StringView(infoOf(finding.rule).id);
    ids.sort();
    QFETCH(QStringList, found);
    QVERIFY2(ids == found, qPrintable(lines(check.value()).join(u'\n')));
}

void IconCheckTest::evidenceInGerman_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("evidence");
    const QString light = QLatin1StringView(iosSet) + u"AppIcon.png"_s;
    QTest::newRow("size") << light << encodedOpaquePng(opaquePicture(512))
                          << u"512 x 512 Pixel statt 1024 x 1024 Pixel"_s;
    QTest::newRow("palette") << light << palettePng(1024) << u"Farbpalette"_s;
    QTest::newRow("deep") << light << deepPng(1024) << u"16 Bit je Kanal"_s;
    QTest::newRow("safe zone") << u"Android/res/mipmap-xxxhdpi/ic_launcher_foreground.png"_s
                               << encodedPng(disk(700, Qt::red, Qt::transparent, 432)) << u"76 von 66 dp"_s;
    QTest::newRow("maskable") << u"Web/maskable-512.png"_s << encodedOpaquePng(opaquePicture(512))
                              << u"141 von 80 Prozent"_s;
    QTest::newRow("length") << u"Android/ic_launcher-playstore.png"_s
                            << QByteArray(encodedPng(opaquePicture(512)).leftJustified(2 << 20, 'a'))
                            << u"2097152 Byte"_s;
}

void IconCheckTest::evidenceInGerman()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    const QString part = file.section(u'/', 0, 0);
    QVERIFY(linkTree(m_sound.filePath(part), folder.filePath(part)));
    QVERIFY(replaceFile(folder.filePath(file), content));
    const Result<IconCheck> check = checkIcons(folder.path());
    QVERIFY(check.ok());
    QStringList found;
    installTexts(*qApp, QLocale(u"de_DE"_s));
    for (const IconFinding &finding : check.value().findings)
        found << finding.evidence.words();
    QFETCH(QString, evidence);
    QVERIFY2(found.contains(evidence), qPrintable(found.join(u'\n')));
}

void IconCheckTest::severityOrder()
{
    const QTemporaryDir folder;
    QVERIFY(putFile(folder.filePath(u"A.appiconset/Contents.json"_s),
                    "{\"images\":[{\"idiom\":\"universal\",\"platform\":\"ios\",\"size\":\"1024x1024\"},"
                    "{\"idiom\":\"universal\",\"platform\":\"ios\",\"size\":\"60x60\",\"scale\":\"2x\","
                    "\"filename\":\"no.png\"}]}"));
    QVERIFY(putFile(folder.filePath(u"A.appiconset/b.png"_s), ""));
    const IconCheck check = checkIcons(folder.path()).value();
    QVERIFY(check.has(FindingSeverity::Error) && check.has(FindingSeverity::Warning) &&
            check.has(FindingSeverity::Note));
    QVERIFY(std::is_sorted(check.findings.begin(), check.findings.end(),
                           [](const IconFinding &one, const IconFinding &other) {
                               return infoOf(one.rule).severity < infoOf(other.rule).severity;
                           }));
}

/// The form that templates of cross-platform kits hold: slots by device, and the store's.
void IconCheckTest::olderCatalogue()
{
    const QTemporaryDir folder;
    const QString set = folder.filePath(u"AppIcon.appiconset/"_s);
    QVERIFY(putFile(set + u"Contents.json"_s,
                    "{\"images\":[{\"size\":\"20x20\",\"idiom\":\"iphone\",\"filename\":\"a.png\",\"scale\":\"3x\"},"
                    "{\"size\":\"83.5x83.5\",\"idiom\":\"ipad\",\"filename\":\"b.png\",\"scale\":\"2x\"},"
                    "{\"size\":\"20x20\",\"idiom\":\"ipad\",\"filename\":\"a.png\",\"scale\":\"3x\"},"
                    "{\"size\":\"1024x1024\",\"idiom\":\"ios-marketing\",\"filename\":\"c.png\",\"scale\":\"1x\"}]}"));
    QVERIFY(putFile(set + u"a.png"_s, encodedOpaquePng(opaquePicture(60))));
    QVERIFY(putFile(set + u"b.png"_s, encodedOpaquePng(opaquePicture(167))));
    QVERIFY(putFile(set + u"c.png"_s, encodedOpaquePng(opaquePicture(1024))));
    QCOMPARE(lines(checkIcons(folder.path()).value()), QStringList());
}

QTEST_GUILESS_MAIN(IconCheckTest)

#include "IconCheckTest.moc"
