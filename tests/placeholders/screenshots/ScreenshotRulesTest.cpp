// SPDX-License-Identifier: MIT
#include "placeholders/screenshots/ScreenshotRules.h"

#include "foundation/WholeFile.h"
#include "resources/Resources.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QByteArray picture(QSize size, const char *format = "png", QImage::Format pixels = QImage::Format_RGB32)
{
    QImage image(size, pixels);
    image.fill(Qt::darkCyan);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

QByteArray pictureWithPalette(QSize size, int alpha)
{
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable({qRgba(0, 128, 128, alpha)});
    image.fill(0);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return buffer.data();
}

struct NamedPicture
{
    QString path;
    QByteArray bytes;
};

using Pictures = QList<NamedPicture>;

Pictures several(const QString &folder, int count, QSize size)
{
    Pictures pictures;
    const QByteArray bytes = picture(size);
    for (int number = 0; number < count; ++number)
        pictures << NamedPicture{folder + u"/%1.png"_s.arg(number, 2, 10, QLatin1Char('0')), bytes};
    return pictures;
}

/// A JPEG file of four inks, according to its frame's header.
QByteArray inkedJpeg()
{
    QByteArray bytes = picture({1320, 2868}, "jpeg");
    for (qsizetype at = 2; at + 9 < bytes.size();) {
        const auto marker = static_cast<uchar>(bytes[at + 1]);
        if (marker == 0xc0) {
            // One component more, and the header three bytes longer.
            bytes[at + 3] = static_cast<char>(bytes[at + 3] + 3);
            bytes[at + 9] = 4;
            return bytes.insert(at + 19, QByteArray("\x04\x11\x00", 3));
        }
        at += 2 + static_cast<uchar>(bytes[at + 2]) * 256 + static_cast<uchar>(bytes[at + 3]);
    }
    return {};
}

} // namespace

