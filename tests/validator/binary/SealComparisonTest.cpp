// SPDX-License-Identifier: MIT
#include "validator/binary/signature/SealComparison.h"
#include "tests/doubles/ScriptedFiles.h"
#include "tests/doubles/SmallWork.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <map>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The files of a bundle, in memory.
class Bundle
{
public:
    void addFile(const QString &path, const QByteArray &content)
    {
        FileDigesting digesting;
        digesting.add(content);
        m_files[path] = {digesting.result(), {}};
    }
    void addLink(const QString &path, const QString &target) { m_files[path] = {{}, target}; }
    void remove(const QString &path) { m_files.erase(path); }

    /// The comparison with a seal that comes in pieces of that many bytes.
    SealFindings comparedWith(const QByteArray &seal, qsizetype pieceSize = 1 << 16,
                              const QMap<QString, QList<QByteArray>> &nestedHashes = {}) const
    {
        std::vector<BundleFile> files;
        for (const auto &[path, file] : m_files)
            files.push_back(
                {path, file.target.isEmpty() ? &file.digests : nullptr, file.target, !file.target.isEmpty()});
        SealComparison comparison(std::move(files), {u"Lamp"_s, nestedHashes});
        m_taken = 0;
        for (qsizetype at = 0; at < seal.size(); at += pieceSize) {
            m_taken = qMin(at + pieceSize, seal.size());
            if (!comparison.take(QByteArrayView(seal).sliced(at, qMin(pieceSize, seal.size() - at))))
                break;
        }
        return comparison.findings();
    }

    /// The bytes of the last seal that the comparison asked for.
    qsizetype taken() const { return m_taken; }

private:
    struct File
    {
        FileDigests digests;
        QString target;
    };
    std::map<QString, File> m_files;
    mutable qsizetype m_taken = 0;
};

/// The files that the fixtures' seals cover, and the link to the seal that old bundles have.
Bundle sealedBundle()
{
    Bundle bundle;
    bundle.addFile(u"Lamp"_s, "binary");
    bundle.addFile(u"Info.plist"_s, "info");
    bundle.addFile(u"PkgInfo"_s, "APPL????");
    bundle.addFile(u"lamp.png"_s, "picture");
    bundle.addFile(u"a/b.txt"_s, "text");
    bundle.addFile(u"de.lproj/x.strings"_s, "worte");
    bundle.addFile(u".DS_Store"_s, "junk");
    bundle.addFile(u"_CodeSignature/CodeResources"_s, "seal");
    bundle.addLink(u"CodeResources"_s, u"_CodeSignature/CodeResources"_s);
    return bundle;
}

} // namespace

class SealComparisonTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_signatures.py"_s, {m_files.path()})); }

    void findsTheDifference_data()
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
    void findsTheDifference()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, content);
        QFETCH(QString, where);
        Bundle bundle = sealedBundle();
        bundle.addLink(u"link"_s, u"a/b.txt"_s);
        if (content.isEmpty())
            bundle.remove(path);
        else
            bundle.addFile(path, content);
        const QStringList expected = where.isEmpty() ? QStringList() : QStringList{path};
        for (const char *seal : {"seal", "seal in binary form"}) {
            for (const qsizetype pieceSize : {1, 7, 1 << 16}) {
                const SealFindings findings = bundle.comparedWith(contents(seal), pieceSize);
                QCOMPARE(findings.state, SealState::Compared);
                QCOMPARE(findings.changed, where == "changed"_L1 ? expected : QStringList());
                QCOMPARE(findings.missing, where == "missing"_L1 ? expected : QStringList());
                QCOMPARE(findings.extra, where == "extra"_L1 ? expected : QStringList());
            }
        }
    }

    void comparesLinks()
    {
        Bundle bundle = sealedBundle();
        bundle.addLink(u"link"_s, u"lamp.png"_s);
        QCOMPARE(bundle.comparedWith(contents("seal")).changed, QStringList{u"link"_s});
        bundle.remove(u"link"_s);
        QCOMPARE(bundle.comparedWith(contents("seal")).missing, QStringList{u"link"_s});
    }

    void readsASealOfOld()
    {
        Bundle bundle = sealedBundle();
        QVERIFY(bundle.comparedWith(contents("seal of old")).isEmpty());
        bundle.addFile(u"Info.plist"_s, "other");
        QCOMPARE(bundle.comparedWith(contents("seal of old")).changed, QStringList{u"Info.plist"_s});
    }

    void leavesNestedCodeToItsOwnSeal()
    {
        const QByteArray seal = contents("seal of nested code");
        const QString bulb = u"Frameworks/Bulb.framework"_s;
        Bundle bundle;
        bundle.addFile(u"lamp.png"_s, "picture");
        bundle.addFile(bulb + u"/Bulb", "code");
        bundle.addFile(bulb + u"/Info.plist", "info");
        bundle.addFile(bulb + u"-2/more", "beside it");
        const auto compared = [&](const QMap<QString, QList<QByteArray>> &hashes) {
            return bundle.comparedWith(seal, 1 << 16, hashes);
        };
        QCOMPARE(compared({{bulb, {QByteArray(20, 'b')}}}).extra, QStringList{bulb + u"-2/more"});
        QVERIFY(compared({{bulb, {QByteArray(20, 'b')}}}).changed.isEmpty());
        QCOMPARE(compared({{bulb, {QByteArray(20, 'c')}}}).changed, QStringList{bulb});
        QCOMPARE(compared({}).missing, QStringList{bulb});
    }

    void endsSoon_data()
    {
        QTest::addColumn<SealState>("state");
        QTest::addColumn<bool>("endsEarly");
        QTest::addColumn<qsizetype>("mostTaken");
        constexpr qsizetype all = 64 << 20;
        QTest::newRow("no seal") << SealState::Unreadable << false << all;
        QTest::newRow("seal that is cut off") << SealState::Unreadable << false << all;
        QTest::newRow("seal of a million rows") << SealState::Compared << true << qsizetype{1 << 20};
        QTest::newRow("seal of a million rows that may be missing")
            << SealState::TooLarge << false << qsizetype{32 << 20};
        QTest::newRow("seal of a million rules") << SealState::TooLarge << false << qsizetype{16 << 20};
        QTest::newRow("seal of entities") << SealState::Unreadable << false << qsizetype{1 << 16};
        QTest::newRow("deep seal") << SealState::Unreadable << false << qsizetype{1 << 18};
        QTest::newRow("seal with a name without end") << SealState::Unreadable << false << qsizetype{2 << 20};
        QTest::newRow("seal with a tag without end") << SealState::Unreadable << false << qsizetype{2 << 20};
    }
    void endsSoon()
    {
        QFETCH(SealState, state);
        QFETCH(bool, endsEarly);
        QFETCH(qsizetype, mostTaken);
        const QByteArray seal = contents(QTest::currentDataTag());
        const SmallWork work;
        const Bundle bundle = sealedBundle();
        const SealFindings findings = bundle.comparedWith(seal);
        QVERIFY(work.isSmall());
        QCOMPARE(findings.state, state);
        QCOMPARE(findings.endsEarly, endsEarly);
        QVERIFY(bundle.taken() <= mostTaken);
    }

    void listsNoMoreThanItSays()
    {
        QByteArray rows;
        Bundle bundle;
        for (int i = 0; i < SealComparison::mostListed + 5; ++i) {
            const QByteArray name = "file" + QByteArray::number(i).rightJustified(6, '0');
            rows += "<key>" + name + "</key><dict><key>hash2</key><data>AAAA</data></dict>";
            bundle.addFile(QString::fromLatin1(name), "content");
        }
        const SealFindings findings =
            bundle.comparedWith("<plist><dict><key>files2</key><dict>" + rows + "</dict></dict></plist>");
        QCOMPARE(findings.changed.size(), SealComparison::mostListed);
        QCOMPARE(findings.unlisted, 5);
        QCOMPARE(findings.state, SealState::Compared);
        QVERIFY(!findings.endsEarly);
    }

    void bearsASlowRule()
    {
        Bundle bundle;
        for (int i = 0; i < 1000; ++i)
            bundle.addFile(QString(200, u'a') + QString::number(i) + u'!', {});
        const SmallWork work;
        QCOMPARE(bundle.comparedWith(contents("seal with a slow rule")).extra.size(), 1000);
        QVERIFY(work.isSmall());
    }

private:
    QByteArray contents(const char *name) const
    {
        QFile file(m_files.filePath(QString::fromUtf8(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir m_files;
};

QTEST_GUILESS_MAIN(SealComparisonTest)
#include "SealComparisonTest.moc"
