// SPDX-License-Identifier: MIT
#include "validator/bundle/PackageInspection.h"
#include "tests/doubles/LogKeeper.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/bundle/BundleContents.h"
#include "validator/bundle/LocalizationName.h"
#include "validator/bundle/MetadataChecks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

const QStringList englishFrench{u"English"_s, u"French"_s};

/// When Qt compares empty lists of numbers, it passes null pointers to memcmp, which a sanitizer reports.
QString joined(const QList<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts += QString::number(number);
    return texts.join(u' ');
}

/// The middle of the icon, where no corner is cut, as text.
QString iconColor(const QImage &icon)
{
    return icon.isNull() ? u"none"_s : QColor(icon.pixel(64, 64)).name();
}

} // namespace

class PackageInspectionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()})); }

    void findsTheFacts_data()
    {
        QTest::addColumn<QString>("facts");
        QTest::addColumn<QStringList>("localizations");
        const QString demo = u"Demo|1.2.3|iPhone|7.0|com.example.app|fb123|123"_s;
        for (const char *name :
             {"valid", "valid, packed backwards", "valid, XML list", "valid, with a Mac's own files", "damaged icon"})
            QTest::newRow(name) << demo << englishFrench;
        QTest::newRow("two apps") << u"Last|1.2.3|iPhone|7.0|com.example.app|fb123|123"_s << QStringList();
        QTest::newRow("no links") << u"Demo|1.2.3|iPhone|7.0|com.example.app|none|none"_s << englishFrench;
        QTest::newRow("wrong types") << u"|5|iPhone|1||none|42"_s << englishFrench;
        const QString nothing = u"|||||none|none"_s;
        for (const char *name : {"no list", "broken list", "list is a folder"})
            QTest::newRow(name) << nothing << englishFrench;
        QTest::newRow("encrypted") << nothing << QStringList();
        for (const char *name :
             {"no app", "app is a file", "payload is a file", "app in capitals", "no archive", "cut off", "missing"})
            QTest::newRow(name) << nothing << QStringList();
    }
    void findsTheFacts()
    {
        const PackageReport report = inspected();
        const PackageFacts &facts = report.facts;
        const auto schemes = facts.appURLSchemes();
        const QStringList shown{facts.appName(),
                                facts.appVersion(),
                                facts.appPlatform(),
                                facts.appMinimumOSVersion(),
                                facts.appBundleIdentifier(),
                                schemes ? schemes->join(u' ') : u"none"_s,
                                facts.appFacebookID().value_or(u"none"_s)};
        QTEST(shown.join(u'|'), "facts");
        QTEST(facts.appLocalizations, "localizations");
        QCOMPARE(facts.ipaPath, path());
    }

    void tellsWhyThereIsNoApp_data()
    {
        QTest::addColumn<FailureCode>("code");
        QTest::newRow("no archive") << FailureCode::NotAnArchive;
        QTest::newRow("cut off") << FailureCode::NotAnArchive;
        QTest::newRow("missing") << FailureCode::NotFound;
        QTest::newRow("no app") << FailureCode::MissingContent;
        QTest::newRow("app is a file") << FailureCode::MissingContent;
        QTest::newRow("payload is a file") << FailureCode::MissingContent;
        QTest::newRow("app in capitals") << FailureCode::MissingContent;
    }
    void tellsWhyThereIsNoApp()
    {
        const Outcome outcome = reportOutcome(inspected());
        QVERIFY(!outcome);
        QTEST(outcome.failure().code, "code");
    }

    void logsWhatCannotBeListed_data()
    {
        QTest::addColumn<QStringList>("errors");
        QTest::newRow("valid") << QStringList();
        QTest::newRow("no app") << QStringList();
        QTest::newRow("no archive") << QStringList{u"Content error: No such file or directory"_s};
        QTest::newRow("payload is a file") << QStringList{u"Content error: Not a directory"_s};
        QTest::newRow("app is a file") << QStringList{u"Content error: Not a directory"_s};
    }
    void logsWhatCannotBeListed()
    {
        const LogKeeper log;
        inspected();
        QTEST(log.lines().filter(u"error"_s), "errors");
    }

    void readsTheProfile_data()
    {
        QTest::addColumn<BuildKind>("build");
        QTest::addColumn<bool>("identifierValid");
        QTest::newRow("valid") << BuildKind::Debug << true;
        QTest::newRow("release") << BuildKind::Release << true;
        QTest::newRow("no profile") << BuildKind::Release << false;
        QTest::newRow("plain profile") << BuildKind::Release << false;
        QTest::newRow("other identifier") << BuildKind::Debug << false;
        QTest::newRow("shorter identifier") << BuildKind::Debug << true;
        QTest::newRow("no app") << BuildKind::Release << false;
    }
    void readsTheProfile()
    {
        const PackageFacts facts = inspected().facts;
        QTEST(buildKind(facts), "build");
        QTEST(metadataVerdicts(facts).bundleIdentifierValid, "identifierValid");
    }

    void checksTheArtwork_data()
    {
        QTest::addColumn<QList<int>>("icons");
        QTest::addColumn<bool>("launchImages");
        const QList<int> none;
        const QList<int> all{57, 114, 60, 120, 29, 58, 40, 80, 512, 1024};
        const auto without = [&all](int edge) {
            QList<int> rest = all;
            rest.removeOne(edge);
            return rest;
        };
        QTest::newRow("valid") << none << true;
        QTest::newRow("damaged icon") << QList<int>{1024} << true;
        QTest::newRow("one icon") << without(57) << true;
        QTest::newRow("logo") << all << false;
        QTest::newRow("icon of 120") << without(120) << false;
        QTest::newRow("artwork without extension") << without(512) << false;
        QTest::newRow("pictures that are none") << all << false;
        QTest::newRow("gigantic icons") << all << false;
        QTest::newRow("no launch image") << none << false;
        QTest::newRow("landscape launch image") << all << true;
        QTest::newRow("universal") << QList<int>{72, 144} << false;
        QTest::newRow("no list") << none << true;
        QTest::newRow("no app") << none << true;
    }
    void checksTheArtwork()
    {
        QFETCH(QList<int>, icons);
        const ArtworkFindings findings = inspected().artwork.findings;
        QCOMPARE(joined(findings.missingIcons), joined(icons));
        QTEST(findings.missingLaunchImages.isEmpty(), "launchImages");
    }

    void picksTheIconToShow_data()
    {
        QTest::addColumn<QString>("color");
        // make_packages.py paints icons (32, 128, 192).
        QTest::newRow("valid") << u"#2080c0"_s;
        QTest::newRow("icon of 120") << u"#2080c0"_s;
        QTest::newRow("icons by order") << u"#ff0000"_s;
        QTest::newRow("one icon") << u"none"_s;
        QTest::newRow("gigantic icons") << u"none"_s;
        QTest::newRow("pictures that are none") << u"none"_s;
        QTest::newRow("no list") << u"none"_s;
    }
    void picksTheIconToShow()
    {
        const QImage icon = inspected().artwork.appIcon;
        QTEST(iconColor(icon), "color");
        if (!icon.isNull())
            QCOMPARE(icon.size(), QSize(128, 128));
    }

    void roundsTheIconByTheVersion()
    {
        // Radius 128 / 6.4 = 20 before iOS 7, 128 / 4.444444 = 28.8 from it on. On the diagonal the arc is (1 - 1/sqrt
        // 2) of the radius from the corner: at 5.9 and at 8.4 pixels.
        const QImage six = inspectedAt(package(u"iOS 6"_s)).artwork.appIcon;
        const QImage seven = inspectedAt(package(u"valid"_s)).artwork.appIcon;
        QCOMPARE(qAlpha(six.pixel(7, 7)), 255);
        QCOMPARE(qAlpha(six.pixel(4, 4)), 0);
        QCOMPARE(qAlpha(seven.pixel(7, 7)), 0);
        QCOMPARE(qAlpha(seven.pixel(10, 10)), 255);
    }

    void listsImagesSorted()
    {
        const PackageFacts facts = inspectedAt(package(u"artwork without extension"_s)).facts;
        QCOMPARE(facts.appImages, (QStringList{u"iTunesArtwork"_s, u"iTunesArtwork@2x"_s}));
        const QStringList images = inspectedAt(package(u"valid, packed backwards"_s)).facts.appImages;
        QVERIFY(std::is_sorted(images.begin(), images.end()));
        QCOMPARE(images.size(), 11);
    }

    void namesTheBundlesFolder()
    {
        QCOMPARE(inspectedAt(package(u"two apps"_s)).facts.appContentFolderPath, u"Documents/app/Payload/B.app"_s);
        QCOMPARE(inspectedAt(package(u"no app"_s)).facts.appContentFolderPath, u"Documents/app/Payload/"_s);
    }

    void removesThePayloadOnly()
    {
        const QTemporaryDir work;
        inspectPackage(package(u"leftovers"_s), site(work));
        QCOMPARE(treeBelow(work.path()), (QMap<QString, QString>{{u"Documents"_s, u"/"_s},
                                                                 {u"Documents/app"_s, u"/"_s},
                                                                 {u"Documents/app/Symbols"_s, u"/"_s},
                                                                 {u"Documents/app/Symbols/a.symbols"_s, u"stays"_s}}));
        const PackageReport second = inspectPackage(package(u"valid"_s), site(work));
        QCOMPARE(second.facts.appName(), u"Demo"_s);
        QVERIFY(reportOutcome(second));
        QVERIFY(QFile::exists(work.filePath(u"Documents/app/Symbols/a.symbols"_s)));
        inspectPackage(package(u"payload is a file"_s), site(work));
        QVERIFY(!QFile::exists(work.filePath(u"Documents/app/Payload"_s)));
    }

    void leavesTheCurrentFolderAlone()
    {
        const QTemporaryDir current;
        const QTemporaryDir work;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(current.path()));
        const PackageReport report = inspectPackage(package(u"valid"_s), site(work));
        const QString after = QDir::currentPath();
        QDir::setCurrent(before);
        QCOMPARE(report.facts.appName(), u"Demo"_s);
        QVERIFY(QFile::exists(work.filePath(u"Documents/app"_s)));
        QCOMPARE(after, QDir(current.path()).canonicalPath());
        QVERIFY(QDir(current.path()).isEmpty());
    }

    void readsNothingOnceAStopIsRequested()
    {
        const QTemporaryDir work;
        std::stop_source stop;
        stop.request_stop();
        InspectionSite stopped = site(work);
        stopped.stop = stop.get_token();
        const PackageReport report = inspectPackage(package(u"valid"_s), stopped);
        QVERIFY(report.facts.ipaPath.isEmpty());
        QVERIFY(!report.hasApp);
    }

    void readsWhatCouldBeUnpackedBeforeALimit()
    {
        const QTemporaryDir work;
        InspectionSite limited = site(work);
        limited.limits.bytes = 5000;
        const PackageReport report = inspectPackage(package(u"valid"_s), limited);
        QVERIFY(!reportOutcome(report));
        QCOMPARE(reportOutcome(report).failure().code, FailureCode::TooLarge);
        QVERIFY(report.hasApp);
    }

    void namesDamagedEntries()
    {
        QCOMPARE(inspectedAt(package(u"damaged icon"_s)).extraction.damagedEntries,
                 QStringList{u"Payload/Demo.app/AppIcon1024.png"_s});
    }

    void doesNotWaitForAPipe()
    {
        const QString pipe = m_packages.filePath(u"pipe.ipa"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QCOMPARE(reportOutcome(inspectedAt(pipe)).failure().code, FailureCode::NotAnArchive);
        QCOMPARE(reportOutcome(inspectedAt(m_packages.path())).failure().code, FailureCode::IsFolder);
    }

    void knowsPackagesByTheirExtension_data()
    {
        QTest::addColumn<bool>("package");
        QTest::newRow("App.ipa") << true;
        QTest::newRow("/some/folder/My App.1.0.ipa") << true;
        QTest::newRow("App.IPA") << false;
        QTest::newRow("App.Ipa") << false;
        QTest::newRow("App.ipa.zip") << false;
        QTest::newRow("App.xipa") << false;
        QTest::newRow("ipa") << false;
        QTest::newRow(".ipa") << false;
        QTest::newRow("/folder.ipa/App") << false;
    }
    void knowsPackagesByTheirExtension()
    {
        QTEST(isPackageName(QString::fromUtf8(QTest::currentDataTag())), "package");
    }

    void sortsNamesOfABundle()
    {
        const BundleContents contents =
            bundleContents({u"Info.plist"_s, u"a.png"_s, u"b.PNG"_s, u"c.jpg"_s, u".png"_s, u"myiTunesArtwork.txt"_s,
                            u"lproj"_s, u".lproj"_s, u"de.lproj"_s, u"Base.lproj"_s, u"info.plist"_s});
        QVERIFY(contents.hasInfoPlist);
        QCOMPARE(contents.images, (QStringList{u"a.png"_s, u"myiTunesArtwork.txt"_s}));
        QCOMPARE(contents.localizations, (QStringList{u"German"_s, u"Base"_s}));
        QVERIFY(!bundleContents({u"info.plist"_s, u"Info.plist.bak"_s}).hasInfoPlist);
    }

    void namesLocalizationsInEnglish_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("fr") << u"French"_s;
        QTest::newRow("en") << u"English"_s;
        QTest::newRow("en-GB") << u"English (United Kingdom)"_s;
        QTest::newRow("pt_BR") << u"Portuguese (Brazil)"_s;
        QTest::newRow("zh-Hans") << u"Chinese (Simplified)"_s;
        QTest::newRow("fil") << u"Filipino"_s;
        QTest::newRow("Base") << u"Base"_s;
        QTest::newRow("German") << u"German"_s;
        QTest::newRow("xx") << u"xx"_s;
        QTest::newRow("é\u4e2d") << u"é\u4e2d"_s;
        QTest::newRow("") << QString();
    }
    void namesLocalizationsInEnglish() { QTEST(localizationName(QString::fromUtf8(QTest::currentDataTag())), "name"); }

private:
    QString package(const QString &name) const { return m_packages.filePath(name + u".ipa"_s); }
    QString path() const { return package(QString::fromUtf8(QTest::currentDataTag())); }
    InspectionSite site(const QTemporaryDir &work) const { return {work.path(), m_decoder}; }
    PackageReport inspectedAt(const QString &path) const
    {
        const QTemporaryDir work;
        return inspectPackage(path, site(work));
    }
    PackageReport inspected() const { return inspectedAt(path()); }

    QTemporaryDir m_packages;
    CmsProfileDecoder m_decoder;
};

QTEST_GUILESS_MAIN(PackageInspectionTest)
#include "PackageInspectionTest.moc"
