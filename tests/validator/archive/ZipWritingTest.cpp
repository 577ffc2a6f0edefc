// SPDX-License-Identifier: MIT
#include "validator/archive/ZipArchive.h"
#include "validator/archive/ZipDate.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class ZipWritingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("TZ", "Europe/Berlin"); }

    void writesWhatOthersRead_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QByteArray>("contents");
        for (const QString &password : {QString(), u"secret"_s}) {
            const QByteArray how = password.isEmpty() ? "plain" : "encrypted";
            QTest::addRow("%s, a few bytes", how.constData()) << password << "hello"_ba;
            QTest::addRow("%s, nothing", how.constData()) << password << QByteArray();
            QTest::addRow("%s, a megabyte", how.constData())
                << password << QByteArray("0123456789abcdef").repeated(65536);
        }
    }
    void writesWhatOthersRead()
    {
        QFETCH(QString, password);
        QFETCH(QByteArray, contents);
        const QTemporaryDir folder;
        const QString source = write(folder, contents);
        const QString path = folder.filePath(u"made.zip"_s);
        ZipArchive zip;
        QVERIFY(zip.CreateZipFile2(path, password));
        QVERIFY(zip.addFileToZip(source, u"dir/größer.txt"_s));
        QVERIFY(zip.addFileToZip(source, u"second"_s));
        QVERIFY(zip.CloseZipFile2());

        QProcess python;
        python.start(u"python3"_s, {u"-c"_s, QString::fromUtf8(R"(
import sys, zipfile
archive = zipfile.ZipFile(sys.argv[1])
archive.setpassword(sys.argv[2].encode())
assert len(archive.infolist()) == 2 and archive.testzip() is None
entry = archive.getinfo('second')
sys.stdout.buffer.write(b'%d-%d-%d %d:%d:%d|' % entry.date_time + b'%d|' % entry.compress_type + archive.read('second'))
)"),
                                    path, password});
        QVERIFY(python.waitForFinished());
        QCOMPARE(python.readAllStandardOutput(), QByteArray("2014-1-31 13:14:16|8|" + contents));

        QVERIFY(zip.UnzipOpenFile(path, password));
        QVERIFY(zip.UnzipFileTo(folder.filePath(u"out"_s), true));
        QVERIFY(zip.damagedEntries().isEmpty());
        zip.UnzipCloseFile();
        QFile made(folder.filePath(u"out/dir/größer.txt"_s));
        QVERIFY(made.open(QIODevice::ReadOnly));
        QCOMPARE(made.readAll(), contents);
    }

    void addsNothingItCannotRead()
    {
        const QTemporaryDir folder;
        ZipArchive zip;
        QVERIFY(zip.CreateZipFile2(folder.filePath(u"made.zip"_s)));
        QVERIFY(!zip.addFileToZip(folder.filePath(u"missing"_s), u"entry"_s));
        QVERIFY(zip.CloseZipFile2());
    }

    void needsAnArchiveOpenForWriting()
    {
        const QTemporaryDir folder;
        const QString source = write(folder, "hello");
        ZipArchive zip;
        QVERIFY(!zip.CloseZipFile2());
        QVERIFY(!zip.addFileToZip(source, u"entry"_s));
        QVERIFY(!zip.CreateZipFile2(folder.filePath(u"no/such/folder.zip"_s)));
        QVERIFY(!zip.addFileToZip(source, u"entry"_s));
        QVERIFY(zip.CreateZipFile2(folder.filePath(u"made.zip"_s)));
        QVERIFY(zip.CloseZipFile2());
        QVERIFY(!zip.addFileToZip(source, u"entry"_s));
    }

    void finishesItsArchiveWhenDestroyed()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"made.zip"_s);
        {
            ZipArchive zip;
            QVERIFY(zip.CreateZipFile2(path));
            QVERIFY(zip.addFileToZip(write(folder, "hello"), u"entry"_s));
        }
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(path));
        QVERIFY(zip.UnzipCloseFile());
    }

    void recordsDates_data()
    {
        QTest::addColumn<QDateTime>("date");
        QTest::addColumn<QList<int>>("fields");
        QTest::newRow("january is month 0")
            << QDateTime(QDate(2014, 1, 31), QTime(13, 14, 16)) << QList<int>{16, 14, 13, 31, 0, 2014};
        QTest::newRow("december is month 11")
            << QDateTime(QDate(1999, 12, 1), QTime(0, 0, 1)) << QList<int>{1, 0, 0, 1, 11, 1999};
        QTest::newRow("no date, all fields zero") << QDateTime() << QList<int>{0, 0, 0, 0, 0, 0};
    }
    void recordsDates()
    {
        QFETCH(QDateTime, date);
        const ZipDate made = entryDate(date);
        QTEST((QList<int>{made.second, made.minute, made.hour, made.day, made.month, made.year}), "fields");
    }

private:
    static QString write(const QTemporaryDir &folder, const QByteArray &contents)
    {
        QFile file(folder.filePath(u"source"_s));
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write(contents);
        file.flush();
        file.setFileTime(QDateTime(QDate(2014, 1, 31), QTime(13, 14, 16)), QFileDevice::FileModificationTime);
        return file.fileName();
    }
};

QTEST_GUILESS_MAIN(ZipWritingTest)
#include "ZipWritingTest.moc"
