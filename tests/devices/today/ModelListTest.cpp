// SPDX-License-Identifier: MIT
#include "devices/today/ModelList.h"

#include "foundation/WholeFile.h"
#include "resources/Resources.h"

#include <QSet>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr auto header =
    "identifier,name,released,chip,arch,minOS,maxOS,width_px,height_px,scale,render_width_px,render_height_px,width_pt,"
    "height_pt,diagonal_in,ppi,biometry,dynamic_island,lidar,usb_c,cellular_5g,cap_arm64,cap_metal,cap_arkit,"
    "cap_min_performance_a12,cap_gaming_tier\n"_L1;
constexpr auto soundRow = "\"iPhone15,2\",iPhone 14 Pro,2022-09-16,A16 Bionic,arm64e,16,27,1179,2556,3,1179,2556,393,"
                          "852,6.1,460,faceid,1,1,0,1,1,1,1,1,0"_L1;

QString textOf(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

Result<ModelList> read(const QString &rows)
{
    return readModelList(QString(header + rows).toUtf8(), u"list.csv"_s);
}

} // namespace

/// The built-in device list, and the rules for a user's own list.
class ModelListTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { installTexts(*qApp, QLocale(u"en_GB"_s)); }

    void theBuiltInTableIsTheFileInTheTree()
    {
        const QString path = QStringLiteral(LUMORA_SOURCE_DIR "/devices/today/models.csv");
        const Result<QByteArray> bytes = readWholeFile(path, largestModelFile);
        QVERIFY(bytes.ok());
        const Result<ModelList> list = readModelList(bytes.value(), path);
        QVERIFY2(list.ok(), list.ok() ? "" : qPrintable(list.failure().detail.words()));
        QVERIFY(std::ranges::equal(list.value().models(), builtInModels()));
    }

    void everyRowHoldsTogether()
    {
        const auto models = builtInModels();
        QCOMPARE(models.size(), std::size_t{178});
        QVERIFY(areNewestFirst(models));
        QSet<QString> identifiers;
        for (const DeviceModel &model : models) {
            const QByteArray id = textOf(model.identifier).toUtf8();
            QVERIFY2(!identifiers.contains(textOf(model.identifier)), id);
            identifiers.insert(textOf(model.identifier));
            QVERIFY2(comparedVersions(model.minOs, model.maxOs) <= 0, id);
            QVERIFY2(model.renderWidth == model.widthPoints * model.scale, id);
            QVERIFY2(model.renderHeight == model.heightPoints * model.scale, id);
            // A chip with the larger capability has the smaller one, too.
            QVERIFY2(!model.gamingTier || model.minimumPerformanceA12, id);
            QVERIFY2(!model.minimumPerformanceA12 || model.arkit, id);
            QVERIFY2(!model.arkit || (model.metal && model.arm64), id);
            QVERIFY2(model.arm64 == model.arch.starts_with("arm64"), id);
            if (!hasKnownScreen(model))
                continue;
            // The pixels that follow from diagonal and density. Sellers round both, and state the diagonal of the full
            // rectangle for rounded screens.
            const double pixels = std::hypot(model.widthPixels, model.heightPixels);
            QVERIFY2(std::abs(pixels / model.pixelsPerInch / model.diagonalInches - 1.0) < 0.03, id);
        }
    }

    void asManyOfEachFamilyAsAreSold()
    {
        std::array<int, 3> counts{};
        for (const DeviceModel &model : builtInModels())
            ++counts[static_cast<std::size_t>(familyOf(model))];
        QCOMPARE(counts, (std::array{66, 105, 7}));
    }

    void aSoundRowIsRead()
    {
        const Result<ModelList> list = read(soundRow);
        QVERIFY2(list.ok(), list.ok() ? "" : qPrintable(list.failure().detail.words()));
        const DeviceModel &model = list.value().models()[0];
        QCOMPARE(textOf(model.name), u"iPhone 14 Pro"_s);
        QCOMPARE(versionText(model.maxOs), u"27"_s);
        QCOMPARE(model.biometry, Biometry::FaceId);
        QCOMPARE(model.usbC, Having::No);
        QVERIFY(model.arkit && !model.gamingTier);
        QVERIFY(
            readModelList(
                QString("# why\r\n"_L1 + QString(header).replace(u"\n"_s, u"\r\n"_s) + soundRow + "\r\n"_L1).toUtf8(),
                {})
                .ok());
    }

    void aByteOrderMarkIsNoPartOfTheHeader()
    {
        // Spreadsheets write one.
        const Result<ModelList> list = read(soundRow);
        const Result<ModelList> marked =
            readModelList(QString(u"\ufeff"_s + header + soundRow).toUtf8(), u"list.csv"_s);
        QVERIFY2(marked.ok(), marked.ok() ? "" : qPrintable(marked.failure().detail.words()));
        QVERIFY(std::ranges::equal(list.value().models(), marked.value().models()));
    }

    void aScreenMayBeUnknown()
    {
        const Result<ModelList> list =
            read(u"\"iPhone19,2\",iPhone 18 Pro,2026-09-18,A20 Pro,arm64e,27,27,,,,,,,,,,,,,,,1,1,1,1,1"_s);
        QVERIFY2(list.ok(), list.ok() ? "" : qPrintable(list.failure().detail.words()));
        QVERIFY(!hasKnownScreen(list.value().models()[0]));
        QCOMPARE(list.value().models()[0].usbC, Having::Unknown);
    }

    void aBrokenListIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("detail");
        const auto row = [](const char *name, const QString &line, const char *detail) {
            QTest::newRow(name) << QString(header + line).toUtf8() << QString::fromLatin1(detail);
        };
        const auto with = [](const char *before, const char *after) {
            return QString(soundRow).replace(QString::fromLatin1(before), QString::fromUtf8(after));
        };
        QTest::newRow("empty") << QByteArray() << u"no model in it"_s;
        QTest::newRow("another header") << QByteArray("identifier,name\n") << u"line 1: the header is wanted"_s;
        QTest::newRow("no text") << QByteArray("\x89PNG\r\n\x1a\n\0", 9) << u"not UTF-8 text"_s;
        QTest::newRow("too large") << QByteArray(largestModelFile + 1, '#') << u"more than 1 MiB"_s;
        row("identifier twice", soundRow + u'\n' + soundRow, "line 3: iPhone15,2 is in line 2 already");
        row("a column too few", with(",0", ""), "line 2: 26 columns are wanted");
        row("a column too many", soundRow + ",0"_L1, "line 2: 26 columns are wanted");
        row("half a quotation", with("\"iPhone15,2\"", "\"iPhone15"), "line 2: quotation marks do not match");
        row("a quotation inside", with("14 Pro", "14 \"Pro\""), "line 2: quotation marks do not match");
        row("another maker", with("iPhone15", "Watch7"), "line 2: identifier is of no iPhone, iPad or iPod");
        row("no number of the model", with("iPhone15,2", "iPhone"), "line 2: identifier is of no iPhone, iPad or iPod");
        row("an identifier with a space", with("iPhone15,2\"", "iPhone15,2 \""), "line 2: identifier is of no iPhone");
        row("a blank name", with("iPhone 14 Pro", "   "), "line 2: name is empty");
        row("a name that steers the terminal", with("14 Pro", "14\u009b31m"),
            "line 2: name holds characters that do not");
        row("a name that turns the line", with("14 Pro", "14 \u202eorP"),
            "line 2: name holds characters that do not print");
        row("no architecture", with("arm64e", "sparc"), "line 2: arch is none of armv6, armv7, armv7s, arm64, arm64e");
        row("another architecture than its flag", with("arm64e", "armv7"), "line 2: arch and cap_arm64 contradict");
        row("no name", with("iPhone 14 Pro", ""), "line 2: name is empty");
        row("a long name", with("14 Pro", QByteArray(200, 'x').constData()), "a field of more than 100 characters");
        row("no such day", with("2022-09-16", "2022-02-30"), "line 2: released is no date");
        row("no version", with("16,27", "16.x,27"), "line 2: minOS is no version");
        row("ended before it began", with("16,27", "16,15.8.8"), "line 2: maxOS comes before minOS");
        row("not points times scale", with("393,852", "394,852"), "is not width_pt x height_pt times scale");
        row("half a screen", with("1179,2556,3,1179,2556,393,852", "1179,2556,,1179,2556,393,852"),
            "sizes are given in part");
        row("across", with("1179,2556,3,1179,2556,393,852", "2556,1179,3,2556,1179,852,393"), "is not in portrait");
        row("negative", with("460", "-460"), "line 2: ppi is no number from 1 to 10000");
        row("beyond a number", with("460", "46000000000"), "line 2: ppi is no number");
        row("no biometry", with("faceid", "eye"), "line 2: biometry is none of none, touchid, faceid");
        row("neither yes nor no", with("faceid,1", "faceid,2"), "line 2: dynamic_island is neither 0 nor 1 nor empty");
        row("an open capability", QString(soundRow).chopped(1), "line 2: cap_gaming_tier is neither 0 nor 1");
    }
    void aBrokenListIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, detail);
        const Result<ModelList> list = readModelList(bytes, u"list.csv"_s);
        QVERIFY(!list.ok());
        QVERIFY2(list.failure().detail.words().contains(detail), qPrintable(list.failure().detail.words()));
        QCOMPARE(list.failure().subject, u"list.csv"_s);
    }

    void aListWithoutEndIsCut()
    {
        QString rows;
        for (int number = 0; number <= static_cast<int>(mostModels); ++number)
            rows += QString(soundRow).replace(u"15,2"_s, u"15,%1"_s.arg(number)) + u'\n';
        const Result<ModelList> list = read(rows);
        QVERIFY(!list.ok());
        QCOMPARE(list.failure().code, FailureCode::TooLarge);
    }

    void anOrderIsSeen()
    {
        const auto models = builtInModels();
        std::vector<DeviceModel> mixed(models.begin(), models.end());
        std::swap(mixed[0], mixed[30]);
        QVERIFY(!areNewestFirst(mixed));
        mixed.assign(models.begin(), models.end());
        std::swap(mixed.front(), mixed.back());
        QVERIFY(!areNewestFirst(mixed));
    }
};

QTEST_GUILESS_MAIN(ModelListTest)
#include "ModelListTest.moc"