/// One picture, or folder of them, for every rule.
class ScreenshotRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { installTexts(*qApp, QLocale(u"en_GB"_s)); }
    void everyRuleIsSeen_data()
    {
        using Store = ScreenshotStore;
        using Stores = std::set<ScreenshotStore>;
        QTest::addColumn<Pictures>("pictures");
        QTest::addColumn<Stores>("stores");
        QTest::addColumn<QStringList>("findings");
        const QSize phone(1320, 2868);
        const QSize promoted(1080, 1920);
        const auto one = [](const char *path, const QByteArray &bytes) {
            return Pictures{{QString::fromLatin1(path), bytes}};
        };
        QTest::newRow("sound for the App Store") << several(u"en-US"_s, 3, phone) << Stores{} << QStringList{};
        QTest::newRow("sound for Play") << several(u"phoneScreenshots"_s, 3, promoted) << Stores{} << QStringList{};
        QTest::newRow("sound jpeg") << one("a.jpg", picture(phone, "jpeg")) << Stores{} << QStringList{};
        QTest::newRow("none") << Pictures{} << Stores{} << QStringList{u"screenshot.none |no picture"_s};
        QTest::newRow("no picture") << one("a.png", "text") << Stores{}
                                    << QStringList{u"screenshot.unreadable a.png|"_s};
        QTest::newRow("cut off") << one("a.png", picture(phone).chopped(40)) << Stores{}
                                 << QStringList{u"screenshot.unreadable a.png|"_s};
        QTest::newRow("webp") << one("a.webp", picture(phone, "webp")) << Stores{}
                              << QStringList{u"screenshot.format a.webp|webp"_s};
        QTest::newRow("webp by another name")
            << one("a.png", picture(phone, "webp")) << Stores{} << QStringList{u"screenshot.format a.png|webp"_s};
        QTest::newRow("a translucent color of a palette")
            << one("a.png", pictureWithPalette(phone, 128)) << Stores{}
            << QStringList{u"screenshot.alpha a.png|it has an alpha channel"_s};
        QTest::newRow("alpha") << one("a.png", picture(phone, "png", QImage::Format_ARGB32)) << Stores{}
                               << QStringList{u"screenshot.alpha a.png|it has an alpha channel"_s};
        QTest::newRow("grey") << one("a.png", picture(phone, "png", QImage::Format_Grayscale8)) << Stores{}
                              << QStringList{u"screenshot.rgb a.png|it has other channels"_s};
        QTest::newRow("inks") << one("a.jpg", inkedJpeg()) << Stores{}
                              << QStringList{u"screenshot.rgb a.jpg|it has other channels"_s};
        QTest::newRow("no store's size") << one("a.png", picture({100, 100})) << Stores{}
                                         << QStringList{u"screenshot.size a.png|100 x 100 pixels"_s};
        QTest::newRow("not the App Store's size") << several(u"s"_s, 1, promoted) << Stores{Store::AppStore}
                                                  << QStringList{u"appstore.size s/00.png|1080 x 1920 pixels"_s};
        QTest::newRow("eleven") << several(u"s"_s, 11, phone) << Stores{}
                                << QStringList{u"appstore.count s|11 of iPhone 6.9\""_s};
        QTest::newRow("small iPhones only")
            << several(u"s"_s, 2, {750, 1334}) << Stores{} << QStringList{u"appstore.iphone s|smaller screens only"_s};
        QTest::newRow("small iPads only")
            << several(u"s"_s, 2, {1536, 2048}) << Stores{} << QStringList{u"appstore.ipad s|smaller screens only"_s};
        QTest::newRow("too small for Play")
            << several(u"s"_s, 2, {300, 400}) << Stores{Store::Play}
            << QStringList{u"play.side s/00.png|300 x 400 pixels"_s, u"play.side s/01.png|300 x 400 pixels"_s,
                           u"play.promotion s|300 x 400 pixels"_s};
        QTest::newRow("too long for Play") << several(u"phoneScreenshots"_s, 2, phone) << Stores{}
                                           << QStringList{u"play.ratio phoneScreenshots/00.png|1320 x 2868 pixels"_s,
                                                          u"play.ratio phoneScreenshots/01.png|1320 x 2868 pixels"_s,
                                                          u"play.promotion phoneScreenshots|1320 x 2868 pixels"_s};
        QTest::newRow("a single one") << several(u"phoneScreenshots"_s, 1, promoted) << Stores{}
                                      << QStringList{u"play.fewest phoneScreenshots|1 screenshot"_s};
        QTest::newRow("nine") << several(u"phoneScreenshots"_s, 9, promoted) << Stores{}
                              << QStringList{u"play.most phoneScreenshots|9 screenshots"_s};
        QTest::newRow("not promoted") << several(u"phoneScreenshots"_s, 2, {1200, 1920}) << Stores{}
                                      << QStringList{u"play.promotion phoneScreenshots|1200 x 1920 pixels"_s};
        QTest::newRow("few of a tablet") << several(u"tenInchScreenshots"_s, 3, {1600, 2560}) << Stores{}
                                         << QStringList{u"play.tablet tenInchScreenshots|3 screenshots"_s};
        QTest::newRow("feature graphic") << one("images/featureGraphic.png", picture({1024, 512})) << Stores{}
                                         << QStringList{
                                                u"play.feature-graphic images/featureGraphic.png|1024 x 512 pixels"_s};
        const QSize feature(1024, 500);
        QTest::newRow("sound feature graphic")
            << one("featureGraphic.png", picture(feature)) << Stores{} << QStringList{};
        QTest::newRow("feature graphic with a palette")
            << one("featureGraphic.png", pictureWithPalette(feature, 255)) << Stores{}
            << QStringList{u"play.png-24 featureGraphic.png|palette"_s};
        const QByteArray deep = picture(promoted, "png", QImage::Format_RGBX64);
        QTest::newRow("16 bits a channel for Play")
            << Pictures{{u"phoneScreenshots/a.png"_s, deep}, {u"phoneScreenshots/b.png"_s, picture(promoted)}}
            << Stores{} << QStringList{u"play.png-24 phoneScreenshots/a.png|16 bits a channel"_s};
        QTest::newRow("a palette for the App Store")
            << one("a.png", pictureWithPalette(phone, 255)) << Stores{} << QStringList{};
    }
    void everyRuleIsSeen()
    {
        QFETCH(Pictures, pictures);
        QFETCH(std::set<ScreenshotStore>, stores);
        std::vector<ScreenshotFacts> facts;
        for (const NamedPicture &one : pictures)
            facts.push_back(screenshotFacts(one.bytes, one.path));
        QStringList findings;
        for (const ScreenshotFinding &finding : screenshotFindings(facts, stores)) {
            findings << QString(finding.rule->id) + u' ' + finding.path + u'|' + finding.evidence.words();
            m_seen.insert(finding.rule->id);
        }
        QTEST(findings, "findings");
    }

    /// This runs after the rows above.
    void noRuleIsLeftOut()
    {
        for (const ScreenshotRule &rule : screenshotRules()) {
            QVERIFY2(m_seen.contains(rule.id), rule.id.data());
            QVERIFY2(qtTrId(rule.titleKey) != QLatin1StringView(rule.titleKey), rule.titleKey);
            QVERIFY2(qtTrId(rule.fixKey) != QLatin1StringView(rule.fixKey), rule.fixKey);
        }
    }

    void theFindingsAreWordedInGerman()
    {
        QStringList english;
        for (const ScreenshotRule &rule : screenshotRules())
            english << qtTrId(rule.titleKey) << qtTrId(rule.fixKey);
        installTexts(*qApp, QLocale(u"de_DE"_s));
        for (const ScreenshotRule &rule : screenshotRules()) {
            QVERIFY2(!english.contains(qtTrId(rule.titleKey)), rule.titleKey);
            QVERIFY2(!english.contains(qtTrId(rule.fixKey)), rule.fixKey);
        }
        const auto findings = screenshotFindings({screenshotFacts(picture({300, 400}), u"a.png"_s)}, {});
        QCOMPARE(findings.front().evidence.words(), u"300 x 400 Pixel"_s);
        QCOMPARE(qtTrId(severityKey(findings.front().rule->severity)), u"Fehler"_s);
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void aFolderIsReadInOrder()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(u"b/.hidden"_s));
        for (const auto &name : {u"b/2.PNG"_s, u"a.png"_s, u"b/.hidden/x.png"_s, u"notes.txt"_s})
            QVERIFY(writeWholeFile(folder.path() + u'/' + name, picture({1320, 2868})).ok());
        const auto facts = readScreenshots(folder.path());
        QVERIFY(facts.ok());
        QStringList paths;
        for (const ScreenshotFacts &one : facts.value())
            paths << one.path;
        QCOMPARE(paths, (QStringList{u"a.png"_s, u"b/2.PNG"_s}));
        QCOMPARE(facts.value()[0].size, QSize(1320, 2868));
        QCOMPARE(readScreenshots(folder.path() + u"/a.png"_s).failure().code, FailureCode::NotAFolder);
        QCOMPARE(readScreenshots(folder.path() + u"/none"_s).failure().code, FailureCode::NotFound);
    }

private:
    QSet<QString> m_seen;
};

QTEST_GUILESS_MAIN(ScreenshotRulesTest)
#include "ScreenshotRulesTest.moc"
