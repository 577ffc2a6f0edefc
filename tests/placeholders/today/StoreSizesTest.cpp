// SPDX-License-Identifier: MIT
#include "placeholders/today/StoreSizes.h"

#include "placeholders/PlaceholderSizes.h"
#include "placeholders/today/SizeList.h"

#include <QSet>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The current sets and custom lists.
class StoreSizesTest : public QObject
{
    Q_OBJECT

private slots:
    void everySetHoldsEachSizeOnce()
    {
        QStringList names;
        for (const StoreSet &set : storeSets()) {
            names << set.name;
            QSet<QString> sizes;
            for (const StoreSize &one : picturesOf(set)) {
                const QString text = u"%1x%2"_s.arg(one.size.width()).arg(one.size.height());
                QVERIFY2(!sizes.contains(text), qPrintable(text));
                QVERIFY(isPlaceholderEdge(one.size.width()) && isPlaceholderEdge(one.size.height()));
                QVERIFY(!one.use.isEmpty());
                sizes.insert(text);
            }
        }
        QCOMPARE(names.join(u' '), u"app-store play feature-graphic tv watch social launch"_s);
        QCOMPARE(picturesOf(*storeSetNamed(u"app-store")).size(), std::size_t{24});
        QCOMPARE(picturesOf(*storeSetNamed(u"launch")).size(), std::size_t{57});
        QCOMPARE(storeSetNamed(u"ios"), nullptr);
    }

    void aSetHolds_data()
    {
        QTest::addColumn<QString>("set");
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(1280, 800), QSize(1440, 900), QSize(2560, 1600), QSize(2880, 1800)})
            QTest::addRow("Mac of %d", size.width()) << u"app-store"_s << size;
        QTest::newRow("feature graphic") << u"feature-graphic"_s << QSize(1024, 500);
        QTest::newRow("splash icon") << u"launch"_s << QSize(1152, 1152);
        QTest::newRow("splash icon on a ground") << u"launch"_s << QSize(960, 960);
        QTest::newRow("splash of old, across") << u"launch"_s << QSize(1920, 1280);
    }
    void aSetHolds()
    {
        QFETCH(QString, set);
        QFETCH(QSize, size);
        const std::vector<StoreSize> pictures = picturesOf(*storeSetNamed(set));
        QVERIFY(std::ranges::find(pictures, size, &StoreSize::size) != pictures.end());
    }

    void whatTheStoreSetsMakeIsWhatTheStoreTakes()
    {
        for (const auto &name : {u"app-store"_s, u"tv"_s, u"watch"_s}) {
            for (const StoreSize &one : picturesOf(*storeSetNamed(name)))
                QVERIFY(screenshotSlotOf(one.size) != nullptr);
        }
    }

    void aSlotTakesItsSizes_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("slot");
        QTest::newRow("upright") << QSize(1320, 2868) << u"iPhone 6.9\""_s;
        QTest::newRow("across") << QSize(2868, 1320) << u"iPhone 6.9\""_s;
        QTest::newRow("mac") << QSize(2880, 1800) << u"Mac"_s;
        QTest::newRow("mac upright") << QSize(1800, 2880) << QString();
        QTest::newRow("watch") << QSize(422, 514) << u"Apple Watch"_s;
        QTest::newRow("television") << QSize(3840, 2160) << u"Apple TV"_s;
        QTest::newRow("one off") << QSize(1321, 2868) << QString();
    }
    void aSlotTakesItsSizes()
    {
        QFETCH(QSize, size);
        const ScreenshotSlot *slot = screenshotSlotOf(size);
        QTEST(slot == nullptr ? QString() : QString(slot->name), "slot");
    }

    void aListIsRead()
    {
        const Result<std::vector<ListedSize>> sizes = sizesFromList(u" 1200x600, 800X800@2x;\n1\u00D79999 1200x600 "_s);
        QVERIFY(sizes.ok());
        QCOMPARE(sizes.value(), (std::vector<ListedSize>{{{1200, 600}, 1}, {{800, 800}, 2}, {{1, 9999}, 1}}));
        QCOMPARE(sizes.value()[1].pixels(), QSize(1600, 1600));
        QCOMPARE(sizeText(sizes.value()[1]), u"800x800@2x"_s);
    }

    void aBrokenListIsRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("part");
        for (const auto &[text, part] :
             {std::pair{"", ""}, std::pair{" , ", " , "}, std::pair{"12x", "12x"}, std::pair{"1x1 0x5", "0x5"},
              std::pair{"10000x1", "10000x1"}, std::pair{"5000x1@2x", "5000x1@2x"}, std::pair{"1x1@5x", "1x1@5x"},
              std::pair{"1x1@0x", "1x1@0x"}, std::pair{"-1x5", "-1x5"}, std::pair{"1x1px", "1x1px"}})
            QTest::addRow("'%s'", text) << QString::fromLatin1(text) << QString::fromLatin1(part);
    }
    void aBrokenListIsRefused()
    {
        QFETCH(QString, text);
        const auto sizes = sizesFromList(text);
        QVERIFY(!sizes.ok());
        QCOMPARE(sizes.failure().code, FailureCode::InvalidValue);
        QTEST(sizes.failure().subject, "part");
    }

    void aListWithoutEndIsCut()
    {
        QString text;
        for (int width = 1; width <= 501; ++width)
            text += u"%1x1 "_s.arg(width);
        QCOMPARE(sizesFromList(text).failure().code, FailureCode::TooLarge);
    }
};

QTEST_GUILESS_MAIN(StoreSizesTest)
#include "StoreSizesTest.moc"
