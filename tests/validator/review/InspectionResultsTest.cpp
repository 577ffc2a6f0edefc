// SPDX-License-Identifier: MIT
#include "validator/review/InspectionResults.h"

#include <QCborMap>
#include <QCborValue>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

GatheredFacts someFacts()
{
    GatheredFacts gathered;
    PackageFacts &facts = gathered.facts;
    facts.ipaPath = u"/a/App.ipa"_s;
    facts.appContentFolderPath = u"Documents/app/Payload/App.app"_s;
    facts.appInfoPlist = QVariantMap{{u"name"_s, u"Ä"_s},
                                     {u"number"_s, 7LL},
                                     {u"real"_s, 1.5},
                                     {u"yes"_s, true},
                                     {u"list"_s, QVariantList{u"a"_s, QVariantMap{{u"b"_s, 1LL}}}}};
    facts.localizedInfo = {{u"de"_s, {{u"CFBundleDisplayName"_s, u"Lampe"_s}}}};
    facts.appLocalizations = QStringList{u"German"_s};
    facts.appImages = QStringList{u"Icon.png"_s};
    facts.provisioningProfile = u"profile"_s;
    facts.hasApp = true;
    facts.isMacApp = true;
    gathered.extraction = {Failure{FailureCode::TooLarge, facts.ipaPath, {}}, {u"damaged"_s}};
    gathered.found = FoundContent{FoundKind::ArchiveWithoutApp, {u"one"_s}, 9, true};
    return gathered;
}

ArtworkReport someArtwork()
{
    ArtworkReport artwork{{{57, 114}, {QSize(640, 960)}}, QImage(128, 128, QImage::Format_RGBA8888_Premultiplied)};
    artwork.appIcon.fill(QColor(10, 200, 30, 128));
    return artwork;
}

} // namespace

/// The results of an inspection on their way from one process to the other.
class InspectionResultsTest : public QObject
{
    Q_OBJECT

private slots:
    void bringsFactsOver()
    {
        const GatheredFacts sent = someFacts();
        const auto received = gatheredFactsIn(bytesOf(sent), sent.facts.ipaPath);
        QVERIFY(received.has_value());
        QCOMPARE(received->facts.appInfoPlist, sent.facts.appInfoPlist);
        QCOMPARE(received->facts.localizedInfo, sent.facts.localizedInfo);
        QCOMPARE(received->facts.appLocalizations, sent.facts.appLocalizations);
        QCOMPARE(received->facts.appImages, sent.facts.appImages);
        QCOMPARE(received->facts.provisioningProfile, sent.facts.provisioningProfile);
        QCOMPARE(received->facts.appContentFolderPath, sent.facts.appContentFolderPath);
        QVERIFY(received->facts.hasApp && received->facts.isMacApp);
        QVERIFY(!received->extraction.outcome);
        QCOMPARE(received->extraction.outcome.failure(), sent.extraction.outcome.failure());
        QCOMPARE(received->extraction.damagedEntries, sent.extraction.damagedEntries);
        QVERIFY(received->found && received->found->kind == sent.found->kind && received->found->hasPayload);
        QCOMPARE(received->found->names, sent.found->names);
        QCOMPARE(received->found->nameCount, sent.found->nameCount);
    }

    void bringsNothingOver()
    {
        const auto received = gatheredFactsIn(bytesOf(GatheredFacts()), u"/a"_s);
        QVERIFY(received && !received->facts.appInfoPlist && !received->facts.provisioningProfile && !received->found);
        QVERIFY(received->extraction.outcome.ok());
    }

    void bringsArtworkOver()
    {
        const ArtworkReport sent = someArtwork();
        const auto received = artworkIn(bytesOf(sent));
        QVERIFY(received.has_value());
        QCOMPARE(received->findings.missingIcons, sent.findings.missingIcons);
        QCOMPARE(received->findings.missingLaunchImages, sent.findings.missingLaunchImages);
        QCOMPARE(received->appIcon, sent.appIcon);
        QVERIFY(artworkIn(bytesOf(ArtworkReport()))->appIcon.isNull());
    }

    void takesNoIconThatLies_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QCborValue>("value");
        QTest::newRow("wider than its pixels") << u"width"_s << QCborValue(qint64{129});
        QTest::newRow("narrower than its pixels") << u"width"_s << QCborValue(qint64{127});
        QTest::newRow("no height") << u"height"_s << QCborValue(qint64{0});
        QTest::newRow("a negative height") << u"height"_s << QCborValue(qint64{-128});
        QTest::newRow("a product past all numbers") << u"height"_s << QCborValue(qint64{0x4000'0000'0000'0080});
        QTest::newRow("a fraction") << u"height"_s << QCborValue(128.0);
        QTest::newRow("a fraction past all numbers") << u"height"_s << QCborValue(-6.5e35);
    }
    void takesNoIconThatLies()
    {
        QFETCH(QString, key);
        QFETCH(QCborValue, value);
        QCborMap map = QCborValue::fromCbor(bytesOf(someArtwork())).toMap();
        QCborMap icon = map[u"icon"_s].toMap();
        icon[key] = value;
        map[u"icon"_s] = icon;
        const auto received = artworkIn(map.toCborValue().toCbor());
        QVERIFY(received && received->appIcon.isNull());
    }

    void takesNoCodeThatIsNone()
    {
        QCborMap map = QCborValue::fromCbor(bytesOf(someFacts())).toMap();
        map[u"failure"_s] = 4711;
        map[u"found"_s] = QCborMap{{u"kind"_s, -3}, {u"count"_s, -5}};
        const auto received = gatheredFactsIn(map.toCborValue().toCbor(), u"/a"_s);
        QVERIFY(received.has_value());
        QCOMPARE(received->extraction.outcome.failure().code, FailureCode::LeadsOutside);
        QVERIFY(received->found->kind == FoundKind::Nothing && received->found->nameCount == 0);
    }

    void survivesEveryCut()
    {
        const QByteArray facts = bytesOf(someFacts());
        for (qsizetype length = 0; length < facts.size(); ++length)
            QVERIFY2(!gatheredFactsIn(facts.first(length), u"/a"_s), qPrintable(QString::number(length)));
        const QByteArray artwork = bytesOf(someArtwork()).first(200);
        for (qsizetype length = 0; length < artwork.size(); ++length)
            QVERIFY2(!artworkIn(artwork.first(length)), qPrintable(QString::number(length)));
    }
};

QTEST_GUILESS_MAIN(InspectionResultsTest)
#include "InspectionResultsTest.moc"
