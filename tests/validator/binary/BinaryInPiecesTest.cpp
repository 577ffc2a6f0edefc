// SPDX-License-Identifier: MIT
#include "validator/binary/macho/BinaryInPieces.h"
#include "tests/doubles/ScriptedFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

void describe(const BinarySlice &slice, QStringList &lines)
{
    lines += u"slice %1 at %2 %3"_s.arg(slice.architecture).arg(slice.range.offset).arg(slice.range.size);
    lines += u"%1 segments, %2 libraries, uuid %3"_s.arg(slice.segments.size())
                 .arg(slice.libraries.size())
                 .arg(slice.uuid ? slice.uuid->toString() : QString());
    for (const QByteArrayList &names :
         {slice.importedSymbols, slice.definedSymbols, slice.objectiveCClasses, slice.objectiveCSelectors})
        lines += QString::fromUtf8(names.join(' '));
    for (const BinaryFault fault : slice.faults)
        lines += u"fault %1"_s.arg(static_cast<int>(fault));
}

void describe(const CodeSignature &signature, QStringList &lines)
{
    lines += u"signature of %1"_s.arg(signature.signer ? signature.signer->signatureMatches : -1);
    for (const SignatureFault fault : signature.faults)
        lines += u"fault %1"_s.arg(static_cast<int>(fault));
    for (const CodeDirectory &directory : signature.directories) {
        lines += directory.identifier + u' ' + QString::fromLatin1(directory.hash.toHex());
        for (const quint32 page : directory.brokenPages)
            lines += u"broken page %1"_s.arg(page);
    }
}

QStringList described(const std::optional<BinaryFacts> &facts, const QList<CodeSignature> &signatures)
{
    if (!facts)
        return {u"no binary"_s};
    QStringList lines{facts->isFat ? u"fat"_s : u"thin"_s};
    for (const BinaryFault fault : facts->faults)
        lines += u"fault %1"_s.arg(static_cast<int>(fault));
    for (const BinarySlice &slice : facts->slices)
        describe(slice, lines);
    for (const CodeSignature &signature : signatures)
        describe(signature, lines);
    return lines;
}

QStringList readWhole(const QByteArray &bytes)
{
    const auto facts = readMachO(bytes);
    QList<CodeSignature> signatures;
    if (facts) {
        for (const BinarySlice &slice : facts->slices) {
            const auto part = QByteArrayView(bytes).sliced(static_cast<qsizetype>(slice.range.offset),
                                                           static_cast<qsizetype>(slice.range.size));
            if (slice.codeSignature)
                signatures += readCodeSignature(part, *slice.codeSignature);
        }
    }
    return described(facts, signatures);
}

/// Passes the bytes piece by piece.
void passOn(QByteArrayView bytes, qsizetype pieceSize, const std::function<void(QByteArrayView)> &take)
{
    for (qsizetype at = 0; at < bytes.size(); at += pieceSize)
        take(bytes.sliced(at, qMin(pieceSize, bytes.size() - at)));
}

/// As `readWhole`, from pieces of that many bytes. Counts how often the bytes are asked for again.
QStringList readPieces(const QByteArray &bytes, qsizetype pieceSize, quint64 promised, int *repeats = nullptr)
{
    BinaryInPieces pieces(promised);
    passOn(bytes, pieceSize, [&](QByteArrayView piece) { pieces.take(piece); });
    const auto facts = pieces.facts();
    QList<CodeSignature> signatures;
    if (facts)
        signatures = pieces.signatures(*facts, [&](const auto &take) {
            if (repeats != nullptr)
                ++*repeats;
            passOn(bytes, pieceSize, take);
        });
    return described(facts, signatures);
}

} // namespace

class BinaryInPiecesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(runScript(u"make_binaries.py"_s, {m_binaries.path()}));
        QVERIFY(runScript(u"make_signatures.py"_s, {m_signatures.path()}));
    }

    void readsTheSameFactsAsAtOnce_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<qsizetype>("pieceSize");
        for (const QTemporaryDir *folder : {&m_binaries, &m_signatures}) {
            for (const QFileInfo &file : QDir(folder->path()).entryInfoList(QDir::Files)) {
                // The last one is the usual one; no page and no entry of a table ends with a piece of the others.
                for (const qsizetype size : {509, 4099, 1 << 16})
                    QTest::addRow("%s in pieces of %lld", qPrintable(file.fileName()), static_cast<long long>(size))
                        << file.filePath() << size;
            }
        }
    }
    void readsTheSameFactsAsAtOnce()
    {
        QFETCH(QString, path);
        QFETCH(qsizetype, pieceSize);
        const QByteArray bytes = contents(path);
        QCOMPARE(readPieces(bytes, pieceSize, static_cast<quint64>(bytes.size())), readWhole(bytes));
    }

    void readsTheSameOfAFileThatEndsEarly_data()
    {
        QTest::addColumn<qsizetype>("length");
        for (const qsizetype length : {0, 3, 27, 500, 1032, 20'000, 70'000})
            QTest::addRow("after %lld bytes", static_cast<long long>(length)) << length;
    }
    void readsTheSameOfAFileThatEndsEarly()
    {
        QFETCH(qsizetype, length);
        const QByteArray bytes = contents(m_signatures.filePath(u"signed"_s));
        const QByteArray part = bytes.first(qMin(length, bytes.size()));
        QCOMPARE(readPieces(part, 4096, static_cast<quint64>(bytes.size())), readWhole(part));
    }

    void readsTwiceOnlyForUnusualSignatures_data()
    {
        QTest::addColumn<int>("repeats");
        QTest::newRow("signed") << 0;
        QTest::newRow("one byte of code") << 0;
        QTest::newRow("signed with both digests") << 1;
        QTest::newRow("code past the limit") << 1;
    }
    void readsTwiceOnlyForUnusualSignatures()
    {
        QFETCH(int, repeats);
        int counted = 0;
        const QByteArray bytes = contents(m_signatures.filePath(QString::fromUtf8(QTest::currentDataTag())));
        readPieces(bytes, 1 << 16, static_cast<quint64>(bytes.size()), &counted);
        QCOMPARE(counted, repeats);
    }

private:
    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir m_binaries;
    QTemporaryDir m_signatures;
};

QTEST_GUILESS_MAIN(BinaryInPiecesTest)
#include "BinaryInPiecesTest.moc"
