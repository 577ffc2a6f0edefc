// SPDX-License-Identifier: MIT
#include "validator/bundle/PackageFacts.h"
#include "validator/bundle/MetadataChecks.h"

#include <QDateTime>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

PackageFacts withValue(const QString &key, const QVariant &value)
{
    PackageFacts facts;
    facts.appInfoPlist = QVariantMap();
    if (value.isValid())
        facts.appInfoPlist->insert(key, value);
    return facts;
}

const QVariant absent;

} // namespace

class PackageFactsTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTexts_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("shown");
        QTest::newRow("text") << QVariant(u"1.2"_s) << u"1.2"_s;
        QTest::newRow("empty text") << QVariant(u""_s) << QString();
        QTest::newRow("absent") << absent << QString();
        QTest::newRow("whole number") << QVariant(1337LL) << u"1337"_s;
        QTest::newRow("real") << QVariant(7.1) << u"7.1"_s;
        QTest::newRow("real of nine digits") << QVariant(1234.56789) << u"1234.56789"_s;
        QTest::newRow("real of fifteen digits") << QVariant(1.23456789012345) << u"1.23456789012345"_s;
        QTest::newRow("boolean") << QVariant(true) << u"1"_s;
        QTest::newRow("array") << QVariant(QVariantList{u"1.2"_s}) << QString();
        QTest::newRow("dictionary") << QVariant(QVariantMap{{u"a"_s, 1}}) << QString();
        QTest::newRow("data") << QVariant("1.2"_ba) << QString();
        QTest::newRow("date") << QVariant(QDateTime(QDate(2014, 1, 1), QTime())) << QString();
    }
    void showsTexts()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, shown);
        QCOMPARE(withValue(u"CFBundleDisplayName"_s, value).appName(), shown);
        QCOMPARE(withValue(u"CFBundleVersion"_s, value).appVersion(), shown);
        QCOMPARE(withValue(u"CFBundleIdentifier"_s, value).appBundleIdentifier(), shown);
        QCOMPARE(withValue(u"MinimumOSVersion"_s, value).appMinimumOSVersion(), shown);
        QCOMPARE(withValue(u"FacebookAppID"_s, value).appFacebookID().value_or(QString()), shown);
    }

    void fallsBackToOtherNames()
    {
        PackageFacts facts = withValue(u"CFBundleExecutable"_s, u"lamp"_s);
        QCOMPARE(facts.shownName(), u"lamp"_s);
        facts.appInfoPlist->insert(u"CFBundleName"_s, u"Lamp"_s);
        QCOMPARE(facts.shownName(), u"Lamp"_s);
        facts.appInfoPlist->insert(u"CFBundleDisplayName"_s, QString());
        QCOMPARE(facts.shownName(), u"Lamp"_s);
        facts.appInfoPlist->insert(u"CFBundleDisplayName"_s, u"Table lamp"_s);
        QCOMPARE(facts.shownName(), u"Table lamp"_s);
    }

    void namesOtherDevices_data()
    {
        QTest::addColumn<QVariant>("family");
        QTest::addColumn<QStringList>("built");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QVariant &family, const QStringList &built, const QString &shown) {
            QTest::newRow(name) << family << built << shown;
        };
        const QStringList phone{u"iPhoneOS"_s};
        row("phone", QVariantList{1LL}, phone, u"iPhone"_s);
        row("phone and pad", QVariantList{1LL, 2LL}, phone, u"iPhone & iPad"_s);
        row("no family", absent, phone, u"iPad"_s);
        row("an unknown family", QVariantList{9LL}, phone, u"iPad"_s);
        row("television", QVariantList{3LL}, {u"AppleTVOS"_s}, u"Apple TV"_s);
        row("television as a number", 3LL, {}, u"Apple TV"_s);
        row("television as a text", u"3"_s, {}, u"Apple TV"_s);
        row("television by its platform only", absent, {u"AppleTVOS"_s}, u"Apple TV"_s);
        row("watch", QVariantList{4LL}, {u"WatchOS"_s}, u"Apple Watch"_s);
        row("headset", QVariantList{7LL}, {u"XROS"_s}, u"Apple Vision"_s);
        row("phone, pad and headset", QVariantList{1LL, 2LL, 7LL}, phone, u"iPhone, iPad & Apple Vision"_s);
        row("pad and Mac", QVariantList{2LL, 6LL}, {u"MacOSX"_s}, u"iPad & Mac"_s);
        row("Mac", absent, {u"MacOSX"_s}, u"Mac"_s);
    }
    void namesOtherDevices()
    {
        QFETCH(QVariant, family);
        QFETCH(QStringList, built);
        PackageFacts facts = withValue(u"UIDeviceFamily"_s, family);
        facts.appInfoPlist->insert(u"CFBundleSupportedPlatforms"_s, QVariantList(built.begin(), built.end()));
        QTEST(facts.shownPlatform(), "shown");
        QVERIFY(PackageFacts().shownPlatform().isEmpty());
    }

    void fallsBackToTheLanguagesNames_data()
    {
        QTest::addColumn<QVariantMap>("info");
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *name, const QVariantMap &info, const QStringList &languages,
                            const QString &shown) { QTest::newRow(name) << info << languages << shown; };
        const QString region = u"CFBundleDevelopmentRegion"_s;
        const QVariantMap bare{{u"CFBundleExecutable"_s, u"lamp"_s}};
        row("no language", bare, {}, u"lamp"_s);
        row("the only language", bare, {u"fr"_s}, u"CFBundleDisplayName in fr"_s);
        row("the development region first", {{region, u"fr"_s}}, {u"Base"_s, u"de"_s, u"en"_s, u"fr"_s},
            u"CFBundleDisplayName in fr"_s);
        row("then the base", {{region, u"it"_s}}, {u"Base"_s, u"de"_s, u"en"_s}, u"CFBundleDisplayName in Base"_s);
        row("then English", {}, {u"de"_s, u"en"_s, u"fr"_s}, u"CFBundleDisplayName in en"_s);
        row("English by its old name", {}, {u"Dutch"_s, u"English"_s}, u"CFBundleDisplayName in English"_s);
        row("an own name before all", {{u"CFBundleDisplayName"_s, u"Lamp"_s}}, {u"en"_s}, u"Lamp"_s);
        row("an empty own name", {{u"CFBundleDisplayName"_s, u""_s}}, {u"en"_s}, u"CFBundleDisplayName in en"_s);
        row("a display name before the bundle's", {{u"CFBundleName"_s, u"Lamp"_s}}, {u"en"_s},
            u"CFBundleDisplayName in en"_s);
        row("the bundle's name in a language", bare, {u"en-name"_s}, u"CFBundleName in en-name"_s);
    }
    void fallsBackToTheLanguagesNames()
    {
        QFETCH(QVariantMap, info);
        QFETCH(QStringList, languages);
        PackageFacts facts;
        facts.appInfoPlist = info;
        for (const QString &language : languages) {
            const QString key = language.endsWith("-name"_L1) ? u"CFBundleName"_s : u"CFBundleDisplayName"_s;
            facts.localizedInfo[language].insert(key, key + u" in "_s + language);
        }
        QTEST(facts.shownName(), "name");
    }

    void namesThePlatform_data()
    {
        QTest::addColumn<QVariant>("family");
        QTest::addColumn<QString>("platform");
        QTest::addColumn<PlatformType>("type");
        const auto row = [](const char *name, const QVariant &family, const QString &platform, PlatformType type) {
            QTest::newRow(name) << family << platform << type;
        };
        const QString phone = u"iPhone"_s;
        const QString pad = u"iPad"_s;
        row("1", QVariantList{1LL}, phone, PlatformType::Phone);
        row("2", QVariantList{2LL}, pad, PlatformType::Pad);
        row("1 and 2", QVariantList{1LL, 2LL}, u"iPhone & iPad"_s, PlatformType::Universal);
        row("2 and 1", QVariantList{2LL, 1LL}, u"iPhone & iPad"_s, PlatformType::Universal);
        row("three, of any kind", QVariantList{7LL, u"x"_s, QVariantMap()}, u"iPhone & iPad"_s,
            PlatformType::Universal);
        row("missing", absent, pad, PlatformType::Pad);
        row("empty", QVariantList(), pad, PlatformType::Pad);
        row("any other number", QVariantList{3LL}, pad, PlatformType::Pad);
        row("a text", QVariantList{u"1"_s}, phone, PlatformType::Phone);
        row("a dictionary inside", QVariantList{QVariantMap()}, pad, PlatformType::Pad);
        row("1 without array", 1LL, phone, PlatformType::Phone);
        row("2 without array", 2LL, pad, PlatformType::Pad);
        row("a dictionary", QVariantMap{{u"1"_s, 1}}, pad, PlatformType::Pad);
    }
    void namesThePlatform()
    {
        QFETCH(QVariant, family);
        const PackageFacts facts = withValue(u"UIDeviceFamily"_s, family);
        QTEST(facts.appPlatform(), "platform");
        QTEST(facts.appPlatformType(), "type");
    }

    void listsTheFirstTypesSchemes_data()
    {
        QTest::addColumn<QVariant>("types");
        QTest::addColumn<QString>("schemes");
        const auto type = [](const QVariant &schemes) { return QVariantMap{{u"CFBundleURLSchemes"_s, schemes}}; };
        const QVariantList two{u"a"_s, u"b"_s};
        const QString none = u"none"_s;
        QTest::newRow("one type") << QVariant(QVariantList{type(two)}) << u"a b"_s;
        QTest::newRow("only the first type") << QVariant(QVariantList{type(QVariantList{u"c"_s}), type(two)}) << u"c"_s;
        QTest::newRow("the first has none")
            << QVariant(QVariantList{QVariantMap{{u"CFBundleURLName"_s, u"n"_s}}, type(two)}) << none;
        QTest::newRow("absent") << absent << none;
        QTest::newRow("no types") << QVariant(QVariantList()) << none;
        QTest::newRow("types are a text") << QVariant(u"a"_s) << none;
        QTest::newRow("types are a dictionary") << QVariant(type(two)) << none;
        QTest::newRow("type is a text") << QVariant(QVariantList{u"a"_s}) << none;
        QTest::newRow("no schemes") << QVariant(QVariantList{type(QVariantList())}) << QString();
        QTest::newRow("a lone scheme") << QVariant(QVariantList{type(u"a"_s)}) << u"a"_s;
        QTest::newRow("schemes of other kinds")
            << QVariant(QVariantList{type(QVariantList{5LL, QVariantMap(), u"b"_s})}) << u"5 b"_s;
        QTest::newRow("schemes are a dictionary") << QVariant(QVariantList{type(QVariantMap())}) << QString();
    }
    void listsTheFirstTypesSchemes()
    {
        QFETCH(QVariant, types);
        QFETCH(QString, schemes);
        const auto found = withValue(u"CFBundleURLTypes"_s, types).appURLSchemes();
        QCOMPARE(found ? found->join(u' ') : u"none"_s, schemes);
        QCOMPARE(metadataVerdicts(withValue(u"CFBundleURLTypes"_s, types)).urlSchemesPresent,
                 schemes != u"none" && !schemes.isEmpty());
    }

    void readsTheMinimumVersionAsANumber_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<double>("number");
        QTest::newRow("7.0") << QVariant(u"7.0"_s) << 7.0;
        QTest::newRow("6.1.3") << QVariant(u"6.1.3"_s) << 6.1;
        QTest::newRow("10") << QVariant(u"10"_s) << 10.0;
        QTest::newRow("a real") << QVariant(7.0) << 7.0;
        QTest::newRow("words") << QVariant(u"newest"_s) << 0.0;
        QTest::newRow("absent") << absent << 0.0;
    }
    void readsTheMinimumVersionAsANumber()
    {
        QFETCH(QVariant, value);
        QTEST(withValue(u"MinimumOSVersion"_s, value).minimumOSNumber(), "number");
    }

    void knowsNothingWithoutPropertyList()
    {
        const PackageFacts facts;
        QVERIFY(facts.appName().isEmpty());
        QVERIFY(facts.appPlatform().isEmpty());
        QCOMPARE(facts.appPlatformType(), PlatformType::None);
        QVERIFY(!facts.appFacebookID());
        QVERIFY(!facts.appURLSchemes());
    }

    void judgesTheIdentifierByTheProfilesText_data()
    {
        QTest::addColumn<QVariant>("identifier");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<bool>("valid");
        const QString profile = u"<string>ABCDE.com.example.app</string>"_s;
        QTest::newRow("the same") << QVariant(u"com.example.app"_s) << profile << true;
        QTest::newRow("part of it") << QVariant(u"com.example"_s) << profile << true;
        QTest::newRow("longer") << QVariant(u"com.example.app2"_s) << profile << false;
        QTest::newRow("other case") << QVariant(u"com.Example.app"_s) << profile << false;
        QTest::newRow("wildcard profile") << QVariant(u"com.example.app"_s) << u"<string>ABCDE.*</string>"_s << false;
        QTest::newRow("no profile") << QVariant(u"com.example.app"_s) << u""_s << false;
        QTest::newRow("a profile never received") << QVariant(u"com.example.app"_s) << QString() << true;
        QTest::newRow("no identifier") << absent << profile << false;
    }
    void judgesTheIdentifierByTheProfilesText()
    {
        QFETCH(QVariant, identifier);
        QFETCH(QString, profile);
        PackageFacts facts = withValue(u"CFBundleIdentifier"_s, identifier);
        if (!profile.isNull())
            facts.provisioningProfile = profile;
        QTEST(metadataVerdicts(facts).bundleIdentifierValid, "valid");
    }

    void tellsDebugFromRelease_data()
    {
        QTest::addColumn<QString>("profile");
        QTest::addColumn<BuildKind>("kind");
        QTest::newRow("names devices") << u"<key>ProvisionedDevices</key>"_s << BuildKind::Debug;
        QTest::newRow("names no devices") << u"<key>Name</key>"_s << BuildKind::Release;
        QTest::newRow("empty") << u""_s << BuildKind::Release;
        QTest::newRow("never received") << QString() << BuildKind::Debug;
    }
    void tellsDebugFromRelease()
    {
        QFETCH(QString, profile);
        PackageFacts facts;
        if (!profile.isNull())
            facts.provisioningProfile = profile;
        QTEST(buildKind(facts), "kind");
    }

    void judgesTheRest()
    {
        PackageFacts facts = withValue(u"FacebookAppID"_s, u"123"_s);
        QVERIFY(metadataVerdicts(facts).facebookAppIDPresent);
        QVERIFY(!metadataVerdicts(facts).localizationsValid);
        facts.appLocalizations = {u"English"_s};
        QVERIFY(metadataVerdicts(facts).localizationsValid);
        QVERIFY(!metadataVerdicts(withValue(u"FacebookAppID"_s, QVariantList())).facebookAppIDPresent);
    }
};

QTEST_GUILESS_MAIN(PackageFactsTest)
#include "PackageFactsTest.moc"
