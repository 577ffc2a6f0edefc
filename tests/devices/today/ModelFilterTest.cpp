// SPDX-License-Identifier: MIT
#include "devices/today/ModelFilter.h"
#include "devices/today/ModelCard.h"
#include "devices/today/ModelGroup.h"
#include "devices/today/ModelLayout.h"
#include "devices/today/ModelList.h"
#include "devices/today/ScreenClass.h"

#include <QSet>
#include <QTest>

#include <functional>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QString textOf(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

const DeviceModel &modelOf(const QString &identifier)
{
    const auto models = builtInModels();
    return *std::ranges::find_if(
        models, [&identifier](const DeviceModel &model) { return textOf(model.identifier) == identifier; });
}

ModelGroup groupOf(const QString &name)
{
    for (const ModelGroup &group : groupedModels(builtInModels())) {
        if (textOf(group.first().name) == name)
            return group;
    }
    return {};
}

using Filled = std::function<void(ModelFilter &)>;

} // namespace

/// Which models match a filter, why the others do not, and how they are shown.
class ModelFilterTest : public QObject
{
    Q_OBJECT

private slots:
    void aReasonIsGiven_data()
    {
        QTest::addColumn<QString>("identifier");
        QTest::addColumn<Filled>("fill");
        QTest::addColumn<QString>("reasons");
        const auto row = [](const char *name, const char *identifier, const Filled &fill, const char *reasons) {
            QTest::newRow(name) << QString::fromLatin1(identifier) << fill << QString::fromLatin1(reasons);
        };
        const auto ios = [](const char *range) {
            return [range](ModelFilter &filter) { QVERIFY(takeIosRange(QString::fromLatin1(range), filter)); };
        };
        const auto needs = [](const char *key) {
            return [key](ModelFilter &filter) {
                filter.capabilities.push_back(modelCapability(QString::fromLatin1(key)));
            };
        };
        row(
            "nothing asked", "iPhone1,1", [](ModelFilter &) {}, "");
        row("ended", "iPhone6,1", ios("15.."), "ends at iOS 12.5.8");
        row("ends with that very version", "iPhone8,1", ios("15.."), "");
        row("ends a patch before", "iPhone8,1", ios("15.8.9.."), "ends at iOS 15.8.8");
        row("still gets it", "iPhone12,1", ios("27.1.."), "");
        row("nobody gets it", "iPhone12,1", ios("28.."), "ends at iOS 27");
        row("begun later", "iPhone15,2", ios("..15"), "begins with iOS 16");
        row("begun with the last", "iPhone15,2", ios("..16.4"), "");
        row("one version", "iPhone15,2", ios("16"), "");
        row(
            "family", "iPad1,1", [](ModelFilter &filter) { filter.families = {DeviceFamily::IPhone}; }, "is an iPad");
        row(
            "chip by its first word", "iPhone11,2", [](ModelFilter &filter) { filter.chips = {u"a12"_s}; }, "");
        row(
            "chip with a letter more", "iPad8,1", [](ModelFilter &filter) { filter.chips = {u"A12"_s}; },
            "has the chip A12X Bionic");
        row(
            "chip", "iPhone18,3", [](ModelFilter &filter) { filter.chips = {u"a19"_s}; }, "");
        row(
            "chip with a word more", "iPhone18,1", [](ModelFilter &filter) { filter.chips = {u"A19"_s}; },
            "has the chip A19 Pro");
        row(
            "chip of two words", "iPhone18,1", [](ModelFilter &filter) { filter.chips = {u"a19 pro"_s}; }, "");
        row(
            "chip with its family", "iPad7,11", [](ModelFilter &filter) { filter.chips = {u"a10 fusion"_s}; }, "");
        row("arkit", "iPhone7,2", needs("arkit"), "lacks arkit");
        row("gaming tier", "iPhone16,1", needs("iphone-performance-gaming-tier"), "");
        row("armv7 on arm64", "iPhone16,1", needs("armv7"), "");
        row("armv7 on armv6", "iPhone1,2", needs("armv7"), "lacks armv7");
        row(
            "screen", "iPhone15,2", [](ModelFilter &filter) { filter.screenClasses = {u"6.9"_s}; },
            "has a screen of class 6.3");
        row(
            "screen unknown", "iPhone19,2", [](ModelFilter &filter) { filter.screenClasses = {u"6.9"_s}; },
            "its screen is not known");
        row(
            "biometry", "iPhone15,2", [](ModelFilter &filter) { filter.biometries = {Biometry::TouchId}; },
            "has the biometry faceid");
        row(
            "island", "iPhone14,7", [](ModelFilter &filter) { filter.features = {ModelFeature::DynamicIsland}; },
            "lacks dynamic-island");
        row(
            "plug unknown", "iPhone19,3", [](ModelFilter &filter) { filter.features = {ModelFeature::UsbC}; },
            "not known whether it has usb-c");
        row(
            "searched by identifier", "iPhone15,2", [](ModelFilter &filter) { filter.search = u"15,2"_s; }, "");
        row(
            "searched by words", "iPhone15,2", [](ModelFilter &filter) { filter.search = u" pro  14"_s; }, "");
        row(
            "searched elsewhere", "iPhone15,2", [](ModelFilter &filter) { filter.search = u"mini"_s; },
            "does not match the search");
        row(
            "several", "iPad1,1",
            [](ModelFilter &filter) {
                takeIosRange(u"15..", filter);
                filter.families = {DeviceFamily::IPhone};
                filter.capabilities = {modelCapability(u"metal")};
            },
            "ends at iOS 5.1.1; is an iPad; lacks metal");
    }
    void aReasonIsGiven()
    {
        QFETCH(QString, identifier);
        QFETCH(Filled, fill);
        ModelFilter filter;
        fill(filter);
        QStringList reasons;
        for (const FallsOutReason &reason : reasonsAgainst(modelOf(identifier), filter))
            reasons << reasonText(reason);
        QTEST(reasons.join(u"; "_s), "reasons");
    }

