// SPDX-License-Identifier: MIT
#include "tests/doubles/ScriptedFiles.h"
#include "validator/archive/PackageView.h"
#include "validator/archive/ZipArchive.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <sys/stat.h>

using namespace lumora;
using namespace Qt::StringLiterals;

/// Archives beyond the format's 16 and 32-bit fields.
class LargeArchiveTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(runScript(u"make_archives.py"_s, {m_archives.path(), u"many"_s, u"huge"_s, u"sparse"_s}));
    }

    void readsMoreEntriesThan16BitsCount()
    {
        const QTemporaryDir destination;
        extract(u"70000 entries"_s, destination);
        qsizetype files = 0;
        for (int folder = 0; folder < 100; ++folder)
            files += QDir(destination.filePath(QString::number(folder))).entryList(QDir::Files).size();
        QCOMPARE(files, 70'000);
    }

    void readsAnEntryOfMoreThan32Bits_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QString>("behind");
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("over 4 GB") << (qint64{4097} << 20) + 3 << u"behind"_s << "behind the large one"_ba;
        QTest::newRow("sparse over 4 GB") << (qint64{4} << 30) + 4096 << u"beyond"_s << "beyond 4 GB"_ba;
    }
    void readsAnEntryOfMoreThan32Bits()
    {
        QFETCH(QString, behind);
        const QTemporaryDir destination;
        extract(QString::fromUtf8(QTest::currentDataTag()), destination);
        const QString zeros = destination.filePath(u"zeros"_s);
        QTEST(QFileInfo(zeros).size(), "size");
        QFile file(destination.filePath(behind));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QTEST(file.readAll(), "contents");

        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(zeros).constData(), &status), 0);
        QVERIFY2(status.st_blocks * 512 < 1 << 20, "zeros are holes and take no disk space");
    }

    void readsThemWhereTheyLie_data()
    {
        QTest::addColumn<qsizetype>("files");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("over 4 GB") << qsizetype(2) << u"behind"_s << "behind the large one"_ba;
        QTest::newRow("sparse over 4 GB") << qsizetype(2) << u"beyond"_s << "beyond 4 GB"_ba;
        QTest::newRow("70000 entries") << qsizetype(70'000) << u""_s << QByteArray();
    }
    void readsThemWhereTheyLie()
    {
        QFETCH(QString, last);
        const auto view =
            PackageView::open(m_archives.filePath(QString::fromUtf8(QTest::currentDataTag()) + u".zip"_s));
        QVERIFY(view);
        QVERIFY(!view.value()->failure());
        const auto &entries = view.value()->entries();
        const auto files = std::count_if(entries.cbegin(), entries.cend(),
                                         [](const PackageEntry &entry) { return entry.kind == EntryKind::File; });
        QTEST(qsizetype(files), "files");
        if (!last.isEmpty())
            QTEST(view.value()->read(last, 1000).value(), "contents");
        const WholeReading reading = view.value()->readAll([](const PackageEntry &) { return nullptr; });
        QVERIFY(!reading.failure);
        QCOMPARE(reading.damaged, QStringList());
    }

private:
    void extract(const QString &name, const QTemporaryDir &destination)
    {
        ZipArchive zip;
        QVERIFY(zip.UnzipOpenFile(m_archives.filePath(name + u".zip"_s)));
        QVERIFY(zip.UnzipFileTo(destination.path(), true));
        QVERIFY(zip.damagedEntries().isEmpty());
        QVERIFY(zip.UnzipCloseFile());
    }

    QTemporaryDir m_archives;
};

QTEST_GUILESS_MAIN(LargeArchiveTest)
#include "LargeArchiveTest.moc"
