// SPDX-License-Identifier: MIT
#include "validator/binary/signature/CodeSignature.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/binary/macho/MachOReader.h"
#include "validator/binary/signature/ResourceSeal.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

FileDigests digestsOf(const QByteArray &content)
{
    FileDigesting digesting;
    digesting.add(content);
    return digesting.result();
}

/// The files with these contents, and the link to the seal that old bundles have. The names are views into the keys of
/// the argument.
QMap<QStringView, BundleFile> filesOf(const QMap<QString, QByteArray> &contents)
{
    QMap<QStringView, BundleFile> files{{u"CodeResources", {{}, u"_CodeSignature/CodeResources"_s, true}}};
    for (auto file = contents.cbegin(); file != contents.cend(); ++file)
        files.insert(file.key(), {digestsOf(*file), {}, false});
    return files;
}

/// The files that the fixtures' seals cover.
QMap<QString, QByteArray> sealedContents()
{
    return {{u"Lamp"_s, "binary"},      {u"Info.plist"_s, "info"},
            {u"PkgInfo"_s, "APPL????"}, {u"lamp.png"_s, "picture"},
            {u"a/b.txt"_s, "text"},     {u"de.lproj/x.strings"_s, "worte"},
            {u".DS_Store"_s, "junk"},   {u"_CodeSignature/CodeResources"_s, "seal"}};
}

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
        QTest::newRow("blobs without end") << SignatureFault::Damaged;
        QTest::newRow("blob past the end") << SignatureFault::Damaged;
        QTest::newRow("length past the end") << SignatureFault::Damaged;
    }
    void findsTheFault()
    {
        QFETCH(SignatureFault, fault);
        const CodeSignature signature = signatureOf(QTest::currentDataTag());
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

    void comparesFilesWithTheSeal_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("where");
        QTest::newRow("nothing changed") << QString() << QByteArray() << QString();
        QTest::newRow("a changed file") << u"lamp.png"_s << QByteArray("pixture") << u"changed"_s;
        QTest::newRow("a file below") << u"a/b.txt"_s << QByteArray("tent") << u"changed"_s;
        QTest::newRow("a missing file") << u"lamp.png"_s << QByteArray() << u"missing"_s;
        QTest::newRow("a missing translation") << u"de.lproj/x.strings"_s << QByteArray() << QString();
        QTest::newRow("a changed translation") << u"de.lproj/x.strings"_s << QByteArray("werte") << u"changed"_s;
        QTest::newRow("a file in place of the old link to the seal")
            << u"CodeResources"_s << QByteArray("_CodeSignature/CodeResources") << u"extra"_s;
        QTest::newRow("one file more") << u"more.txt"_s << QByteArray("more") << u"extra"_s;
        QTest::newRow("the binary, which seals itself") << u"Lamp"_s << QByteArray("other") << QString();
        QTest::newRow("what the rules leave out") << u"sub/.DS_Store"_s << QByteArray("junk") << QString();
    }
    void comparesFilesWithTheSeal()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, content);
        QFETCH(QString, where);
        const auto seal = readResourceSeal(contents("seal"));
        QVERIFY(seal && seal->hasNewList);
        QMap<QString, QByteArray> found = sealedContents();
        if (content.isEmpty())
            found.remove(path);
        else
            found.insert(path, content);
        QMap<QStringView, BundleFile> files = filesOf(found);
        files.insert(u"link", {{}, u"a/b.txt"_s, true});
        const SealFindings findings = compareWithSeal(*seal, files, {u"Lamp"_s, {}});
        const QStringList expected = where.isEmpty() ? QStringList() : QStringList{path};
        QCOMPARE(findings.changed, where == "changed"_L1 ? expected : QStringList());
        QCOMPARE(findings.missing, where == "missing"_L1 ? expected : QStringList());
        QCOMPARE(findings.extra, where == "extra"_L1 ? expected : QStringList());
    }

    void comparesLinks()
    {
        const auto seal = readResourceSeal(contents("seal"));
        const QMap<QString, QByteArray> sealed = sealedContents();
        QMap<QStringView, BundleFile> files = filesOf(sealed);
        files.insert(u"link", {{}, u"lamp.png"_s, true});
        QCOMPARE(compareWithSeal(*seal, files, {u"Lamp"_s, {}}).changed, QStringList{u"link"_s});
        files.remove(u"link");
        QCOMPARE(compareWithSeal(*seal, files, {u"Lamp"_s, {}}).missing, QStringList{u"link"_s});
    }

    void readsASealOfOld()
    {
        const auto seal = readResourceSeal(contents("seal of old"));
        QVERIFY(seal && !seal->hasNewList);
        QMap<QString, QByteArray> found = sealedContents();
        QVERIFY(compareWithSeal(*seal, filesOf(found), {u"Lamp"_s, {}}).isEmpty());
        found[u"Info.plist"_s] = "other";
        QCOMPARE(compareWithSeal(*seal, filesOf(found), {u"Lamp"_s, {}}).changed, QStringList{u"Info.plist"_s});
    }

    void leavesNestedCodeToItsOwnSeal()
    {
        const auto seal = readResourceSeal(contents("seal of nested code"));
        QVERIFY(seal);
        const QString bulb = u"Frameworks/Bulb.framework"_s;
        const QMap<QString, QByteArray> found{
            {u"lamp.png"_s, "picture"}, {bulb + u"/Bulb", "code"}, {bulb + u"/Info.plist", "info"}};
        const auto files = filesOf(found);
        QVERIFY(compareWithSeal(*seal, files, {u"Lamp"_s, {{bulb, {QByteArray(20, 'b')}}}}).isEmpty());
        QCOMPARE(compareWithSeal(*seal, files, {u"Lamp"_s, {{bulb, {QByteArray(20, 'c')}}}}).changed,
                 QStringList{bulb});
        QCOMPARE(compareWithSeal(*seal, files, {u"Lamp"_s, {}}).missing, QStringList{bulb});
    }

    void refusesASealWithoutEnd()
    {
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!readResourceSeal(contents("seal of a million rows")));
        QVERIFY(!readResourceSeal(contents("no seal")));
        QVERIFY(timer.elapsed() < 2000);
    }

    void bearsASlowRule()
    {
        const auto seal = readResourceSeal(contents("seal with a slow rule"));
        QVERIFY(seal);
        QStringList names;
        for (int i = 0; i < 1000; ++i)
            names += QString(200, u'a') + QString::number(i) + u'!';
        QMap<QStringView, BundleFile> files;
        for (const QString &name : names)
            files.insert(name, {});
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(compareWithSeal(*seal, files, {}).extra.size(), 1000);
        QVERIFY(timer.elapsed() < 2000);
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