    void aRangeThatIsNoneIsRefused()
    {
        for (const QString &text :
             {u""_s, u".."_s, u"x"_s, u"15..12"_s, u"15...17"_s, u"1.2.3.4"_s, u"15..y"_s, u"-3"_s, u"1000"_s}) {
            ModelFilter filter;
            QVERIFY2(!takeIosRange(text, filter), qPrintable(text));
        }
    }

    void theShareOfModelsFallsWithEachVersion()
    {
        const auto models = builtInModels();
        int before = static_cast<int>(models.size());
        for (int major = 1; major <= 27; ++major) {
            const int remaining = modelsRunning(models, OsVersion{{major, 0, 0}, 1});
            QVERIFY(remaining <= before && remaining > 0);
            before = remaining;
        }
        QCOMPARE(modelsRunning(models, OsVersion{{1, 0, 0}, 1}), 178);
        QCOMPARE(modelsRunning(models, OsVersion{{28, 0, 0}, 1}), 0);
    }

    void oneTileForWhatIsOneModel()
    {
        const std::vector<ModelGroup> groups = groupedModels(builtInModels());
        QStringList identifiers;
        for (const DeviceModel *model : groupOf(u"iPhone 4"_s).variants)
            identifiers << textOf(model->identifier);
        QCOMPARE(identifiers, (QStringList{u"iPhone3,1"_s, u"iPhone3,2"_s, u"iPhone3,3"_s}));
        identifiers.clear();
        for (const DeviceModel *model : groupOf(u"iPad Pro (11-inch)"_s).variants)
            identifiers << textOf(model->identifier);
        QCOMPARE(identifiers, (QStringList{u"iPad8,1"_s, u"iPad8,2"_s, u"iPad8,3"_s, u"iPad8,4"_s}));
        QSet<QString> names;
        std::size_t variants = 0;
        for (const ModelGroup &group : groups) {
            names.insert(textOf(group.first().name));
            variants += group.variants.size();
        }
        QCOMPARE(names.size(), static_cast<qsizetype>(groups.size()));
        QCOMPARE(variants, std::size_t{178});
        for (std::size_t index = 1; index < groups.size(); ++index) {
            const DeviceModel &before = groups[index - 1].first();
            const DeviceModel &model = groups[index].first();
            QVERIFY(familyOf(before) < familyOf(model) ||
                    (familyOf(before) == familyOf(model) && before.released >= model.released));
        }
    }

    void aGroupFitsWhereOneOfItDoes()
    {
        ModelFilter filter;
        takeIosRange(u"9.3.6..", filter);
        QVERIFY(verdictOn(groupOf(u"iPad 2"_s), filter).fits);
        takeIosRange(u"9.3.7..", filter);
        const GroupVerdict verdict = verdictOn(groupOf(u"iPad 2"_s), filter);
        QVERIFY(!verdict.fits);
        QStringList reasons;
        for (const FallsOutReason &reason : verdict.reasons)
            reasons << reasonText(reason);
        QCOMPARE(reasons, (QStringList{u"ends at iOS 9.3.5"_s, u"ends at iOS 9.3.6"_s}));
    }

