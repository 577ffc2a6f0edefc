// SPDX-License-Identifier: MIT
#include "ListeningDelegate.h"
#include "tests/doubles/LogKeeper.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/archive/ZipArchive.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace lumora;
using namespace Qt::StringLiterals;

using Tree = QMap<QString, QString>;

namespace
{

const QString textOfEntry = u"text of the entry"_s;

} // namespace

Q_DECLARE_METATYPE(lumora::ExtractionLimits)
Q_DECLARE_METATYPE(lumora::FailureCode)

/// Hostile, damaged and odd archives: the files that they give, and that nothing is written in other places.
class ZipFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_archives.py"_s, {m_archives.path()})); }

    void extracts_data()
    {
        QTest::addColumn<bool>("result");
        QTest::addColumn<Tree>("tree");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QStringList>("damaged");

        const QStringList none;
        const Tree good = {{u"good.txt"_s, textOfEntry}};
        const auto with = [&good](Tree more) {
            more.insert(good);
            return more;
        };
        QTest::newRow("backslash names") << true
                                         << Tree{{u"dir"_s, u"/"_s},
                                                 {u"dir/sub"_s, u"/"_s},
                                                 {u"dir/sub/file.png"_s, textOfEntry}}
                                         << none << none;
        QTest::newRow("backslash folder") << true << Tree{{u"folder"_s, u"/"_s}} << none << none;
        for (const char *empty : {"no entries", "no entries behind junk", "directory's end repeated in the comment"})
            QTest::newRow(empty) << false << Tree{} << QStringList{u"Failed"_s, u"Error occurs"_s} << none;
        for (const char *hostile :
             {"parent steps", "backslash parent steps", "absolute", "drive letter", "empty name", "name too long",
              "too deep", "path too long", "junk in front", "junk behind", "with a comment"})
            QTest::newRow(hostile) << true << good << none << none;
        QTest::newRow("through a link entry") << true << with({{u"link"_s, u".."_s}}) << none << none;
        QTest::newRow("file as folder") << true << with({{u"same"_s, textOfEntry}}) << none << none;
        QTest::newRow("folder and file of one name")
            << true << with({{u"same"_s, u"/"_s}, {u"same/inner.txt"_s, textOfEntry}}) << none << none;
        QTest::newRow("zero byte in a name") << true << Tree{{u"cut.txt"_s, textOfEntry}} << none << none;
        QTest::newRow("code page 437") << true << Tree{{u"über £.txt"_s, textOfEntry}} << none << none;
        QTest::newRow("utf-8 unmarked") << true << Tree{{u"über £.txt"_s, textOfEntry}} << none << none;
        QTest::newRow("utf-8 marked") << true << Tree{{u"über £.txt"_s, textOfEntry}} << none << none;
        QTest::newRow("data descriptors") << true << Tree{{u"a"_s, u"13500 bytes"_s}, {u"b"_s, u"b"_s}} << none << none;
        QTest::newRow("damaged data") << true << with({{u"bad"_s, QString()}})
                                      << QStringList{u"Failed to reading zip file"_s} << QStringList{u"bad"_s};
        QTest::newRow("cut data") << true << with({{u"bad"_s, QString()}})
                                  << QStringList{u"Failed to reading zip file"_s} << QStringList{u"bad"_s};
        QTest::newRow("data ends early") << true << with({{u"bad"_s, u"four"_s}}) << none << QStringList{u"bad"_s};
        QTest::newRow("encrypted mark only")
            << true << with({{u"sealed"_s, u"13500 bytes"_s}}) << none << QStringList();
        QTest::newRow("wrong checksum") << true << with({{u"bad"_s, textOfEntry}}) << none << QStringList{u"bad"_s};
        QTest::newRow("size too small") << true << with({{u"short"_s, u"text"_s}}) << none << QStringList{u"short"_s};
        QTest::newRow("size too large") << true << with({{u"long"_s, u"1234"_s}}) << none << QStringList{u"long"_s};
        QTest::newRow("unknown method") << false << Tree{} << QStringList{u"Error occurs"_s} << none;
        QTest::newRow("local header elsewhere") << false << Tree{} << QStringList{u"Error occurs"_s} << none;
        QTest::newRow("7-zip bzip2") << true << Tree{{u"dir"_s, u"/"_s},
                                                     {u"dir/sub"_s, u"/"_s},
                                                     {u"empty"_s, QString()},
                                                     {u"dir/noise"_s, QString()},
                                                     {u"dir/sub/text"_s, QString()},
                                                     {u"dir/sub/Schöne Grüße"_s, u"umlauts"_s}}
                                     << QStringList{u"Failed to reading zip file"_s, u"Failed to reading zip file"_s}
                                     << QStringList{u"dir/noise"_s, u"dir/sub/text"_s};
        for (const char *wide : {"zip64 sizes", "zip64 offset", "zip64 stored", "zip64 behind another field"})
            QTest::newRow(wide) << true << with({{u"wide"_s, u"13500 bytes"_s}}) << none << none;
        QTest::newRow("zip64 field too short")
            << true << with({{u"wide"_s, QString()}}) << QStringList{u"Failed to reading zip file"_s}
            << QStringList{u"wide"_s};
    }
    void extracts()
    {
        QFETCH(bool, result);
        QFETCH(QStringList, messages);
        const QTemporaryDir outside;
        const QString destination = outside.filePath(u"a/destination"_s);
        const auto listener = std::make_shared<ListeningDelegate>();
        ZipArchive zip;
        zip.setDelegate(listener);
        const QString tag = QString::fromUtf8(QTest::currentDataTag());
        // minizip does not find a directory's end at the very start of the file; the messages are sent in any case.
        QCOMPARE(zip.UnzipOpenFile(archive(tag)), tag != u"no entries");
        QCOMPARE(zip.UnzipFileTo(destination, true), result);
        QCOMPARE(zip.extraction().ok(), result);
        QCOMPARE(listener->messages, messages);
        QTEST(zip.damagedEntries(), "damaged");
        QTEST(treeBelow(destination), "tree");
        QVERIFY(zip.UnzipCloseFile());
        QCOMPARE(QDir(outside.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{u"a"_s});
        QCOMPARE(QDir(outside.filePath(u"a"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{u"destination"_s});
        QVERIFY(!QFileInfo::exists(u"/tmp/lumora-outside.txt"_s));
    }

    void logsEachEntryItSkips()
    {
        const QTemporaryDir destination;
        ZipArchive zip;
        const LogKeeper log;
        QVERIFY(zip.UnzipOpenFile(archive(u"parent steps"_s)));
        QVERIFY(zip.UnzipFileTo(destination.path(), true));
        zip.UnzipCloseFile();
        QCOMPARE(log.lines(), (QStringList{u"3 entries in the zip file"_s,
                                           u"Skipped, its target cannot be created: ../outside.txt"_s,
                                           u"Skipped, its target cannot be created: a/../../outside.txt"_s}));
    }

    void followsNoLinkInTheDestination()
    {
        const QTemporaryDir outside;
        const QTemporaryDir destination;
        QVERIFY(QFile::link(outside.path(), destination.filePath(u"link"_s)));
        QVERIFY(QFile::link(outside.filePath(u"target"_s), destination.filePath(u"linked.txt"_s)));
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(archive(u"through a link in the way"_s)));
        QVERIFY(zip.UnzipFileTo(destination.path(), true));
        zip.UnzipCloseFile();
        QVERIFY(treeBelow(outside.path()).isEmpty());
        QCOMPARE(treeBelow(destination.path()).value(u"good.txt"_s), textOfEntry);
        QVERIFY(QFileInfo(destination.filePath(u"linked.txt"_s)).isSymLink());
    }

    void isNotHeldUpByAPipeInTheWay()
    {
        const QTemporaryDir destination;
        QCOMPARE(::mkfifo(QFile::encodeName(destination.filePath(u"january.txt"_s)).constData(), 0600), 0);
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(archive(u"january"_s)));
        QVERIFY(zip.UnzipFileTo(destination.path(), true));
        zip.UnzipCloseFile();
    }

    void refusesWhatIsNoArchive_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("text") << archive(u"not an archive"_s);
        QTest::newRow("an empty file") << archive(u"nothing"_s);
        QTest::newRow("without its directory's end") << archive(u"directory cut off"_s);
        QTest::newRow("a path at which nothing is") << archive(u"missing"_s);
        QTest::newRow("a folder") << m_archives.path();
    }
    void refusesWhatIsNoArchive()
    {
        QFETCH(QString, path);
        const LogKeeper log;
        ZipArchive zip;
        QVERIFY(!zip.UnzipOpenFile(path));
        QVERIFY(zip.UnzipCloseFile());
        QVERIFY(log.lines().isEmpty());
    }

    void stopsAtItsLimits_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<ExtractionLimits>("limits");
        QTest::addColumn<FailureCode>("code");
        const ExtractionLimits usual;
        QTest::newRow("entries") << u"three files"_s << ExtractionLimits{usual.bytes, 2, 0} << FailureCode::TooLarge;
        QTest::newRow("folders count as entries")
            << u"three files"_s << ExtractionLimits{usual.bytes, 3, 0} << FailureCode::TooLarge;
        QTest::newRow("entries that the directory's end does not own up to")
            << u"count too low"_s << ExtractionLimits{usual.bytes, 0, 0} << FailureCode::TooLarge;
        QTest::newRow("bytes") << u"three files"_s << ExtractionLimits{40, usual.entries, 0} << FailureCode::TooLarge;
        QTest::newRow("disk") << u"three files"_s << ExtractionLimits{usual.bytes, usual.entries, 1ULL << 60}
                              << FailureCode::CannotWrite;
    }
    void stopsAtItsLimits()
    {
        QFETCH(QString, name);
        QFETCH(ExtractionLimits, limits);
        QFETCH(FailureCode, code);
        const QTemporaryDir destination;
        ZipArchive zip;
        zip.setLimits(limits);
        QVERIFY(zip.UnzipOpenFile(archive(name)));
        QVERIFY(!zip.UnzipFileTo(destination.path(), true));
        zip.UnzipCloseFile();
        QVERIFY(!zip.extraction());
        QCOMPARE(zip.extraction().failure().code, code);
        QVERIFY(!zip.extraction().failure().detail.isEmpty());
    }

    void endsWhenStopped()
    {
        std::stop_source source;
        source.request_stop();
        const QTemporaryDir destination;
        ZipArchive zip;
        zip.setStopToken(source.get_token());
        QVERIFY(zip.UnzipOpenFile(archive(u"three files"_s)));
        QVERIFY(!zip.UnzipFileTo(destination.path(), true));
        zip.UnzipCloseFile();
        QVERIFY(treeBelow(destination.path()).isEmpty());
        QVERIFY(zip.extraction());
    }

    void cannotExtractWithoutAnArchiveOrDestination()
    {
        const QTemporaryDir folder;
        ZipArchive zip;
        QVERIFY(!zip.UnzipFileTo(folder.filePath(u"out"_s), true));
        write(folder.filePath(u"file"_s), "no folder");
        QVERIFY(zip.UnzipOpenFile(archive(u"january"_s)));
        QVERIFY(!zip.UnzipFileTo(folder.filePath(u"file"_s), true));
        zip.UnzipCloseFile();
    }

private:
    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QString archive(const QString &name) const { return m_archives.filePath(name + u".zip"_s); }

    QTemporaryDir m_archives;
};

QTEST_GUILESS_MAIN(ZipFaultsTest)
#include "ZipFaultsTest.moc"
