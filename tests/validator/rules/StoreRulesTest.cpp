// SPDX-License-Identifier: MIT
#include "resources/Resources.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/archive/OpenPackage.h"
#include "validator/rules/Wording.h"

#include <QDir>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

const QDate today(2026, 11, 22);

QStringList idsIn(const QList<Finding> &findings)
{
    QStringList ids;
    for (const Finding &finding : findings) {
        const QString id = QString::fromLatin1(finding.rule->id);
        if (!ids.contains(id))
            ids += id;
    }
    std::ranges::sort(ids);
    return ids;
}

QString described(const QList<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines +=
            QString::fromLatin1(finding.rule->id) + u": "_s + finding.evidence.path + u": "_s + finding.evidence.text;
    return lines.join(u'\n');
}

} // namespace

class StoreRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*QCoreApplication::instance(), QLocale(u"en_US"_s), ToolkitTexts::LeaveOut);
        QVERIFY(runScript(u"make_rule_packages.py"_s, {m_files.path()}));
        m_packages = QDir(m_files.path()).entryList({u"*.ipa"_s}, QDir::Files, QDir::Name);
        QVERIFY(m_packages.size() > 60);
    }

    void findsExactlyWhatIsBroken_data()
    {
        QTest::addColumn<QString>("package");
        for (const QString &package : m_packages) {
            if (!package.startsWith("keeps"_L1))
                QTest::newRow(qPrintable(package.chopped(4))) << package;
        }
    }
    void findsExactlyWhatIsBroken()
    {
        QFETCH(QString, package);
        QStringList expected;
        for (const QString &word : package.chopped(4).split(u' ')) {
            if (ruleNamed(word) != nullptr)
                expected += word;
        }
        QVERIFY(!expected.isEmpty());
        std::ranges::sort(expected);
        const QList<Finding> findings = findingsIn(contentsOf(package), {today});
        QVERIFY2(idsIn(findings) == expected, qPrintable(package + u'\n' + described(findings)));
    }

    void findsNothing_data()
    {
        QTest::addColumn<QString>("package");
        for (const QString &package : m_packages) {
            if (package.startsWith("keeps"_L1))
                QTest::newRow(qPrintable(package.chopped(4))) << package;
        }
    }
    void findsNothing()
    {
        QFETCH(QString, package);
        const QList<Finding> findings = findingsIn(contentsOf(package), {today});
        QVERIFY2(findings.isEmpty(), qPrintable(described(findings)));
    }

    void judgesForADay_data()
    {
        QTest::addColumn<QString>("package");
        QTest::addColumn<QDate>("day");
        QTest::addColumn<QStringList>("ids");
        const QString good = u"keeps, all.ipa"_s;
        QTest::newRow("today") << good << today << QStringList();
        QTest::newRow("when the next SDK is asked for") << good << QDate(2027, 5, 15) << QStringList{u"sdk-age-next"_s};
        QTest::newRow("when the profile has ended")
            << good << QDate(2027, 6, 2) << QStringList{u"profile-expiry"_s, u"sdk-age-next"_s};
        QTest::newRow("on the certificate's last day")
            << good << QDate(2034, 1, 1) << QStringList{u"profile-expiry"_s, u"sdk-age-next"_s};
        QTest::newRow("when the certificate has ended")
            << good << QDate(2034, 1, 2)
            << QStringList{u"certificate-validity"_s, u"profile-expiry"_s, u"sdk-age-next"_s};
        QTest::newRow("an SDK of its time") << u"sdk-age.ipa"_s << QDate(2026, 4, 1) << QStringList();
        QTest::newRow("before manifests were asked for")
            << u"required-reason.ipa"_s << QDate(2024, 4, 1) << QStringList();
    }
    void judgesForADay()
    {
        QFETCH(QString, package);
        QFETCH(QDate, day);
        QFETCH(QStringList, ids);
        const QList<Finding> findings = findingsIn(contentsOf(package), {day});
        QVERIFY2(idsIn(findings) == ids, qPrintable(described(findings)));
    }

    void knowsALargePackage()
    {
        PackageContents contents = contentsOf(u"keeps, all.ipa"_s);
        contents.packedSize = 200'000'000;
        QCOMPARE(idsIn(findingsIn(contents, {today})), QStringList());
        contents.packedSize = 200'000'001;
        QCOMPARE(idsIn(findingsIn(contents, {today})), QStringList{u"cellular-size"_s});
    }

    void everyRuleIsBrokenByAPackage()
    {
        QSet<QString> broken{u"sdk-age-next"_s, u"cellular-size"_s};
        for (const QString &package : m_packages) {
            for (const QString &word : package.chopped(4).split(u' '))
                broken += word;
        }
        for (const Rule &rule : allRules())
            QVERIFY2(broken.contains(QString::fromLatin1(rule.id)), rule.id);
    }

    void everyRuleIsWhole()
    {
        QSet<QString> ids;
        for (const Rule &rule : allRules()) {
            QVERIFY2(!ids.contains(QString::fromLatin1(rule.id)), rule.id);
            ids += QString::fromLatin1(rule.id);
            for (const char *key : {rule.title, rule.rule, rule.fix, rule.source})
                QVERIFY2(worded(key) != QLatin1StringView(key), key);
            // An uncertain fault is not an error.
            const bool likely = worded(rule.title).contains("ikely"_L1);
            QVERIFY2(!likely || rule.severity != Severity::Error, rule.id);
        }
    }

    void namesWhereAndWhat()
    {
        const QList<Finding> findings = findingsIn(contentsOf(u"seal.ipa"_s), {today});
        QCOMPARE(findings.size(), 1);
        QCOMPARE(findings[0].evidence.path, u"Payload/Lamp.app/de.lproj/Localizable.strings"_s);
        QCOMPARE(findings[0].evidence.text, u"was changed after signing"_s);
        QCOMPARE(QByteArray(findings[0].rule->code), QByteArray("ITMS-90035"));
    }

    void leavesOutWhatIsIgnored()
    {
        const PackageContents contents = contentsOf(u"seal.ipa"_s);
        QVERIFY(findingsIn(contents, {today}, {u"seal"_s}).isEmpty());
        QVERIFY(findingsIn(contents, {today}, {u"ITMS-90035"_s}).isEmpty());
        QCOMPARE(findingsIn(contents, {today}, {u"signed"_s}).size(), 1);
    }

    void putsErrorsFirst()
    {
        PackageContents contents = contentsOf(u"export-compliance.ipa"_s);
        contents.bundles.first().info->insert(u"CFBundlePackageType"_s, u"FMWK"_s);
        const QList<Finding> findings = findingsIn(contents, {today});
        QCOMPARE(findings.first().rule->severity, Severity::Error);
        QCOMPARE(findings.last().rule->severity, Severity::Note);
    }

private:
    PackageContents contentsOf(const QString &package) const
    {
        const auto source = openPackage(m_files.filePath(package));
        return source ? readPackageContents(*source.value()) : PackageContents();
    }

    QTemporaryDir m_files;
    QStringList m_packages;
};

QTEST_GUILESS_MAIN(StoreRulesTest)
#include "StoreRulesTest.moc"