    void everyKnownScreenHasItsClass()
    {
        for (const DeviceModel &model : builtInModels()) {
            const ScreenClass *screen = screenClassOf(model);
            QVERIFY2((screen != nullptr) == hasKnownScreen(model), qPrintable(textOf(model.identifier)));
            if (screen != nullptr)
                QVERIFY((screen->family == DeviceFamily::IPad) == (familyOf(model) == DeviceFamily::IPad));
        }
    }

    void aCardSaysWhatIsKnown()
    {
        const ModelGroup mini = groupOf(u"iPhone 12 mini"_s);
        QCOMPARE(cardText(mini, CardFact::Screen), u"1080x2340"_s);
        QCOMPARE(cardText(mini, CardFact::Render), u"1125x2436"_s);
        QCOMPARE(cardText(mini, CardFact::LaunchSizes), u"1125x2436, 2436x1125"_s);
        QCOMPARE(cardText(mini, CardFact::ScreenshotSizes),
                 u"1080x2340, 1125x2436, 1170x2532, 2340x1080, 2436x1125, 2532x1170"_s);
        QCOMPARE(cardText(groupOf(u"iPad 2"_s), CardFact::NewestOs), u"9.3.5, 9.3.6"_s);
        QCOMPARE(cardText(groupOf(u"iPhone 18 Pro"_s), CardFact::Screen), QString());
        QCOMPARE(cardText(groupOf(u"iPhone 15"_s), CardFact::Capabilities),
                 u"armv7 arm64 metal arkit iphone-ipad-minimum-performance-a12"_s);
    }

    void twoModelsAreCompared()
    {
        const auto rows = comparedFacts({groupOf(u"iPhone 15"_s), groupOf(u"iPhone 15 Pro"_s)});
        QCOMPARE(rows.size(), static_cast<std::size_t>(cardFactCount));
        QVERIFY(rows[static_cast<std::size_t>(CardFact::Chip)].differs);
        QVERIFY(!rows[static_cast<std::size_t>(CardFact::Screen)].differs);
        QSet<QString> names;
        for (const ComparedFact &row : rows)
            names.insert(cardFactName(row.fact));
        QCOMPARE(names.size(), cardFactCount);
    }

    void tilesNeverOverlap_data()
    {
        QTest::addColumn<int>("width");
        for (const int width : {0, 100, 500, 835, 2000, 30000})
            QTest::addRow("%d", width) << width;
    }
    void tilesNeverOverlap()
    {
        QFETCH(int, width);
        const std::vector<ModelGroup> groups = groupedModels(builtInModels());
        const ModelLayout layout = layOutModels(groups, width);
        QCOMPARE(layout.tiles.size(), groups.size());
        QCOMPARE(layout.headings.size(), std::size_t{3});
        QList<QRect> all(layout.tiles.begin(), layout.tiles.end());
        for (const ModelLayout::Heading &heading : layout.headings)
            all << heading.place;
        for (qsizetype one = 0; one < all.size(); ++one) {
            QVERIFY(all[one].bottom() < layout.height);
            for (qsizetype other = 0; other < one; ++other)
                QVERIFY(!all[one].intersects(all[other]));
        }
        if (width >= 500)
            QVERIFY(std::ranges::all_of(layout.tiles, [width](const QRect &tile) { return tile.right() < width; }));
    }

    void rowsAreAsHighAsTheirHighestTile()
    {
        const std::vector<ModelGroup> groups = groupedModels(builtInModels());
        std::vector<int> heights(groups.size(), 56);
        heights[1] = 72;
        const ModelTileMetrics metrics;
        const int twoColumns = 2 * metrics.tile.width() + metrics.gap + metrics.margin + metrics.endMargin;
        const ModelLayout layout = layOutModels(groups, twoColumns, metrics, heights);
        QCOMPARE(layout.tiles[0].height(), 72);
        QCOMPARE(layout.tiles[1].height(), 72);
        QCOMPARE(layout.tiles[2].height(), 56);
        QCOMPARE(layout.tiles[2].top(), layout.tiles[0].top() + 72 + metrics.gap);
        QCOMPARE(layout.tiles.back().top() + 56 + metrics.margin, layout.height);
    }
};

QTEST_GUILESS_MAIN(ModelFilterTest)
#include "ModelFilterTest.moc"
