// SPDX-License-Identifier: MIT
#include "validator/archive/ZipArchive.h"
#include "ListeningDelegate.h"
#include "tests/doubles/LogKeeper.h"
#include "tests/doubles/ScriptedFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

using Tree = QMap<QString, QString>;

namespace
{

const QString textOfEntry = u"text of the entry"_s;

} // namespace

/// Valid archives of every maker: questions to the delegate, dates, and replaced files.
class ZipArchiveTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("TZ", "Europe/Berlin"); // the format stores local times
        QVERIFY(runScript(u"make_archives.py"_s, {m_archives.path()}));
    }

    void readsArchivesOfEveryMaker_data()
    {
        QTest::addColumn<QString>("password");
        for (const char *maker : {"info-zip", "info-zip stored", "info-zip zip64 records", "info-zip streamed", "7-zip",
                                  "bsdtar", "python", "java", "ditto layout", "java layout"})
            QTest::newRow(maker) << QString();
        for (const char *maker : {"info-zip encrypted", "7-zip encrypted"})
            QTest::newRow(maker) << u"secret"_s;
        QTest::newRow("a password for an archive that needs none") << u"secret"_s;
    }
    void readsArchivesOfEveryMaker()
    {
        QFETCH(QString, password);
        const QString tag = QString::fromUtf8(QTest::currentDataTag());
        const QString name = tag.startsWith(u"a password") ? u"7-zip"_s : tag;
        const QTemporaryDir destination;
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(archive(name), password));
        QVERIFY(zip.UnzipFileTo(destination.path(), true));
        QVERIFY(zip.damagedEntries().isEmpty());
        QVERIFY(zip.UnzipCloseFile());
        Tree made = treeBelow(destination.path());
        made.remove(u"META-INF"_s);
        made.remove(u"META-INF/MANIFEST.MF"_s);
        QCOMPARE(made, treeBelow(m_archives.filePath(u"tree"_s)));
        for (const QString &file : {u"dir/noise"_s, u"dir/sub/text"_s})
            QCOMPARE(contents(destination.filePath(file)), contents(m_archives.filePath(u"tree/"_s + file)));
        // Java sets its own dates; 7-Zip uses today's offset from UTC for the whole year.
        if (name == u"java" || name.startsWith(u"7-zip"))
            return;
        const auto modified = QFileInfo(destination.filePath(u"dir/noise"_s)).lastModified().toSecsSinceEpoch();
        QVERIFY2(qAbs(modified - 1'400'000'000) <= 2, "the format keeps even seconds only");
    }

    void refusesTheWrongPassword_data()
    {
        QTest::addColumn<QString>("password");
        QTest::newRow("info-zip encrypted") << u"wrong"_s;
        QTest::newRow("7-zip encrypted") << u"Secret"_s;
        QTest::newRow("7-zip aes") << u"secret"_s;
    }
    void refusesTheWrongPassword()
    {
        QFETCH(QString, password);
        const auto listener = std::make_shared<ListeningDelegate>();
        const QTemporaryDir destination;
        ZipArchive zip;
        zip.setDelegate(listener);
        QVERIFY(zip.UnzipOpenFile(archive(QString::fromUtf8(QTest::currentDataTag())), password));
        QVERIFY(!zip.UnzipFileTo(destination.path(), true));
        QCOMPARE(listener->messages, QStringList{u"Error occurs"_s});
        QVERIFY(zip.UnzipCloseFile());
    }

    void overwritesByTheRule_data()
    {
        QTest::addColumn<bool>("overWrite");
        QTest::addColumn<QString>("delegate");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("replaced");
        QTest::newRow("overwriting, nobody is asked") << true << u"declines"_s << false << true;
        QTest::newRow("no delegate") << false << u"none"_s << false << true;
        QTest::newRow("a delegate of the colon forms only is never asked") << false << u"colon"_s << false << true;
        QTest::newRow("the delegate agrees") << false << u"agrees"_s << true << true;
        QTest::newRow("the delegate declines") << false << u"declines"_s << true << false;
    }
    void overwritesByTheRule()
    {
        QFETCH(bool, overWrite);
        QFETCH(QString, delegate);
        QFETCH(bool, asked);
        QFETCH(bool, replaced);
        const QTemporaryDir destination;
        write(destination.filePath(u"1"_s), "what was there");
        std::shared_ptr<ColonOnlyDelegate> listener;
        if (delegate == u"colon")
            listener = std::make_shared<ColonOnlyDelegate>();
        else if (delegate != u"none")
            listener = std::make_shared<ListeningDelegate>();
        if (listener)
            listener->replace = delegate == u"agrees";

        ZipArchive zip;
        zip.setDelegate(listener);
        QVERIFY(zip.UnzipOpenFile(archive(u"three files"_s)));
        QVERIFY(zip.UnzipFileTo(destination.path(), overWrite));
        zip.UnzipCloseFile();
        QCOMPARE(contents(destination.filePath(u"1"_s)), replaced ? textOfEntry.toUtf8() : "what was there"_ba);
        QCOMPARE(contents(destination.filePath(u"folder/3"_s)), textOfEntry.toUtf8());
        if (listener)
            QCOMPARE(listener->asked, asked ? QStringList{destination.filePath(u"1"_s)} : QStringList());
    }

    void dropsMessagesForADelegateOfTheColonForms()
    {
        const auto listener = std::make_shared<ColonOnlyDelegate>();
        const QTemporaryDir destination;
        ZipArchive zip;
        zip.setDelegate(listener);
        QVERIFY(zip.UnzipOpenFile(archive(u"no entries behind junk"_s)));
        QVERIFY(!zip.UnzipFileTo(destination.path(), true));
        zip.UnzipCloseFile();
        QVERIFY(listener->messages.isEmpty());
    }

    void datesFilesByTheirEntries_data()
    {
        QTest::addColumn<QDateTime>("date");
        QTest::newRow("january") << QDateTime(QDate(2001, 1, 5), QTime(12, 34, 56));
        QTest::newRow("december") << QDateTime(QDate(2001, 12, 31), QTime(12, 34, 56));
    }
    void datesFilesByTheirEntries()
    {
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        const QTemporaryDir destination;
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(archive(name)));
        QVERIFY(zip.UnzipFileTo(destination.path(), true));
        zip.UnzipCloseFile();
        QTEST(QFileInfo(destination.filePath(name + u".txt"_s)).lastModified(), "date");
    }

    void logsADateThatIsNone()
    {
        const QTemporaryDir destination;
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(archive(u"no date"_s)));
        const LogKeeper log;
        QVERIFY(zip.UnzipFileTo(destination.path(), true));
        QCOMPARE(log.lines(), QStringList{u"Failed to set attributes"_s});
        zip.UnzipCloseFile();
        QCOMPARE(contents(destination.filePath(u"undated.txt"_s)), textOfEntry.toUtf8());
    }

    void extractsAgainAndForgetsThePassword()
    {
        const QTemporaryDir destination;
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(archive(u"info-zip encrypted"_s), u"secret"_s));
        QVERIFY(zip.UnzipFileTo(destination.filePath(u"1"_s), true));
        QVERIFY(zip.UnzipFileTo(destination.filePath(u"2"_s), true));
        QCOMPARE(treeBelow(destination.filePath(u"1"_s)), treeBelow(destination.filePath(u"2"_s)));
        QVERIFY(zip.UnzipCloseFile());
        QVERIFY(zip.UnzipCloseFile());
        QVERIFY(zip.UnzipOpenFile(archive(u"info-zip encrypted"_s)));
        zip.UnzipFileTo(destination.filePath(u"3"_s), true);
        QVERIFY2(!zip.damagedEntries().isEmpty(), "without the password the data cannot make sense");
        zip.UnzipCloseFile();
    }

    void knowsTheEarliestDate() { QCOMPARE(ZipArchive().Date1980(), QDate(1980, 1, 1)); }

private:
    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QString archive(const QString &name) const { return m_archives.filePath(name + u".zip"_s); }

    QTemporaryDir m_archives;
};

QTEST_GUILESS_MAIN(ZipArchiveTest)
#include "ZipArchiveTest.moc"
