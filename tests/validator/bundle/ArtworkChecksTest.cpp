// SPDX-License-Identifier: MIT
#include "validator/bundle/ArtworkChecks.h"
#include "validator/bundle/iPadData.h"
#include "validator/bundle/iPhoneData.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QList<QSize> squares(const QList<int> &edges)
{
    QList<QSize> sizes;
    for (const int edge : edges)
        sizes += QSize(edge, edge);
    return sizes;
}

} // namespace

class ArtworkChecksTest : public QObject
{
    Q_OBJECT

private slots:
    void reportsMissingIcons_data()
    {
        QTest::addColumn<PlatformType>("platform");
        QTest::addColumn<QList<QSize>>("sizes");
        QTest::addColumn<QList<int>>("missing");
        const QList<int> none;
        const QList<int> phone = iPhoneData().icons();
        QTest::newRow("iPhone with 57 only")
            << PlatformType::Phone << squares({57}) << QList<int>{114, 60, 120, 29, 58, 40, 80, 512, 1024};
        QTest::newRow("iPhone with all") << PlatformType::Phone << squares(phone) << none;
        QTest::newRow("iPhone with none")
            << PlatformType::Phone << QList<QSize>() << QList<int>{57, 114, 60, 120, 29, 58, 40, 80, 512, 1024};
        QTest::newRow("iPad with none") << PlatformType::Pad << QList<QSize>()
                                        << QList<int>{72, 144, 76, 152, 29, 58, 40, 80, 50, 100, 512, 1024};
        QTest::newRow("universal with none")
            << PlatformType::Universal << QList<QSize>()
            << QList<int>{57, 114, 60, 120, 29, 58, 40, 80, 512, 1024, 72, 144, 76, 152};
        QTest::newRow("universal without 72 and 144")
            << PlatformType::Universal << squares(phone + QList<int>{76, 152}) << QList<int>{72, 144};
        QTest::newRow("a picture that is not square satisfies nothing")
            << PlatformType::Phone << QList<QSize>(squares(phone).sliced(1)) + QList<QSize>{{57, 58}, {58, 57}}
            << QList<int>{57};
        QTest::newRow("what is no picture satisfies nothing")
            << PlatformType::Phone << squares(phone.sliced(1)) + QList<QSize>{QSize()} << QList<int>{57};
        QTest::newRow("no platform") << PlatformType::None << QList<QSize>() << none;
    }
    void reportsMissingIcons()
    {
        QFETCH(PlatformType, platform);
        QFETCH(QList<QSize>, sizes);
        QFETCH(QList<int>, missing);
        // As sizes: when Qt compares empty lists of numbers, it passes null pointers to memcmp, which a sanitizer
        // reports.
        QCOMPARE(squares(missingIcons(platform, sizes)), squares(missing));
    }

    void reportsMissingLaunchImages_data()
    {
        QTest::addColumn<PlatformType>("platform");
        QTest::addColumn<QList<QSize>>("sizes");
        QTest::addColumn<QList<QSize>>("missing");
        const QList<QSize> none;
        const QList<QSize> phone{{640, 960}, {960, 640}, {640, 1136}, {1136, 640}, {320, 480}, {480, 320}};
        const QList<QSize> pad{{768, 1004}, {1024, 748}, {1536, 2008}, {2048, 1496},
                               {768, 1024}, {1024, 768}, {1536, 2048}, {2048, 1536}};
        QTest::newRow("iPhone with 640x1136") << PlatformType::Phone << QList<QSize>{{640, 1136}} << none;
        QTest::newRow("iPhone with 1136x640") << PlatformType::Phone << QList<QSize>{{1136, 640}} << none;
        QTest::newRow("iPhone with none") << PlatformType::Phone << none << phone;
        QTest::newRow("iPhone with an iPad's") << PlatformType::Phone << pad << phone;
        QTest::newRow("one pixel off") << PlatformType::Phone << QList<QSize>{{640, 1137}, {641, 1136}} << phone;
        QTest::newRow("iPad with none") << PlatformType::Pad << none << pad;
        QTest::newRow("iPad with its last") << PlatformType::Pad << QList<QSize>{{2048, 1536}} << none;
        QTest::newRow("universal with none") << PlatformType::Universal << none << phone + pad;
        QTest::newRow("universal with one of the iPad's")
            << PlatformType::Universal << QList<QSize>{{768, 1004}} << none;
        QTest::newRow("no platform") << PlatformType::None << none << none;
    }
    void reportsMissingLaunchImages()
    {
        QFETCH(PlatformType, platform);
        QFETCH(QList<QSize>, sizes);
        QTEST(missingLaunchImages(platform, sizes), "missing");
    }

    void choosesCandidatesByName_data()
    {
        QTest::addColumn<bool>("icon");
        QTest::addColumn<bool>("launchImage");
        QTest::newRow("icon.png") << true << false;
        QTest::newRow("AppIcon60x60@2x.png") << true << false;
        QTest::newRow("iTunesArtwork") << true << false;
        QTest::newRow("iTunesArtwork@2x") << true << false;
        QTest::newRow("logo.png") << false << false;
        QTest::newRow("ICON.png") << false << false;
        QTest::newRow("itunesartwork.png") << false << false;
        QTest::newRow("Default@2x.png") << false << true;
        QTest::newRow("my-default.png") << false << true;
        QTest::newRow("DEFAULT.png") << false << false;
        QTest::newRow("default-icon.png") << true << true;
    }
    void choosesCandidatesByName()
    {
        const QStringList names{QString::fromUtf8(QTest::currentDataTag())};
        QTEST(!iconCandidates(names).isEmpty(), "icon");
        QTEST(!launchImageCandidates(names).isEmpty(), "launchImage");
    }

    void keepsCandidatesInTheirOrder()
    {
        const QStringList names{u"z icon"_s, u"Default"_s, u"a Icon"_s};
        QCOMPARE(iconCandidates(names), (QStringList{u"z icon"_s, u"a Icon"_s}));
    }

    void answersFreshTables() { QCOMPARE(iPadData().universalIcons(), (QList<int>{72, 144, 76, 152})); }
};

QTEST_GUILESS_MAIN(ArtworkChecksTest)
#include "ArtworkChecksTest.moc"
