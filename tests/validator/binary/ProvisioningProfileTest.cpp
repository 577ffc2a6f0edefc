// SPDX-License-Identifier: MIT
#include "validator/binary/signature/ProvisioningProfile.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/binary/signature/SignedMessage.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class ProvisioningProfileTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_provisioning.py"_s, {m_files.path()})); }

    void tellsTheKind_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("devices");
        QTest::newRow("development") << u"development"_s << 2;
        QTest::newRow("ad-hoc") << u"ad-hoc"_s << 1;
        QTest::newRow("enterprise") << u"enterprise"_s << 0;
        QTest::newRow("app-store") << u"app-store"_s << 0;
        QTest::newRow("app-store, lengths indefinite") << u"app-store"_s << 0;
    }
    void tellsTheKind()
    {
        QFETCH(QString, kind);
        QFETCH(int, devices);
        const auto profile = readProvisioningProfile(contents(QTest::currentDataTag()));
        QVERIFY(profile);
        QCOMPARE(profileKindName(profile->kind), kind);
        QCOMPARE(profile->devices.size(), devices);
        QCOMPARE(profile->name, u"Lamp Profile"_s);
        QCOMPARE(profile->teamIdentifier, u"TEAM123456"_s);
        QCOMPARE(profile->teamName, u"Lamp Works"_s);
        QCOMPARE(profile->prefixes, QStringList{u"TEAM123456"_s});
        QCOMPARE(profile->platforms, QStringList{u"iOS"_s});
        QCOMPARE(profile->expires, QDateTime(QDate(2027, 6, 1), QTime(12, 30), Qt::UTC));
        QCOMPARE(profile->applicationIdentifier(), u"TEAM123456.com.example.lamp"_s);
        QCOMPARE(profile->certificates.size(), 1);
        const auto certificate = readCertificate(profile->certificates.first());
        QVERIFY(certificate);
        QCOMPARE(certificate->organizationalUnit, u"TEAM123456"_s);
    }

    void isNone_data()
    {
        QTest::addColumn<int>("unused");
        QTest::newRow("plain list") << 0;
        QTest::newRow("no list") << 0;
    }
    void isNone() { QVERIFY(!readProvisioningProfile(contents(QTest::currentDataTag()))); }

    void bearsStrangeKinds()
    {
        const auto profile = readProvisioningProfile(contents("strange kinds"));
        QVERIFY(profile);
        QCOMPARE(profile->name, QString());
        QVERIFY(!profile->expires.isValid());
        QCOMPARE(profile->certificates.size(), 0);
    }

    void grantsEntitlements_data()
    {
        QTest::addColumn<QVariant>("granted");
        QTest::addColumn<QVariant>("claimed");
        QTest::addColumn<bool>("allowed");
        const QVariantList groups{u"T.a"_s, u"T.b"_s};
        QTest::newRow("the same text") << QVariant(u"T.a"_s) << QVariant(u"T.a"_s) << true;
        QTest::newRow("another text") << QVariant(u"T.a"_s) << QVariant(u"T.b"_s) << false;
        QTest::newRow("a wildcard") << QVariant(u"T.*"_s) << QVariant(u"T.b"_s) << true;
        QTest::newRow("a wildcard of another team") << QVariant(u"S.*"_s) << QVariant(u"T.b"_s) << false;
        QTest::newRow("a list under a wildcard") << QVariant(QVariantList{u"T.*"_s}) << QVariant(groups) << true;
        QTest::newRow("part of a list") << QVariant(groups) << QVariant(QVariantList{u"T.b"_s}) << true;
        QTest::newRow("more than the list") << QVariant(QVariantList{u"T.b"_s}) << QVariant(groups) << false;
        QTest::newRow("one of a list") << QVariant(groups) << QVariant(u"T.b"_s) << true;
        QTest::newRow("the same flag") << QVariant(false) << QVariant(false) << true;
        QTest::newRow("another flag") << QVariant(false) << QVariant(true) << false;
        QTest::newRow("any list of texts") << QVariant(u"*"_s) << QVariant(groups) << true;
        QTest::newRow("nothing granted") << QVariant() << QVariant(u"T.a"_s) << false;
    }
    void grantsEntitlements()
    {
        QFETCH(QVariant, granted);
        QFETCH(QVariant, claimed);
        QFETCH(bool, allowed);
        QCOMPARE(entitlementIsGranted(granted, claimed), allowed);
    }

private:
    QByteArray contents(const char *name) const
    {
        QFile file(m_files.filePath(QString::fromUtf8(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir m_files;
};

QTEST_GUILESS_MAIN(ProvisioningProfileTest)
#include "ProvisioningProfileTest.moc"
