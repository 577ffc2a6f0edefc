// SPDX-License-Identifier: MIT
#include "validator/binary/signature/CodeSignature.h"
#include "tests/doubles/ScriptedFiles.h"
#include "tests/doubles/SmallWork.h"
#include "validator/binary/macho/MachOReader.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

} // namespace

class CodeSignatureTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_signatures.py"_s, {m_files.path()})); }

    void readsASignature()
    {
        const CodeSignature signature = signatureOf("signed");
        QCOMPARE(signature.faults, QList<SignatureFault>());
        QCOMPARE(signature.directories.size(), 1);
        const CodeDirectory &directory = signature.directories.first();
        QCOMPARE(directory.identifier, u"com.example.lamp"_s);
        QCOMPARE(directory.team, u"TEAM123456"_s);
        QCOMPARE(directory.digest, DigestKind::Sha256);
        QCOMPARE(directory.pageSize, 4096U);
        QCOMPARE(directory.version, 0x20400U);
        QCOMPARE(directory.executableFlags, 1U);
        QVERIFY(directory.coversCode && directory.brokenPages.isEmpty());
        QCOMPARE(directory.shortHash, directory.hash.first(20));
        QVERIFY(directory.binds(SignatureSlot::InfoPlist, "<plist/>"));
        QVERIFY(!directory.binds(SignatureSlot::InfoPlist, "<plist />"));
        QVERIFY(directory.binds(SignatureSlot::CodeResources, "seal"));
        QVERIFY(!directory.hasSlot(SignatureSlot::Application));
        QVERIFY(signature.entitlements);
        QCOMPARE(signature.entitlements->value(u"application-identifier"_s).toString(),
                 u"TEAM123456.com.example.lamp"_s);
        QCOMPARE(signature.derEntitlements, signature.entitlements);
        QCOMPARE(signature.derEntitlements->value(u"limits"_s).toMap().value(u"large"_s), QVariant(1LL << 40));
        QVERIFY(signature.signer && signature.signer->certificate);
        const MessageSigner &signer = *signature.signer;
        QCOMPARE(signer.certificate->commonName, u"Apple Distribution: Lamp Works (TEAM123456)"_s);
        QCOMPARE(signer.certificate->organizationalUnit, u"TEAM123456"_s);
        QCOMPARE(signer.certificate->validFrom, QDateTime(QDate(2025, 1, 1), QTime(0, 0), Qt::UTC));
        QCOMPARE(signer.certificate->validUntil, QDateTime(QDate(2034, 1, 1), QTime(0, 0), Qt::UTC));
        QCOMPARE(signer.signingTime, QDateTime(QDate(2026, 1, 5), QTime(13, 48, 48), Qt::UTC));
        QCOMPARE(signer.chain, (QStringList{u"Apple Distribution: Lamp Works (TEAM123456)"_s, u"Lamp Root"_s}));
        QVERIFY(signer.chainReachesRoot);
        QCOMPARE(signer.rootFingerprint, contents("fingerprint"));
        QCOMPARE(signer.shortHashes, QList<QByteArray>{directory.shortHash});
        QCOMPARE(signer.codeDirectoryHashes, QList<QByteArray>{directory.hash});
    }

    void findsNothingIn_data()
    {
        QTest::addColumn<qsizetype>("directories");
        QTest::addColumn<bool>("adHoc");
        QTest::newRow("signed with both digests") << qsizetype{2} << false;
        QTest::newRow("signed, values out of order") << qsizetype{2} << false;
        QTest::newRow("signed, lengths indefinite") << qsizetype{1} << false;
        QTest::newRow("ad hoc") << qsizetype{1} << true;
        QTest::newRow("ad hoc without a message") << qsizetype{1} << true;
    }
    void findsNothingIn()
    {
        QFETCH(qsizetype, directories);
        QFETCH(bool, adHoc);
        const CodeSignature signature = signatureOf(QTest::currentDataTag());
        QCOMPARE(signature.faults, QList<SignatureFault>());
        QCOMPARE(signature.directories.size(), directories);
        QCOMPARE(signature.isAdHoc(), adHoc);
        QCOMPARE(signature.best()->digest, DigestKind::Sha256);
    }

    void findsTheFault_data()
    {
        QTest::addColumn<SignatureFault>("fault");
        QTest::newRow("one byte of code") << SignatureFault::PagesChanged;
        QTest::newRow("one byte of the header") << SignatureFault::PagesChanged;
        QTest::newRow("one byte of the entitlements") << SignatureFault::EntitlementsChanged;
        QTest::newRow("one byte of the second entitlements") << SignatureFault::DerEntitlementsChanged;
        QTest::newRow("one byte of the requirements") << SignatureFault::RequirementsChanged;
        QTest::newRow("one byte of the directory") << SignatureFault::MessageDigestChanged;
        QTest::newRow("one byte of the message") << SignatureFault::MessageSignatureBroken;
        QTest::newRow("entitlements that differ") << SignatureFault::EntitlementsDiffer;
        QTest::newRow("entitlements left out") << SignatureFault::EntitlementsChanged;
        QTest::newRow("entitlements that nobody signed") << SignatureFault::EntitlementsChanged;
        QTest::newRow("message of another") << SignatureFault::MessageDigestChanged;
        QTest::newRow("message without certificate") << SignatureFault::NoSignerCertificate;
        QTest::newRow("message that is none") << SignatureFault::MessageUnreadable;
        QTest::newRow("signed by the wrong key") << SignatureFault::MessageSignatureBroken;
        QTest::newRow("another directory listed") << SignatureFault::DirectoriesDiffer;
        QTest::newRow("signed before its time") << SignatureFault::SignedOutsideValidity;
        QTest::newRow("signed after its time") << SignatureFault::SignedOutsideValidity;
        QTest::newRow("code past the limit") << SignatureFault::CodeNotCovered;
        QTest::newRow("unknown digest") << SignatureFault::UnknownDigest;
        QTest::newRow("hashes past the end") << SignatureFault::Damaged;
        QTest::newRow("special slots without end") << SignatureFault::Damaged;
        QTest::newRow("no directory") << SignatureFault::NoCodeDirectory;
        QTest::newRow("signature in a signature") << SignatureFault::NestedSignature;
        QTest::newRow("signatures in signatures") << SignatureFault::NestedSignature;
        QTest::newRow("signature that is a part of itself") << SignatureFault::NestedSignature;
        QTest::newRow("blobs without end") << SignatureFault::Damaged;
        QTest::newRow("blob past the end") << SignatureFault::Damaged;
        QTest::newRow("length past the end") << SignatureFault::Damaged;
    }
    void findsTheFault()
    {
        QFETCH(SignatureFault, fault);
        const SmallWork work;
        const CodeSignature signature = signatureOf(QTest::currentDataTag());
        QVERIFY(work.isSmall());
        QStringList found;
        for (const SignatureFault each : signature.faults)
            found += QString::number(static_cast<int>(each));
        QVERIFY2(signature.faults.contains(fault), qPrintable(found.join(u' ')));
    }

    void namesTheBrokenPage()
    {
        const CodeSignature signature = signatureOf("one byte of code");
        QCOMPARE(signature.directories.first().brokenPages, QList<quint32>{4});
        // It has no other fault.
        QCOMPARE(signature.faults, QList<SignatureFault>{SignatureFault::PagesChanged});
    }

private:
    QByteArray contents(const char *name) const
    {
        QFile file(m_files.filePath(QString::fromUtf8(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    CodeSignature signatureOf(const char *name) const
    {
        const QByteArray bytes = contents(name);
        const auto facts = readMachO(bytes);
        if (!facts || facts->slices.isEmpty() || !facts->slices.first().codeSignature)
            return {};
        return readCodeSignature(bytes, *facts->slices.first().codeSignature);
    }

    QTemporaryDir m_files;
};

QTEST_GUILESS_MAIN(CodeSignatureTest)
#include "CodeSignatureTest.moc"
