// SPDX-License-Identifier: MIT
#include "placeholders/PlaceholderExport.h"
#include "placeholders/LabelFont.h"
#include "placeholders/PlaceholderSizes.h"
#include "placeholders/TypedSize.h"

#include <QColorSpace>
#include <QDir>
#include <QImageReader>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

std::vector<Placeholder> placeholders(std::initializer_list<QSize> sizes)
{
    const LabelFont font;
    std::vector<Placeholder> pictures;
    for (const QSize size : sizes)
        pictures.push_back(placeholderWithSize(size, font));
    return pictures;
}

} // namespace

class PlaceholderExportTest : public QObject
{
    Q_OBJECT

private slots:
    void writesEachSizeOfASet_data()
    {
        QTest::addColumn<PlaceholderSet>("set");
        QTest::newRow("iOS") << PlaceholderSet::Ios;
        QTest::newRow("Mac") << PlaceholderSet::Mac;
    }
    void writesEachSizeOfASet()
    {
        QFETCH(PlaceholderSet, set);
        const QTemporaryDir destination;
        const LabelFont font;
        std::vector<Placeholder> pictures;
        for (const QSize size : placeholderSizes(set))
            pictures.push_back(placeholderWithSize(size, font));
        QList<qsizetype> progress;
        const PlaceholderRun run = savePlaceholders(pictures, destination.path(), [&](qsizetype done, qsizetype total) {
            progress << done;
            return total == std::ssize(pictures);
        });

        QCOMPARE(run.folder.path, destination.filePath(u"placeholders"_s));
        QVERIFY(!run.folder.nameTaken);
        QVERIFY(!run.folderFailure);
        QCOMPARE(std::ssize(run.files), std::ssize(pictures));
        for (std::size_t i = 0; i < pictures.size(); ++i) {
            const PlaceholderFile &file = run.files[i];
            QVERIFY(file.outcome.ok());
            QCOMPARE(file.path, QString(run.folder.path + u'/' + placeholderFileName(pictures[i].size())));
            QCOMPARE(file.bytes, QFileInfo(file.path).size());
            QCOMPARE(QImage(file.path).convertToFormat(QImage::Format_RGBA8888).size(), pictures[i].size());
            QCOMPARE(progress.at(static_cast<qsizetype>(i)), static_cast<qsizetype>(i) + 1);
        }
        QCOMPARE(QDir(run.folder.path).entryList(QDir::Files).size(), static_cast<qsizetype>(pictures.size()));
    }

    void writesThePixelsThatWereDrawn_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("one pixel") << QSize(1, 1);
        QTest::newRow("one section") << QSize(300, 200);
        QTest::newRow("several sections") << QSize(1440, 900);
        QTest::newRow("a strip") << QSize(9999, 1);
        QTest::newRow("a column") << QSize(1, 9999);
    }
    void writesThePixelsThatWereDrawn()
    {
        QFETCH(QSize, size);
        const QTemporaryDir destination;
        const std::vector<Placeholder> pictures = placeholders({size});
        const PlaceholderRun run = savePlaceholders(pictures, destination.path());
        QImageReader reader(run.files.front().path);
        QCOMPARE(reader.imageFormat(), QImage::Format_ARGB32);
        QImage written = reader.read();
        written.setColorSpace({});
        written.convertTo(QImage::Format_RGBA8888);
        QCOMPARE(written, pictures.front().toImage());
    }

    void aSecondRunTakesAnotherFolder()
    {
        const QTemporaryDir destination;
        const std::vector<Placeholder> pictures = placeholders({QSize(8, 8)});
        savePlaceholders(pictures, destination.path());
        QTest::ignoreMessage(QtInfoMsg, "Folder exists!");
        const PlaceholderRun second = savePlaceholders(pictures, destination.path());
        QCOMPARE(second.folder.name(), u"placeholders_1"_s);
        QVERIFY(second.folder.nameTaken);
        QVERIFY(QFile::exists(destination.filePath(u"placeholders/placeholder_8x8.png"_s)));
        QVERIFY(QFile::exists(destination.filePath(u"placeholders_1/placeholder_8x8.png"_s)));
    }

    void goesOnWithoutItsFolder()
    {
        const QTemporaryDir parent;
        const QString missing = parent.filePath(u"missing"_s);
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Folder error: .+"_s));
        const PlaceholderRun run = savePlaceholders(placeholders({QSize(8, 8), QSize(9, 9)}), missing);
        QVERIFY(run.folderFailure);
        QCOMPARE(run.files.size(), 2U);
        for (const PlaceholderFile &file : run.files)
            QVERIFY(!file.outcome.ok());
        QVERIFY(!QFileInfo::exists(missing));
    }

    void readsTypedSizes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSize>("size");
        const QSize refused(0, 0);
        QTest::newRow("plain") << u"1136x640"_s << QSize(1136, 640);
        QTest::newRow("capital x") << u"10X20"_s << QSize(10, 20);
        QTest::newRow("multiplication sign") << u"10\u00D720"_s << QSize(10, 20);
        QTest::newRow("blanks") << u" 10 x 20 "_s << QSize(10, 20);
        QTest::newRow("letters after the width") << u"300abcx200"_s << QSize(300, 200);
        QTest::newRow("an x of a unit") << u"300px x 200px"_s << QSize(300, 200);
        QTest::newRow("plus signs") << u"+30x+20"_s << QSize(30, 20);
        QTest::newRow("smallest") << u"1x1"_s << QSize(1, 1);
        QTest::newRow("largest") << u"9999x9999"_s << QSize(9999, 9999);
        QTest::newRow("width zero") << u"0x10"_s << refused;
        QTest::newRow("height zero") << u"10x0"_s << refused;
        QTest::newRow("width too large") << u"10000x10"_s << refused;
        QTest::newRow("height too large") << u"10x10000"_s << refused;
        QTest::newRow("negative") << u"10x-10"_s << refused;
        QTest::newRow("beyond 32 bits") << u"4294967297x10"_s << refused;
        QTest::newRow("one number") << u"300"_s << refused;
        QTest::newRow("no width") << u"x300"_s << refused;
        QTest::newRow("no height") << u"300x"_s << refused;
        QTest::newRow("no number") << u"axb"_s << refused;
        QTest::newRow("empty") << QString() << refused;
    }
    void readsTypedSizes()
    {
        QFETCH(QString, text);
        QTEST(typedPlaceholderSize(text).value_or(QSize(0, 0)), "size");
    }
};

QTEST_MAIN(PlaceholderExportTest)
#include "PlaceholderExportTest.moc"
