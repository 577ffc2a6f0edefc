// SPDX-License-Identifier: MIT
#include "validator/binary/catalog/AssetCatalog.h"
#include "tests/doubles/ScriptedFiles.h"
#include "tests/doubles/SmallWork.h"
#include "validator/binary/catalog/CatalogInPieces.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

std::optional<AssetCatalog> readInPieces(const QByteArray &bytes, qsizetype pieceSize)
{
    const auto pass = [&](const std::function<void(QByteArrayView)> &take) {
        for (qsizetype at = 0; at < bytes.size(); at += pieceSize)
            take(QByteArrayView(bytes).sliced(at, qMin(pieceSize, bytes.size() - at)));
    };
    CatalogInPieces pieces;
    pass([&](QByteArrayView piece) { pieces.take(piece); });
    return pieces.catalog(pass);
}

} // namespace

class AssetCatalogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_catalogs.py"_s, {m_files.path()})); }

    void readsAnAppIcon()
    {
        const auto catalog = readAssetCatalog(contents("app icon"));
        QVERIFY(catalog);
        QCOMPARE(catalog->faults, QList<CatalogFault>());
        QCOMPARE(catalog->coreVersion, 971U);
        QCOMPARE(catalog->storageVersion, 17U);
        QCOMPARE(catalog->platform, u"ios"_s);
        QCOMPARE(catalog->platformVersion, u"15.0"_s);
        QVERIFY(catalog->tool.startsWith("Xcode 26.0"_L1));
        QCOMPARE(catalog->facets, QStringList{u"AppIcon"_s});
        QStringList found;
        for (const CatalogRendition &each : catalog->renditions) {
            QCOMPARE(each.facet, u"AppIcon"_s);
            found += u"%1 %2x%3 @%4 %5 %6 %7 %8"_s.arg(each.name)
                         .arg(each.width)
                         .arg(each.height)
                         .arg(each.scale)
                         .arg(each.idiom, each.appearance, each.isPicture() ? u"picture"_s : u"other"_s,
                              each.opaque ? (*each.opaque ? u"opaque"_s : u"translucent"_s) : u"unknown"_s);
        }
        QCOMPARE(found, (QStringList{
                            u"AppIcon 0x0 @0 phone  other unknown"_s, u"icon.png 1024x1024 @1 phone  picture opaque"_s,
                            u"dark.png 1024x1024 @1 phone UIAppearanceDark picture translucent"_s,
                            u"AppIcon 0x0 @0 pad  other unknown"_s, u"icon.png 1024x1024 @1 pad  picture opaque"_s,
                            u"dark.png 1024x1024 @1 pad UIAppearanceDark picture translucent"_s}));
    }

    void takesTheSizeOfAJpegFromThePicture()
    {
        const auto catalog = readAssetCatalog(contents("app icon as jpeg"));
        QVERIFY(catalog);
        QCOMPARE(catalog->renditions.size(), 1);
        QCOMPARE(catalog->renditions[0].width, 1024);
        QCOMPARE(catalog->renditions[0].height, 1024);
        QCOMPARE(catalog->renditions[0].opaque, std::optional(true));
        QCOMPARE(catalog->renditions[0].pixelFormat, QByteArray("JPEG"));
    }

    void readsLinksIntoAnAtlas()
    {
        const auto catalog = readAssetCatalog(contents("atlas links"));
        QVERIFY(catalog);
        const CatalogRendition &link = catalog->renditions[0];
        QCOMPARE(link.layout, quint16{CatalogRendition::AtlasLink});
        QCOMPARE(link.width, 120);
        QCOMPARE(link.scale, 2.0);
        QVERIFY(link.isPicture() && !link.opaque);
        QCOMPARE(catalog->renditions[1].facet, QString());
        QVERIFY(!catalog->renditions[1].isPicture());
    }

    void followsEveryLeaf()
    {
        const auto catalog = readAssetCatalog(contents("many pictures"));
        QVERIFY(catalog);
        QCOMPARE(catalog->renditions.size(), 40);
        QCOMPARE(catalog->renditions[39].width, 40);
        QCOMPARE(catalog->renditions[39].facet, u"picture 39"_s);
        QCOMPARE(catalog->facets.size(), 40);
    }

    void refuses_data()
    {
        QTest::addColumn<int>("unused");
        for (const char *file :
             {"no catalogue", "text", "nothing", "cut off", "key format without end", "names past the end"})
            QTest::newRow(file) << 0;
    }
    void refuses() { QVERIFY(!readAssetCatalog(contents(QTest::currentDataTag()))); }

    void findsTheFault_data()
    {
        QTest::addColumn<CatalogFault>("fault");
        QTest::newRow("a leaf that follows itself") << CatalogFault::DamagedTree;
        QTest::newRow("a tree that is its own node") << CatalogFault::DamagedTree;
        QTest::newRow("a node that is its own child") << CatalogFault::DamagedTree;
        QTest::newRow("an entry as a name") << CatalogFault::DamagedTree;
        QTest::newRow("more pairs than the leaf holds") << CatalogFault::DamagedTree;
        QTest::newRow("a block past the end") << CatalogFault::DamagedTree;
        QTest::newRow("an entry that is cut off") << CatalogFault::DamagedRendition;
    }
    void findsTheFault()
    {
        QFETCH(CatalogFault, fault);
        const SmallWork work;
        const auto catalog = readAssetCatalog(contents(QTest::currentDataTag()));
        QVERIFY(catalog);
        QVERIFY(catalog->faults.contains(fault));
        QVERIFY(work.isSmall());
    }

    void readsTheSameInPieces_data()
    {
        QTest::addColumn<int>("unused");
        for (const QString &file : QDir(m_files.path()).entryList(QDir::Files))
            QTest::newRow(qPrintable(file)) << 0;
    }
    void readsTheSameInPieces()
    {
        const QByteArray bytes = contents(QTest::currentDataTag());
        const auto whole = readAssetCatalog(bytes);
        for (const qsizetype pieceSize : {1, 17, 5000, 1 << 16}) {
            const auto pieces = readInPieces(bytes, pieceSize);
            QCOMPARE(pieces.has_value(), whole.has_value());
            if (!whole)
                continue;
            QCOMPARE(pieces->faults, whole->faults);
            QCOMPARE(pieces->facets, whole->facets);
            QCOMPARE(pieces->tool, whole->tool);
            QVERIFY(pieces->renditions == whole->renditions);
        }
    }

    void keepsNoMoreThanItSays_data()
    {
        QTest::addColumn<int>("blocks");
        QTest::addColumn<quint32>("blockSize");
        // All blocks are at the same place.
        QTest::newRow("many entries at one place") << 400'000 << 176U;
        QTest::newRow("long nodes at one place") << 100 << (1U << 20);
        QTest::newRow("a table of blocks that is too long") << 600'000 << 0U;
    }
    void keepsNoMoreThanItSays()
    {
        QFETCH(int, blocks);
        QFETCH(quint32, blockSize);
        QByteArray bytes = contents("app icon") + QByteArray(2 << 20, '\1');
        const auto number = [](quint32 value) {
            QByteArray text(4, '\0');
            qToBigEndian(value, text.data());
            return text;
        };
        const ByteReader file(bytes, ByteOrder::Big);
        const quint32 oldTable = *file.u32(16);
        const quint32 oldCount = *file.u32(oldTable);
        QByteArray table = number(static_cast<quint32>(blocks)) + bytes.mid(oldTable + 4, oldCount * 8);
        for (quint32 i = oldCount; i < static_cast<quint32>(blocks); ++i)
            table += number(static_cast<quint32>(bytes.size()) - (1 << 20)) + number(blockSize);
        const auto offset = static_cast<quint32>(bytes.size());
        bytes.replace(16, 8, QByteArray(number(offset) + number(static_cast<quint32>(table.size()))));
        bytes += table;
        const SmallWork work;
        const auto catalog = readInPieces(bytes, 1 << 16);
        QVERIFY(work.isSmall());
        QVERIFY(catalog);
        QVERIFY(catalog->faults.contains(CatalogFault::TooLarge));
        QVERIFY(!catalog->renditions.isEmpty());
    }

    void bearsBlocksWithoutEnd()
    {
        const SmallWork work;
        QVERIFY(readAssetCatalog(contents("blocks without end")));
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

QTEST_GUILESS_MAIN(AssetCatalogTest)
#include "AssetCatalogTest.moc"
