// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "SmallDisk.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The address space for runs with hostile files, in bytes, including the libraries.
constexpr quint64 limitedMemory = 1'500'000'000;

} // namespace

class DownscaleFailuresTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_picture = pictureFile(testPicture(40, 31)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"out"_s));
    }

    void oneBadAmongGood_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        const QString noPicture = u"is not a picture that can be read; use an undamaged PNG file"_s;
        const QString damaged = u"is not a picture that can be read (damaged); use an undamaged PNG file"_s;
        QTest::newRow("empty") << u"bad@2x.png"_s << QByteArray("") << noPicture;
        QTest::newRow("text") << u"bad@2x.png"_s << QByteArray("hello") << noPicture;
        QTest::newRow("a drawing with scripts")
            << u"bad@2x.png"_s << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'/>")
            << noPicture;
        QTest::newRow("60000 x 60000 claimed")
            << u"bad@2x.png"_s << pngClaiming(60000, 60000) << u"is larger than what can be processed safely"_s;
        QTest::newRow("more claimed than there is") << u"bad@2x.png"_s << pngClaiming(500, 500) << damaged;
        QTest::newRow("no pixels") << u"bad@2x.png"_s << pngClaiming(0, 0) << noPicture;
        QTest::newRow("missing") << u"bad@2x.png"_s << QByteArray() << u"does not exist"_s;
        const QString notMarked = u"is not a .png file marked @2x or -hd"_s;
        QTest::newRow("no marker") << u"bad.png"_s << m_picture << notMarked;
        QTest::newRow("upper-case extension") << u"icon@2x.PNG"_s << m_picture << notMarked;
        QTest::newRow("another extension") << u"icon@2x.jpg"_s << m_picture << notMarked;
        QTest::newRow("a line break in its name") << u"bad\n@2x.jpg"_s << m_picture << notMarked;
        for (const double share : {0.001, 0.01, 0.5, 0.99})
            QTest::addRow("cut off after %g of it", share)
                << u"bad@2x.png"_s
                << m_picture.first(qMax<qsizetype>(8, static_cast<qsizetype>(share * double(m_picture.size()))))
                << u"is not a picture that can be read"_s;
    }
    void oneBadAmongGood()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        put({u"a@2x.png"_s, u"c@2x.png"_s});
        if (!content.isNull())
            QVERIFY(putFile(at(name), content));
        expectOthersDone(LumoraProcess().withMemory(limitedMemory), name, reason);
    }

    void anUnreadableFile()
    {
        put({u"a@2x.png"_s, u"bad@2x.png"_s, u"c@2x.png"_s});
        QVERIFY(QFile::setPermissions(at(u"bad@2x.png"_s), QFile::Permissions()));
        expectOthersDone(LumoraProcess().underPermissions(), u"bad@2x.png"_s, u"may not be opened"_s);
    }

    void aPipe()
    {
        put({u"a@2x.png"_s, u"c@2x.png"_s});
        QCOMPARE(::mkfifo(QFile::encodeName(at(u"bad@2x.png"_s)).constData(), 0600), 0);
        expectOthersDone(LumoraProcess(), u"bad@2x.png"_s, u"could not be read (not a regular file)"_s);
    }

    void aPipeThatNobodyReadsInTheWayOfAHalf()
    {
        put({u"a@2x.png"_s, u"bad@2x.png"_s, u"c@2x.png"_s});
        QCOMPARE(::mkfifo(QFile::encodeName(at(u"out/bad.png"_s)).constData(), 0600), 0);
        const LumoraRun run = runLumora({u"downscale"_s, at(u"a@2x.png"_s), at(u"bad@2x.png"_s), at(u"c@2x.png"_s),
                                         u"--to"_s, at(u"out"_s), u"--overwrite"_s});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.err.contains("bad.png: could not be written"), run.err.constData());
        QVERIFY(QFile::exists(at(u"out/a.png"_s)) && QFile::exists(at(u"out/c.png"_s)));
    }

    void foldersWithTrouble_data()
    {
        QTest::addColumn<QString>("inside");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<QString>("reason");
        QTest::newRow("nothing marked in it") << u"bad/plain.png"_s << false << u"no .png marked @2x or -hd"_s;
        QTest::newRow("may not be looked into") << u"bad/b@2x.png"_s << true << u"may not be opened"_s;
    }
    void foldersWithTrouble()
    {
        QFETCH(QString, inside);
        QFETCH(bool, closed);
        QFETCH(QString, reason);
        put({u"a@2x.png"_s, u"c@2x.png"_s, inside});
        LumoraProcess process;
        if (closed) {
            QVERIFY(QFile::setPermissions(at(u"bad"_s), QFile::Permissions()));
            process.underPermissions();
        }
        expectOthersDone(process, u"bad"_s, reason);
        QVERIFY(QFile::setPermissions(at(u"bad"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    void memoryStaysBounded_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("36 million deep pixels") << pngOfZeroes(6000, 6000);
        QTest::newRow("a profile that unpacks to a gigabyte") << pngWithLongProfile(1'000'000'000);
    }
    void memoryStaysBounded()
    {
        QFETCH(QByteArray, file);
        // Enough for one of them, whatever the number of cores.
        constexpr quint64 enoughForOne = 1'000'000'000;
        QStringList paths;
        for (int i = 0; i < 2; ++i) {
            paths << at(u"p%1@2x.png"_s.arg(i));
            QVERIFY(putFile(paths.constLast(), file));
        }
        const LumoraRun run =
            LumoraProcess().withMemory(enoughForOne).run(QStringList{u"downscale"_s, u"--to"_s, at(u"out"_s)} + paths);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(filesBelowFolder(at(u"out"_s)).size(), 2);
    }

    void littleMemoryIsReported_data()
    {
        // From too little for a picture to enough for all; a few megabytes decide which allocation fails.
        QTest::addColumn<quint64>("megabytes");
        for (const quint64 megabytes : {90, 100, 106, 118, 136, 200})
            QTest::addRow("%llu MB", megabytes) << megabytes;
    }
    void littleMemoryIsReported()
    {
        QFETCH(quint64, megabytes);
        QStringList paths;
        for (int i = 0; i < 4; ++i) {
            paths << at(u"p%1@2x.png"_s.arg(i));
            QVERIFY(putFile(paths.constLast(), pngOfZeroes(800 + 200 * i, 800)));
        }
        const LumoraRun run = LumoraProcess()
                                  .withMemory(megabytes * 1'000'000)
                                  .run(QStringList{u"downscale"_s, u"--to"_s, at(u"out"_s)} + paths);
        QVERIFY2(run.status == 0 || run.status == 1, run.err.constData());
        QCOMPARE(run.complaints().isEmpty(), run.status == 0);
        for (const QString &file : filesBelowFolder(at(u"out"_s)))
            QVERIFY2(!QImage(at(u"out/"_s) + file).isNull(), qPrintable(file));
    }

    void refusedDestination_data()
    {
        QTest::addColumn<QString>("destination");
        QTest::addColumn<QString>("reason");
        QTest::newRow("below a file") << u"a@2x.png/out"_s << u"could not be created (Not a directory)"_s;
        QTest::newRow("a file") << u"a@2x.png"_s << u"is not a folder"_s;
        QTest::newRow("a device") << u"/dev/null"_s << u"is not a folder"_s;
    }
    void refusedDestination()
    {
        QFETCH(QString, destination);
        QFETCH(QString, reason);
        put({u"a@2x.png"_s});
        const LumoraRun run =
            LumoraProcess().in(m_folder->path()).run({u"downscale"_s, u"a@2x.png"_s, u"--to"_s, destination});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.err.contains(reason.toUtf8()), run.err.constData());
        QCOMPARE(filesBelowFolder(m_folder->path()), QStringList{u"a@2x.png"_s});
    }

    void unwritableDestination()
    {
        put({u"a@2x.png"_s, u"b@2x.png"_s});
        QVERIFY(QFile::setPermissions(at(u"out"_s), QFile::ReadOwner | QFile::ExeOwner));
        const LumoraRun run = LumoraProcess().underPermissions().run(
            {u"downscale"_s, at(u"a@2x.png"_s), at(u"b@2x.png"_s), u"--to"_s, at(u"out"_s)});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.complaints().size(), 2);
        for (const QString &line : run.complaints())
            QVERIFY2(line.contains(u"could not be written (Permission denied)"_s), qPrintable(line));
    }

    void fullDisk()
    {
        // The small ones fit, the large one does not.
        put({u"a@2x.png"_s, u"c@2x.png"_s});
        QVERIFY(putFile(at(u"b@2x.png"_s), pictureFile(testPicture(600, 600))));
        const SmallDisk disk(40 * 1024);
        LumoraProcess process;
        // If mounting is not allowed, the files' length is limited instead, which fails at the same call.
        if (!disk.isMounted())
            process.withLongestFile(40 * 1024);
        const LumoraRun run = process.run(
            {u"downscale"_s, at(u"a@2x.png"_s), at(u"b@2x.png"_s), at(u"c@2x.png"_s), u"--to"_s, disk.path()});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.err.contains("b.png: could not be written"), run.err.constData());
        QCOMPARE(filesBelowFolder(disk.path()), (QStringList{u"a.png"_s, u"c.png"_s}));
    }

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    void put(const QStringList &names) const
    {
        for (const QString &name : names)
            QVERIFY(putFile(at(name), m_picture));
    }
    /// Runs it on a@2x.png, the bad one and c@2x.png.
    void expectOthersDone(const LumoraProcess &process, const QString &bad, const QString &reason) const
    {
        const LumoraRun run =
            process.run({u"downscale"_s, at(u"a@2x.png"_s), at(bad), at(u"c@2x.png"_s), u"--to"_s, at(u"out"_s)});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.complaints().size() == 1, run.err.constData());
        const QString named = at(bad).replace(u'\n', u"<U+000A>"_s);
        QVERIFY2(run.complaints().constFirst().startsWith(QString(u"lumora: "_s + named + u": "_s)),
                 run.err.constData());
        QVERIFY2(run.err.contains(reason.toUtf8()), run.err.constData());
        QCOMPARE(run.out, (at(u"out/a.png\n"_s) + at(u"out/c.png\n"_s)).toUtf8());
        QCOMPARE(filesBelowFolder(at(u"out"_s)), (QStringList{u"a.png"_s, u"c.png"_s}));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_picture;
};

QTEST_GUILESS_MAIN(DownscaleFailuresTest)
#include "DownscaleFailuresTest.moc"
