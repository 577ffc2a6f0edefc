// SPDX-License-Identifier: MIT
#include "TodayPictures.h"
#include "icons/today/ContentExtent.h"
#include "icons/today/Motifs.h"
#include "icons/today/PictureWorkshop.h"
#include "icons/today/TodayExport.h"

#include <QTest>

#include <set>

using namespace lumora;
using namespace Qt::StringLiterals;

class TodaySourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void sizes_data();
    void sizes();
    void borders_data();
    void borders();
    void extents_data();
    void extents();
    void eachSizeIsDrawnOnce();
};

void TodaySourcesTest::sizes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<SourceFit>("fit");
    QTest::addColumn<bool>("taken");
    QTest::addColumn<bool>("scaled");
    QTest::newRow("exact") << QSize(1024, 1024) << SourceFit::Exact << true << false;
    QTest::newRow("exact, though any is taken") << QSize(1024, 1024) << SourceFit::AnySquare << true << false;
    QTest::newRow("larger") << QSize(1500, 1500) << SourceFit::Exact << false << false;
    QTest::newRow("larger, taken") << QSize(1500, 1500) << SourceFit::AnySquare << true << true;
    QTest::newRow("smallest") << QSize(512, 512) << SourceFit::AnySquare << true << true;
    QTest::newRow("too small") << QSize(511, 511) << SourceFit::AnySquare << false << false;
    QTest::newRow("not square") << QSize(1024, 1025) << SourceFit::AnySquare << false << false;
}

void TodaySourcesTest::sizes()
{
    QFETCH(QSize, size);
    QFETCH(SourceFit, fit);
    QFETCH(bool, taken);
    QFETCH(bool, scaled);
    const QByteArray file = pictureFile(testPicture(size.width(), size.height()));
    const Result<ReadSource> read = readTodaySource(file, u"a.png"_s, fit);
    QCOMPARE(read.ok(), taken);
    if (!taken) {
        QCOMPARE(read.failure().code, FailureCode::WrongSize);
        return;
    }
    QCOMPARE(read.value().artwork.at(1024).size(), QSize(1024, 1024));
    QCOMPARE(read.value().derived.size(), scaled ? 1 : 0);
}

void TodaySourcesTest::borders_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<QColor>("color");
    QTest::newRow("transparent") << disk(900) << QColor();
    QTest::newRow("uniform") << disk(900, Qt::red, QColor(1, 2, 3)) << QColor(1, 2, 3);
    QTest::newRow("noise") << opaquePicture() << QColor();
    QTest::newRow("a disk that reaches the edges") << disk(1010, Qt::red, Qt::white) << QColor();
}

void TodaySourcesTest::borders()
{
    QFETCH(QImage, picture);
    const auto color = borderColor(picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied));
    QTEST(color.value_or(QColor()), "color");
}

void TodaySourcesTest::extents_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<double>("diameter");
    QTest::newRow("full square") << opaquePicture() << 1.4142;
    QTest::newRow("disk") << disk(1000) << 1.0;
    QTest::newRow("disk on its ground") << disk(500, Qt::red, Qt::blue) << 0.5;
    QTest::newRow("nothing") << disk(0) << 0.0;
    QTest::newRow("ground only") << disk(0, Qt::red, Qt::blue) << 0.0;
}

void TodaySourcesTest::extents()
{
    QFETCH(QImage, picture);
    QFETCH(double, diameter);
    const double found = contentDiameter(picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied));
    // The outermost pixels of an arc are counted whole.
    QVERIFY2(qAbs(found - diameter) < 0.004, qPrintable(QString::number(found)));
}

void TodaySourcesTest::eachSizeIsDrawnOnce()
{
    TodaySources sources = sourcesOf(disk(900));
    sources.flatten = QColor(Qt::white);
    const Motifs motifs(sources, MacForm::Body);
    QList<TodaySet> sets;
    for (const TodaySetInfo &info : todaySets) {
        if (info.isCommon)
            sets << info.set;
    }
    const Result<FilePlan> plan = planSets(sets, motifs, {u"App"_s});
    QVERIFY(plan.ok());
    PictureWorkshop workshop(motifs);
    workshop.prepare(recipesOf(plan.value()));
    std::set<std::tuple<Motif, int, int>> distinct;
    for (const PlannedFile &file : plan.value().files) {
        QVERIFY(!plannedBytes(file, workshop).value().isEmpty());
        for (const PictureRecipe &recipe : file.pictures)
            distinct.emplace(recipe.motif, recipe.layer, recipe.edge);
    }
    QCOMPARE(workshop.drawings(), static_cast<int>(distinct.size()));
}

QTEST_APPLESS_MAIN(TodaySourcesTest)

#include "TodaySourcesTest.moc"
