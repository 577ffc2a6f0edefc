// SPDX-License-Identifier: MIT
#include "DensityFolder.h"
#include "resizer/densities/DensityBatch.h"

#include "foundation/WholeFile.h"
#include "pictures/PictureReader.h"
#include "resources/Resources.h"
#include "tests/pictures/TestPictures.h"
#include "tests/resizer/RetinaFixtures.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The run writes exactly what is planned for a folder, and no file is lost.
class DensityPlanTest : public QObject, private DensityFolder
{
    Q_OBJECT

private slots:
    void initTestCase() { installTexts(*qApp, QLocale(u"en_GB"_s)); }

    void init() { renew(); }

    void everyMissingDensityIsPlanned_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("targets");
        QTest::newRow("ios") << u"ios"_s << QStringList{u"a@3x.png"_s}
                             << QStringList{u"a@2x.png 40x20"_s, u"a.png 20x10"_s};
        QTest::newRow("ios, one there") << u"ios"_s << QStringList{u"a@3x.png"_s, u"a@2x.png"_s}
                                        << QStringList{u"a@2x.png kept"_s, u"a.png 20x10"_s};
        QTest::newRow("ios, the larger of two")
            << u"ios"_s << QStringList{u"b@2x.png"_s} << QStringList{u"b.png 30x15"_s};
        QTest::newRow("nothing to do") << u"ios"_s << QStringList{u"b.png"_s}
                                       << QStringList{u"no picture to scale down from"_s};
        QTest::newRow("android") << u"android"_s << QStringList{u"res/drawable-xxxhdpi/a.png"_s}
                                 << QStringList{u"res/drawable-xxhdpi/a.png 45x23 rounded"_s,
                                                u"res/drawable-xhdpi/a.png 30x15"_s,
                                                u"res/drawable-hdpi/a.png 23x11 rounded"_s,
                                                u"res/drawable-mdpi/a.png 15x8 rounded"_s};
        QTest::newRow("flutter") << u"flutter"_s << QStringList{u"assets/3.0x/a.png"_s}
                                 << QStringList{u"assets/2.0x/a.png 40x20"_s, u"assets/a.png 20x10"_s};
        QTest::newRow("react native") << u"react-native"_s << QStringList{u"a@3x.png"_s}
                                      << QStringList{u"a@2x.png 40x20"_s, u"a@1.5x.png 30x15"_s, u"a.png 20x10"_s};
        QTest::newRow("nine patch") << u"android"_s << QStringList{u"drawable-xxxhdpi/a.9.png"_s}
                                    << QStringList{u"a nine-patch picture"_s};
        QTest::newRow("hidden") << u"ios"_s << QStringList{u".git/a@3x.png"_s}
                                << QStringList{u"no picture to scale down from"_s};
    }
    void everyMissingDensityIsPlanned()
    {
        QFETCH(QString, layout);
        QFETCH(QStringList, files);
        for (const QString &file : files)
            put(file, {60, 30});
        QTEST(described(planDensities({m_folder->path()}, requestFor(layout))), "targets");
    }

    void drawingsAreDrawnInEveryDensity_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("targets");
        QTest::newRow("ios") << u"ios"_s << u"art/a.svg"_s
                             << QStringList{u"art/a@3x.png 72x36"_s, u"art/a@2x.png 48x24"_s, u"art/a.png 24x12"_s};
        QTest::newRow("a stated density")
            << u"ios"_s << u"a@2x.svg"_s << QStringList{u"a@3x.png 36x18"_s, u"a@2x.png 24x12"_s, u"a.png 12x6"_s};
        QTest::newRow("android, anywhere")
            << u"android"_s << u"art/a.svg"_s
            << QStringList{u"art/drawable-xxxhdpi/a.png 96x48"_s, u"art/drawable-xxhdpi/a.png 72x36"_s,
                           u"art/drawable-xhdpi/a.png 48x24"_s, u"art/drawable-hdpi/a.png 36x18"_s,
                           u"art/drawable-mdpi/a.png 24x12"_s};
        QTest::newRow("android, anydpi") << u"android"_s << u"res/mipmap-night-anydpi-v26/a.svg"_s
                                         << QStringList{u"res/mipmap-night-xxxhdpi/a.png 96x48"_s,
                                                        u"res/mipmap-night-xxhdpi/a.png 72x36"_s,
                                                        u"res/mipmap-night-xhdpi/a.png 48x24"_s,
                                                        u"res/mipmap-night-hdpi/a.png 36x18"_s,
                                                        u"res/mipmap-night-mdpi/a.png 24x12"_s};
        QTest::newRow("flutter") << u"flutter"_s << u"assets/a.SVG"_s
                                 << QStringList{u"assets/4.0x/a.png 96x48"_s, u"assets/3.0x/a.png 72x36"_s,
                                                u"assets/2.0x/a.png 48x24"_s, u"assets/a.png 24x12"_s};
    }
    void drawingsAreDrawnInEveryDensity()
    {
        QFETCH(QString, layout);
        QFETCH(QString, file);
        QFETCH(QStringList, targets);
        putDrawing(file);
        DensityRequest request = requestFor(layout);
        // In a folder they may be there for other reasons.
        QCOMPARE(described(planDensities({m_folder->path()}, request)),
                 QStringList{u"no picture to scale down from"_s});
        request.kind = SourceKind::Drawings;
        const DensityPlan plan = planDensities({m_folder->path()}, request);
        QCOMPARE(described(plan), targets);
        scaleDensities(plan, {}, [](auto, const auto &) { return true; });
        for (const PlannedTarget &picture : plan.sources.at(0).pictures) {
            const Result<QImage> drawn = readPicture(picture.target);
            QVERIFY(drawn.ok());
            QCOMPARE(drawn.value().size(), picture.size);
            const QRect left(0, 0, picture.size.width() / 2, picture.size.height());
            QVERIFY(near(drawn.value().pixel(left.center()), qRgb(255, 0, 0), 0));
            QCOMPARE(qAlpha(drawn.value().pixel(picture.size.width() - 1, 0)), 0);
        }
    }

    void aBadDrawingIsLeftOut_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("no drawing") << QByteArray("nothing");
        QTest::newRow("text") << QByteArray(
            "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><text/></svg>");
        QTest::newRow("from elsewhere") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' "
                                                      "height='9'><image href='http://a.example/a.png'/></svg>");
        QTest::newRow("far too large in every density")
            << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9000' height='9000'/>");
    }
    void aBadDrawingIsLeftOut()
    {
        QFETCH(QByteArray, file);
        QVERIFY(writeWholeFile(path(u"a.svg"_s), file).ok());
        const DensityPlan plan = planDensities({path(u"a.svg"_s)}, requestFor(u"ios"_s));
        QVERIFY(plan.sources.empty());
        QVERIFY(!plan.failures.empty());
    }

    void filesMayBeNamedThemselves_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QStringList>("targets");
        QTest::newRow("ios") << u"ios"_s << QStringList{u"art/a@3x.png"_s}
                             << QStringList{u"art/a@2x.png 40x20"_s, u"art/a.png 20x10"_s};
        QTest::newRow("with its folder") << u"ios"_s << QStringList{u"art/a@3x.png"_s, u"art"_s, u"art/a@3x.png"_s}
                                         << QStringList{u"art/a@2x.png 40x20"_s, u"art/a.png 20x10"_s};
        QTest::newRow("flutter") << u"flutter"_s << QStringList{u"3.0x/b.png"_s}
                                 << QStringList{u"2.0x/b.png 40x20"_s, u"b.png 20x10"_s};
        QTest::newRow("android") << u"android"_s << QStringList{u"drawable-xhdpi/c.png"_s}
                                 << QStringList{u"drawable-hdpi/c.png 45x23 rounded"_s, u"drawable-mdpi/c.png 30x15"_s};
        QTest::newRow("android, elsewhere") << u"android"_s << QStringList{u"art/a@3x.png"_s}
                                            << QStringList{u"not in a folder such as drawable-xxhdpi"_s};
        QTest::newRow("a drawing") << u"web"_s << QStringList{u"art/d.svg"_s}
                                   << QStringList{u"art/d@3x.png 72x36"_s, u"art/d@2x.png 48x24"_s,
                                                  u"art/d.png 24x12"_s};
        QTest::newRow("nothing there") << u"ios"_s << QStringList{u"none@3x.png"_s} << QStringList{QString()};
    }
    void filesMayBeNamedThemselves()
    {
        QFETCH(QString, layout);
        QFETCH(QStringList, paths);
        for (const QString &file : {u"art/a@3x.png"_s, u"3.0x/b.png"_s, u"drawable-xhdpi/c.png"_s})
            put(file, {60, 30});
        putDrawing(u"art/d.svg"_s);
        for (QString &one : paths)
            one = path(one);
        QTEST(described(planDensities(paths, requestFor(layout))), "targets");
    }

    void aJpegFileNeedsAnotherFormat()
    {
        QVERIFY(writeWholeFile(path(u"a@2x.JPG"_s), pictureFile(quarters(40, 20), "jpeg")).ok());
        DensityRequest request = requestFor(u"ios"_s);
        QCOMPARE(described(planDensities({m_folder->path()}, request)),
                 QStringList{u"a JPEG picture, for which PNG or WebP must be chosen"_s});
        request.format = ScaledFormat::WebP;
        const DensityPlan plan = planDensities({m_folder->path()}, request);
        QCOMPARE(described(plan), QStringList{u"a.webp 20x10"_s});
        scaleDensities(plan, {}, [](auto, const auto &) { return true; });
        QCOMPARE(QImage(path(u"a.webp"_s)).size(), QSize(20, 10));
    }

    void aStoppedPlanIsIncomplete()
    {
        put(u"a@3x.png"_s, {60, 30});
        std::stop_source stop;
        stop.request_stop();
        QVERIFY(planDensities({m_folder->path()}, requestFor(u"ios"_s), stop.get_token()).sources.empty());
    }

    void theWantedDensitiesAreMade()
    {
        put(u"a@4x.png"_s, {80, 40});
        put(u"b@3x.png"_s, {60, 30});
        DensityRequest request = requestFor(u"react-native"_s);
        request.from = densityNamed(u"4x");
        request.to = {*densityNamed(u"1.5x"), *densityNamed(u"4x"), *densityNamed(u"1.5x")};
        QCOMPARE(described(planDensities({m_folder->path()}, request)), QStringList{u"a@1.5x.png 30x15"_s});
    }

    void whatIsPlannedIsWritten()
    {
        put(u"a@3x.png"_s, {91, 62});
        put(u"sub/b@3x.png"_s, {30, 30});
        DensityRequest request = requestFor(u"ios"_s);
        const DensityPlan plan = planDensities({m_folder->path()}, request);
        QCOMPARE(filesBelow(), 2);
        QStringList written;
        scaleDensities(plan, {}, [&](qsizetype index, const std::vector<ScaledFile> &files) {
            expect(index < 2);
            for (const ScaledFile &file : files) {
                expect(file.outcome.ok());
                written << relative(file.target);
                const Result<QImage> picture = readPicture(file.target);
                expect(picture.ok() && picture.value().size() == file.size && file.bytes > 0);
                expect(near(picture.value().pixel(1, 1), qRgb(10, 20, 200), 0));
            }
            return true;
        });
        QCOMPARE(written, (QStringList{u"a@2x.png"_s, u"a.png"_s, u"sub/b@2x.png"_s, u"sub/b.png"_s}));
        // A second plan has nothing left to do.
        const DensityPlan again = planDensities({m_folder->path()}, request);
        QVERIFY(std::ranges::none_of(again.sources[0].pictures, &PlannedTarget::written));
        QVERIFY(!m_failed);
    }

    void anExistingFileStaysUntilReplacingIsAllowed()
    {
        put(u"a@3x.png"_s, {60, 30});
        put(u"a.png"_s, {7, 7});
        const QByteArray before = content(u"a.png"_s);
        DensityRequest request = requestFor(u"ios"_s);
        scaleDensities(planDensities({m_folder->path()}, request), {}, [](auto, const auto &) { return true; });
        QCOMPARE(content(u"a.png"_s), before);
        request.existing = ExistingFiles::Replace;
        const DensityPlan plan = planDensities({m_folder->path()}, request);
        // The options count as well, so that an old plan does no harm.
        Outcome outcome = Done{};
        scaleDensities(plan, {}, [&](auto, const std::vector<ScaledFile> &files) {
            outcome = files.back().outcome;
            return true;
        });
        QVERIFY(!outcome.ok());
        QCOMPARE(content(u"a.png"_s), before);
        scaleDensities(plan, {{}, ExistingFiles::Replace}, [](auto, const auto &) { return true; });
        QVERIFY(content(u"a.png"_s) != before);
    }

    void aSourceIsNeverReplaced()
    {
        put(u"a@3x.png"_s, {60, 30});
        const QByteArray before = content(u"a@3x.png"_s);
        QVERIFY(QFile::link(path(u"a@3x.png"_s), path(u"a@2x.png"_s)));
        DensityRequest request = requestFor(u"ios"_s);
        request.from = densityNamed(u"3x");
        request.existing = ExistingFiles::Replace;
        const DensityPlan plan = planDensities({m_folder->path()}, request);
        QCOMPARE(plan.failures.size(), std::size_t{1});
        QCOMPARE(plan.failures[0].code, FailureCode::WouldReplaceSource);
        scaleDensities(plan, {{}, ExistingFiles::Replace}, [](auto, const auto &) { return true; });
        QCOMPARE(content(u"a@3x.png"_s), before);
    }

    void twoSourcesNeverShareATarget()
    {
        put(u"a@3x.png"_s, {60, 30});
        putWebP(u"a@3x.webp"_s, {60, 30});
        DensityRequest request = requestFor(u"ios"_s);
        request.format = ScaledFormat::Png;
        const DensityPlan plan = planDensities({m_folder->path()}, request);
        QCOMPARE(plan.failures.size(), std::size_t{2});
        QVERIFY(plan.failures[0].detail.words().endsWith(u"a@3x.png gives the same file"_s));
        request.format = ScaledFormat::AsSource;
        QCOMPARE(described(planDensities({m_folder->path()}, request)),
                 (QStringList{u"a@2x.png 40x20"_s, u"a.png 20x10"_s, u"a@2x.webp 40x20"_s, u"a.webp 20x10"_s}));
    }

    void aSecondRunInAnotherFormatPlansTheSame()
    {
        put(u"a@3x.png"_s, {60, 30});
        DensityRequest request = requestFor(u"ios"_s);
        request.format = ScaledFormat::WebP;
        request.existing = ExistingFiles::Replace;
        const QStringList files{u"a@2x.webp 40x20"_s, u"a.webp 20x10"_s};
        const DensityPlan first = planDensities({m_folder->path()}, request);
        QCOMPARE(described(first), files);
        scaleDensities(first, {{}, ExistingFiles::Replace}, [](auto, const auto &) { return true; });
        // What the first run made of the picture is no source beside it.
        const DensityPlan second = planDensities({m_folder->path()}, request);
        QVERIFY(second.failures.empty());
        QCOMPARE(described(second), files);
        QCOMPARE(relative(second.sources[0].source), u"a@3x.png"_s);
    }

    void resultsMayGoElsewhereAndBeWebP()
    {
        put(u"res/drawable-xxxhdpi/a.png"_s, {64, 64});
        QTemporaryDir other;
        DensityRequest request = requestFor(u"android"_s);
        request.destination = other.path();
        request.format = ScaledFormat::WebP;
        request.to = {*densityNamed(u"mdpi")};
        scaleDensities(planDensities({m_folder->path()}, request), {80, ExistingFiles::Keep},
                       [](auto, const auto &) { return true; });
        QCOMPARE(QImage(other.path() + u"/res/drawable-mdpi/a.webp"_s).size(), QSize(16, 16));
        QCOMPARE(filesBelow(), 1);
    }

    void damageIsToldAndTheRestIsDone()
    {
        put(u"b@3x.png"_s, {60, 30});
        QVERIFY(writeWholeFile(path(u"a@3x.png"_s), "no picture").ok());
        QVERIFY(writeWholeFile(path(u"c@3x.png"_s), content(u"b@3x.png"_s).chopped(30)).ok());
        const DensityPlan plan = planDensities({m_folder->path()}, requestFor(u"ios"_s));
        QCOMPARE(plan.failures.size(), std::size_t{1});
        int failed = 0;
        scaleDensities(plan, {}, [&failed](auto, const std::vector<ScaledFile> &files) {
            for (const ScaledFile &file : files)
                failed += file.outcome.ok() ? 0 : 1;
            return true;
        });
        QCOMPARE(failed, 2);
        QVERIFY(QFile::exists(path(u"b.png"_s)));
        QVERIFY(!QFile::exists(path(u"c.png"_s)));
    }

    void aPictureTurnedByItsOrientationIsTurned()
    {
        const QByteArray exif = QByteArray::fromHex("4d4d002a00000008000101120003000000010006000000000000");
        QVERIFY(writeWholeFile(path(u"a@2x.webp"_s),
                               withWebpChunk(pictureFile(quarters(40, 20), "webp"), {40, 20}, "EXIF", exif))
                    .ok());
        DensityRequest request = requestFor(u"ios"_s);
        request.format = ScaledFormat::Png;
        scaleDensities(planDensities({m_folder->path()}, request), {}, [](auto, const auto &) { return true; });
        QCOMPARE(QImage(path(u"a.png"_s)).size(), QSize(10, 20));
    }

    void aStopStops()
    {
        // Far more sources than the workers, of which there is one a core, may be ahead of the reports.
        const int sources = 40 + 8 * QThread::idealThreadCount();
        for (int number = 0; number < sources; ++number)
            put(u"p%1@3x.png"_s.arg(number, 4, 10, QLatin1Char('0')), {30, 30});
        qsizetype calls = 0;
        int reported = 0;
        scaleDensities(planDensities({m_folder->path()}, requestFor(u"ios"_s)), {},
                       [&](qsizetype, const std::vector<ScaledFile> &files) {
                           reported += static_cast<int>(files.size());
                           return ++calls < 3;
                       });
        QVERIFY(calls >= 3);
        QCOMPARE(filesBelow(), sources + reported);
        QVERIFY(filesBelow() < sources * 3);
    }

private:
    /// Records a failure inside a function that must return a value.
    void expect(bool holds) { m_failed = m_failed || !holds; }

    bool m_failed = false;
};

QTEST_GUILESS_MAIN(DensityPlanTest)
#include "DensityPlanTest.moc"
