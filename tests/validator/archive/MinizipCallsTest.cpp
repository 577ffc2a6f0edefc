// SPDX-License-Identifier: MIT
#include "MinizipCalls.h"
#include "ListeningDelegate.h"
#include "tests/doubles/LogKeeper.h"
#include "validator/archive/ZipArchive.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The library calls for one entry with a name of the given length, read in the given number of blocks.
QStringList entryCalls(const QString &opening, int nameLength, int reads)
{
    QStringList calls{opening, u"unzGetCurrentFileInfo(null, 0, null, 0, null, 0)"_s,
                      u"unzGetCurrentFileInfo(set, %1, null, 0, null, 0)"_s.arg(nameLength + 1)};
    for (int i = 0; i < reads; ++i)
        calls += u"unzReadCurrentFile(4096)"_s;
    return calls << u"unzCloseCurrentFile()"_s << u"unzGoToNextFile()"_s;
}

} // namespace

/// The calls into minizip, with their arguments and order, and the results when they fail.
class MinizipCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("TZ", "Europe/Berlin"); // the format stores local times
        write(u"large"_s, QByteArray(5000, 'x'));
        write(u"small"_s, "abc");
    }

    void readsInOrder_data()
    {
        QTest::addColumn<QString>("packedWith");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("opening");
        QTest::addColumn<int>("largeReads");
        QTest::addColumn<int>("smallReads");
        // One read more than there are blocks, which finds the end.
        QTest::newRow("without password") << QString() << QString() << u"unzOpenCurrentFile()"_s << 3 << 2;
        // The program handles encrypted data itself.
        QTest::newRow("with password") << u"secret"_s << u"secret"_s << u"unzOpenCurrentFilePassword(secret)"_s << 0
                                       << 0;
    }
    void readsInOrder()
    {
        QFETCH(QString, packedWith);
        QFETCH(QString, password);
        QFETCH(QString, opening);
        QFETCH(int, largeReads);
        QFETCH(int, smallReads);
        const QString path = packed(packedWith);
        const MinizipCalls recorded;
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(path, password));
        QVERIFY(zip.UnzipFileTo(m_folder.filePath(u"out"_s), true));
        QVERIFY(zip.UnzipCloseFile());
        QCOMPARE(recorded.calls(),
                 QStringList({u"unzOpen(%1)"_s.arg(path), u"unzGetGlobalInfo()"_s, u"unzGoToFirstFile()"_s}) +
                     entryCalls(opening, 5, largeReads) + entryCalls(opening, 5, smallReads) +
                     QStringList{u"unzClose()"_s});
        QVERIFY(zip.damagedEntries().isEmpty());
    }

    void asksNothingMoreOfASkippedEntry()
    {
        const QString path = packed({});
        const auto declines = std::make_shared<ListeningDelegate>();
        declines->replace = false;
        const QTemporaryDir out;
        for (int round = 0; round < 2; ++round) {
            const MinizipCalls recorded;
            ZipArchive zip;
            zip.setDelegate(declines);
            QVERIFY(zip.UnzipOpenFile(path));
            QVERIFY(zip.UnzipFileTo(out.path(), false));
            zip.UnzipCloseFile();
            if (round == 1)
                QVERIFY(!recorded.names().contains(u"unzReadCurrentFile"_s));
            QCOMPARE(recorded.names().count(u"unzCloseCurrentFile"_s), 2);
        }
        QCOMPARE(declines->asked, (QStringList{out.filePath(u"large"_s), out.filePath(u"small"_s)}));
    }

    void readsOnOrStopsWhereACallFails_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("files");
        const QString info = u"unzGetCurrentFileInfo"_s;
        const QString noInfo = u"Error occurs while getting file info"_s;
        const QString close = u"unzCloseCurrentFile"_s;
        const QString next = u"unzGoToNextFile"_s;
        const QString both = u"large:5000 small:3"_s;
        QTest::newRow("first entry not reached, the walk goes on")
            << u"unzGoToFirstFile"_s << 1 << true << QStringList{u"Failed"_s} << next << both;
        QTest::newRow("no information on an entry") << info << 1 << false << QStringList{noInfo} << close << QString();
        QTest::newRow("no name of an entry") << info << 2 << false << QStringList{noInfo} << close << QString();
        QTest::newRow("no information on a later entry")
            << info << 3 << false << QStringList{noInfo} << close << u"large:5000"_s;
        QTest::newRow("data not read, what was read stays and the walk goes on")
            << u"unzReadCurrentFile"_s << 2 << true << QStringList{u"Failed to reading zip file"_s} << next
            << u"large:4096 small:3"_s;
        QTest::newRow("next entry not reached, which counts as the end")
            << next << 1 << true << QStringList() << next << u"large:5000"_s;
    }
    void readsOnOrStopsWhereACallFails()
    {
        QFETCH(QString, call);
        QFETCH(int, number);
        QFETCH(bool, result);
        const auto listener = std::make_shared<ListeningDelegate>();
        const QTemporaryDir out;
        ZipArchive zip;
        zip.setDelegate(listener);
        QVERIFY(zip.UnzipOpenFile(packed({})));
        MinizipCalls recorded;
        recorded.letFail(call, number);
        QCOMPARE(zip.UnzipFileTo(out.path(), true), result);
        QTEST(listener->messages, "messages");
        QTEST(recorded.names().last(), "last");
        QStringList files;
        for (const QFileInfo &file : QDir(out.path()).entryInfoList(QDir::Files, QDir::Name))
            files += file.fileName() + u':' + QString::number(file.size());
        QTEST(files.join(u' '), "files");
        QVERIFY(zip.UnzipCloseFile());
    }

    void opensAndClosesByTheLibrarysAnswer()
    {
        const QString path = packed({});
        MinizipCalls recorded;
        const LogKeeper log;
        ZipArchive zip;
        recorded.letFail(u"unzOpen"_s, 1);
        QVERIFY(!zip.UnzipOpenFile(path));
        QVERIFY(zip.UnzipCloseFile());
        recorded.letFail(u"unzGetGlobalInfo"_s, 1);
        QVERIFY(zip.UnzipOpenFile(path));
        QVERIFY2(log.lines().isEmpty(), "the number of entries is logged only where it is known");
        recorded.letFail(u"unzClose"_s, 1);
        QVERIFY(!zip.UnzipCloseFile());
        QVERIFY(zip.UnzipOpenFile(path));
        QCOMPARE(log.lines(), QStringList{u"2 entries in the zip file"_s});
        QVERIFY(zip.UnzipCloseFile());
    }

    void writesInOrder_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QStringList>("calls");
        const QString record = u"dir/small, 2014-0-31 13:14:16 and 0 0 0, null, 0, null, 0, null, 8, -1"_s;
        QTest::newRow("without password") << QString()
                                          << QStringList{u"zipOpenNewFileInZip("_s + record + u')',
                                                         u"zipWriteInFileInZip(3)"_s, u"zipCloseFileInZip()"_s};
        // 891568578 is the checksum of "abc". The entry comes packed and encrypted: 12 bytes of header and 5 of data.
        QTest::newRow("with password") << u"secret"_s
                                       << QStringList{u"zipOpenNewFileInZip4("_s + record +
                                                          u", 1, 15, 8, 0, null, 891568578, 0, 1)",
                                                      u"zipWriteInFileInZip(17)"_s,
                                                      u"zipCloseFileInZipRaw(3, 891568578)"_s};
    }
    void writesInOrder()
    {
        QFETCH(QString, password);
        QFETCH(QStringList, calls);
        const QString path = m_folder.filePath(u"written.zip"_s);
        const MinizipCalls recorded;
        ZipArchive zip;
        QVERIFY(zip.CreateZipFile2(path, password));
        QVERIFY(zip.addFileToZip(m_folder.filePath(u"small"_s), u"dir/small"_s));
        QVERIFY(zip.CloseZipFile2());
        QCOMPARE(recorded.calls(),
                 QStringList{u"zipOpen(%1, 0)"_s.arg(path)} + calls + QStringList{u"zipClose(null)"_s});
    }

    void addsNothingWhereACallFails_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<QStringList>("made");
        const QString open = u"zipOpenNewFileInZip"_s;
        const QString write = u"zipWriteInFileInZip"_s;
        const QString close = u"zipCloseFileInZip"_s;
        QTest::newRow("entry not opened") << open << QStringList{open};
        QTest::newRow("data not written") << write << QStringList{open, write};
        QTest::newRow("entry not closed") << close << QStringList{open, write, close};
    }
    void addsNothingWhereACallFails()
    {
        QFETCH(QString, call);
        ZipArchive zip;
        QVERIFY(zip.CreateZipFile2(m_folder.filePath(u"written.zip"_s)));
        {
            MinizipCalls recorded;
            recorded.letFail(call, 1);
            QVERIFY(!zip.addFileToZip(m_folder.filePath(u"small"_s), u"small"_s));
            QTEST(recorded.names(), "made");
        }
        MinizipCalls recorded;
        recorded.letFail(u"zipClose"_s, 1);
        QVERIFY(!zip.CloseZipFile2());
        QVERIFY2(!zip.CloseZipFile2(), "it is closed, however that went");
        QCOMPARE(recorded.names(), QStringList{u"zipClose"_s});
    }

private:
    void write(const QString &name, const QByteArray &contents) const
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.flush();
        file.setFileTime(QDateTime(QDate(2014, 1, 31), QTime(13, 14, 16)), QFileDevice::FileModificationTime);
    }
    /// An archive of both files.
    QString packed(const QString &password) const
    {
        const QString path = m_folder.filePath(u"packed.zip"_s);
        ZipArchive zip;
        if (!zip.CreateZipFile2(path, password) || !zip.addFileToZip(m_folder.filePath(u"large"_s), u"large"_s) ||
            !zip.addFileToZip(m_folder.filePath(u"small"_s), u"small"_s) || !zip.CloseZipFile2())
            return {};
        return path;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(MinizipCallsTest)
#include "MinizipCallsTest.moc"
