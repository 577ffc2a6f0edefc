// SPDX-License-Identifier: MIT
#include "resizer/DownscaleBatch.h"
#include "RetinaFixtures.h"
#include "resizer/MemoryBudget.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class DownscaleBatchTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(u"out"_s));
    }

    void writesEachHalfUnderItsName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QSize>("half");
        QTest::newRow("even") << u"button@2x.png"_s << QSize(200, 80) << u"button.png"_s << QSize(100, 40);
        QTest::newRow("odd") << u"icon@2X.png"_s << QSize(57, 57) << u"icon.png"_s << QSize(28, 28);
        QTest::newRow("both odd") << u"wide-hd.png"_s << QSize(101, 75) << u"wide.png"_s << QSize(50, 37);
        QTest::newRow("two markers") << u"logo-hd@2x.png"_s << QSize(4, 4) << u"logo.png"_s << QSize(2, 2);
        QTest::newRow("foreign letters") << u"ボタン-HD.png"_s << QSize(2, 2) << u"ボタン.png"_s << QSize(1, 1);
        QTest::newRow("no marker in the name") << u"plain.png"_s << QSize(10, 6) << u"plain.png"_s << QSize(5, 3);
    }
    void writesEachHalfUnderItsName()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        QFETCH(QSize, half);
        QFETCH(QString, written);
        QVERIFY(putFlatPng(at(name), size, Qt::red));
        const std::vector<DownscaledFile> files = run({at(name)});
        QCOMPARE(files.size(), 1U);
        QCOMPARE(files[0].source, at(name));
        QCOMPARE(files[0].target, out(written));
        QVERIFY(files[0].outcome.ok());
        QCOMPARE(files[0].size, half);
        QCOMPARE(files[0].bytes, QFileInfo(out(written)).size());
        QCOMPARE(QImage(out(written)).size(), half);
    }

    void reportsInOrderWhateverTakesLonger()
    {
        QStringList paths;
        for (int i = 0; i < 40; ++i) {
            paths << at(u"p%1@2x.png"_s.arg(i));
            // Every fifth is much larger than the following ones.
            QVERIFY(putFlatPng(paths.constLast(), i % 5 == 0 ? QSize(900, 900) : QSize(8, 8), Qt::blue));
        }
        const std::vector<DownscaledFile> files = run(paths);
        QCOMPARE(std::ssize(files), paths.size());
        for (qsizetype i = 0; i < paths.size(); ++i)
            QCOMPARE(files[static_cast<std::size_t>(i)].source, paths.at(i));
    }

    void goesOnOverWhatCannotBeDone_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<FailureCode>("code");
        QTest::newRow("empty") << QByteArray("") << FailureCode::NotAPicture;
        QTest::newRow("text") << QByteArray("no picture") << FailureCode::NotAPicture;
        QTest::newRow("missing") << QByteArray() << FailureCode::NotFound;
        QTest::newRow("truncated") << QByteArray("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\0\x08", 20)
                                   << FailureCode::NotAPicture;
    }
    void goesOnOverWhatCannotBeDone()
    {
        QFETCH(QByteArray, content);
        QFETCH(FailureCode, code);
        const QStringList paths{at(u"a@2x.png"_s), at(u"bad@2x.png"_s), at(u"c@2x.png"_s)};
        QVERIFY(putFlatPng(paths[0], {8, 8}, Qt::red));
        QVERIFY(putFlatPng(paths[2], {8, 8}, Qt::red));
        if (!content.isNull()) {
            QFile bad(paths[1]);
            QVERIFY(bad.open(QIODevice::WriteOnly));
            bad.write(content);
        }
        const std::vector<DownscaledFile> files = run(paths);
        QCOMPARE(files.size(), 3U);
        QVERIFY(files[0].outcome.ok() && files[2].outcome.ok());
        QCOMPARE(files[1].outcome.failure().code, code);
        QCOMPARE(files[1].outcome.failure().subject, paths[1]);
        QCOMPARE(QDir(out({})).entryList(QDir::Files), (QStringList{u"a.png"_s, u"c.png"_s}));
    }

    void aSinglePixelStaysOne()
    {
        QVERIFY(putFlatPng(at(u"dot@2x.png"_s), {1, 1}, Qt::red));
        QVERIFY(putFlatPng(at(u"separator@2x.png"_s), {1, 155}, Qt::red));
        for (const DownscaledFile &file : run({at(u"dot@2x.png"_s), at(u"separator@2x.png"_s)}))
            QVERIFY(file.outcome.ok());
        QCOMPARE(QImage(out(u"dot.png"_s)).size(), QSize(1, 1));
        QCOMPARE(QImage(out(u"separator.png"_s)).size(), QSize(1, 77));
        QCOMPARE(QImage(out(u"separator.png"_s)).pixelColor(0, 40), QColor(Qt::red));
    }

    void aFolderIsNoPicture()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"folder@2x.png"_s));
        QCOMPARE(run({at(u"folder@2x.png"_s)})[0].outcome.failure().code, FailureCode::IsFolder);
    }

    void aMissingDestinationFailsEachFile()
    {
        QVERIFY(putFlatPng(at(u"a@2x.png"_s), {8, 8}, Qt::red));
        std::vector<DownscaledFile> files;
        createImagesFromDataPaths({at(u"a@2x.png"_s)}, at(u"nowhere"_s), [&](qsizetype, const DownscaledFile &file) {
            files.push_back(file);
            return true;
        });
        QCOMPARE(files[0].outcome.failure().code, FailureCode::CannotWrite);
        QVERIFY(!QFileInfo::exists(at(u"nowhere"_s)));
    }

    void replacesWhatStandsThere()
    {
        QVERIFY(putFlatPng(at(u"a@2x.png"_s), {8, 8}, Qt::red));
        QFile old(out(u"a.png"_s));
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write(QByteArray(100000, 'x'));
        old.close();
        QVERIFY(run({at(u"a@2x.png"_s)})[0].outcome.ok());
        QCOMPARE(QImage(out(u"a.png"_s)).size(), QSize(4, 4));
    }

    void ofTwoWithOneNameTheLaterStays()
    {
        QVERIFY(putFlatPng(at(u"a@2x.png"_s), {8, 8}, Qt::red));
        QVERIFY(putFlatPng(at(u"a-hd.png"_s), {20, 20}, Qt::red));
        const std::vector<DownscaledFile> files = run({at(u"a@2x.png"_s), at(u"a-hd.png"_s)});
        QVERIFY(files[0].outcome.ok() && files[1].outcome.ok());
        QCOMPARE(QImage(out(u"a.png"_s)).size(), QSize(10, 10));
    }

    void aMarkedFoldersOwnFileIsReplacedByItsHalf()
    {
        const QString folder = at(u"art-hd"_s);
        QVERIFY(QDir().mkdir(folder));
        QVERIFY(putFlatPng(folder + u"/button.png", {20, 10}, Qt::red));
        createImagesFromDataPaths({folder + u"/button.png"}, folder,
                                  [](qsizetype, const DownscaledFile &) { return true; });
        QCOMPARE(QImage(folder + u"/button.png").size(), QSize(10, 5));
    }

    void aSourceReplacedEarlierIsReadAfterThat()
    {
        const QString folder = at(u"art-hd"_s);
        QVERIFY(QDir().mkdir(folder));
        // Large enough that reading the second at once would come before the first is written.
        QVERIFY(putFlatPng(folder + u"/a@2x.png", {1600, 1600}, Qt::red));
        QVERIFY(putFlatPng(folder + u"/a.png", {6, 6}, Qt::red));
        QList<QSize> sizes;
        createImagesFromDataPaths({folder + u"/a@2x.png", folder + u"/../art-hd/a.png"}, folder,
                                  [&](qsizetype, const DownscaledFile &file) {
                                      sizes << file.size;
                                      return true;
                                  });
        QCOMPARE(sizes, (QList<QSize>{QSize(800, 800), QSize(400, 400)}));
        QCOMPARE(QImage(folder + u"/a.png").size(), QSize(400, 400));
    }

    void stopsWhereToldTo()
    {
        QStringList paths;
        for (int i = 0; i < 30; ++i) {
            paths << at(u"p%1@2x.png"_s.arg(i, 2, 10, QLatin1Char('0')));
            QVERIFY(putFlatPng(paths.constLast(), {8, 8}, Qt::blue));
        }
        createImagesFromDataPaths(paths, out({}), [](qsizetype index, const DownscaledFile &) { return index < 2; });
        QCOMPARE(QDir(out({})).entryList(QDir::Files).size(), 3);
    }

    void aShareLargerThanAllIsAllOfIt()
    {
        MemoryBudget budget(10);
        for (const qint64 bytes : {qint64{100}, qint64{10}, qint64{11}})
            const MemoryBudget::Share share(budget, bytes);
        // All memory is returned.
        const MemoryBudget::Share half(budget, 5);
        const MemoryBudget::Share other(budget, 5);
    }

    void nothingToDoIsDoneAtOnce() { QVERIFY(run({}).empty()); }

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QString out(const QString &name) const { return name.isEmpty() ? at(u"out"_s) : at(u"out/"_s + name); }
    std::vector<DownscaledFile> run(const QStringList &paths) const
    {
        std::vector<DownscaledFile> files;
        createImagesFromDataPaths(paths, out({}), [&](qsizetype index, const DownscaledFile &file) {
            if (index != std::ssize(files))
                qFatal("file %lld reported out of turn", static_cast<long long>(index));
            files.push_back(file);
            return true;
        });
        return files;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(DownscaleBatchTest)
#include "DownscaleBatchTest.moc"
