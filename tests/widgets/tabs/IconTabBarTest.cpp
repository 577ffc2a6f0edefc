// SPDX-License-Identifier: MIT
#include "TabBars.h"
#include "tests/doubles/Pointer.h"

#include "widgets/style/Palette.h"

#include <QRegularExpression>
#include <QTest>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(IndexSet)

class IconTabBarTest : public QObject
{
    Q_OBJECT
private slots:
    void defaults()
    {
        const BFIconTabBar made;
        QCOMPARE(made.itemWidth(), 32.0);
        QCOMPARE(BFIconTabBar::startX, 4.0);
        QVERIFY(!made.multipleSelection());
        QVERIFY(made.delegate() == nullptr);
        QCOMPARE(made.selectedIndex(), -1);
        QVERIFY(made.selectedItem() == nullptr);
        QVERIFY(made.selectedItems().isEmpty());
    }

    void settingItems()
    {
        const auto made = bar(3);
        QCOMPARE(made->selectedIndexes(), IndexSet{0});
        for (const BFIconTabBarItem *item : made->items())
            QCOMPARE(item->tabBar(), made.get());
        QCOMPARE(made->selectedItem(), made->items()[0]);
        made->selectIndex(2);
        auto *more = BFIconTabBarItem::itemWithIcon({}, {});
        made->setItems(made->items() + QList{more});
        QCOMPARE(made->selectedIndexes(), IndexSet{2});
    }

    void itemGoneWithoutTheBar()
    {
        const auto made = bar(3);
        delete made->items()[1];
        QCOMPARE(made->items().size(), 2);
        pictureOf(made.get());
        auto *item = made->items()[0];
        auto *other = new BFIconTabBar;
        other->setItems({item});
        QCOMPARE(item->tabBar(), other);
        delete other;
        QVERIFY(item->tabBar() == nullptr);
    }

    void selecting_data()
    {
        QTest::addColumn<bool>("multiple");
        QTest::addColumn<IndexSet>("before");
        QTest::addColumn<IndexSet>("indexes");
        QTest::addColumn<bool>("extending");
        QTest::addColumn<IndexSet>("after");
        QTest::newRow("single takes only the first") << false << IndexSet{0} << IndexSet{1, 2} << false << IndexSet{1};
        QTest::newRow("single cannot extend") << false << IndexSet{0} << IndexSet{1, 2} << true << IndexSet{1};
        QTest::newRow("multiple takes all") << true << IndexSet{0} << IndexSet{1, 2} << false << IndexSet{1, 2};
        QTest::newRow("multiple extends") << true << IndexSet{0} << IndexSet{1, 2} << true << IndexSet{0, 1, 2};
        QTest::newRow("negative indexes are none") << true << IndexSet{0} << IndexSet{-3} << false << IndexSet{0};
    }
    void selecting()
    {
        QFETCH(bool, multiple);
        QFETCH(IndexSet, before);
        QFETCH(IndexSet, indexes);
        QFETCH(bool, extending);
        const auto made = bar(4, multiple);
        made->deselectAll();
        made->selectIndexes(before, false);
        made->selectIndexes(indexes, extending);
        QTEST(made->selectedIndexes(), "after");
    }

    void emptySetIsLogged()
    {
        const auto made = bar(3);
        made->selectIndex(1);
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"Selection indexset empty\\."_s));
        made->selectIndexes({}, false);
        QCOMPARE(made->selectedIndexes(), IndexSet{1});
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"Deselection indexset empty\\."_s));
        made->deselectIndexes({});
        QCOMPARE(made->selectedIndexes(), IndexSet{1});
    }

    void selectAllLeavesOutTheLast_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<IndexSet>("selected");
        QTest::newRow("three items") << 3 << IndexSet{0, 1};
        QTest::newRow("one item") << 1 << IndexSet{};
        QTest::newRow("no items") << 0 << IndexSet{};
    }
    void selectAllLeavesOutTheLast()
    {
        QFETCH(int, count);
        const auto made = bar(count, true);
        made->deselectAll();
        made->selectAll();
        QTEST(made->selectedIndexes(), "selected");
    }

    void deselecting()
    {
        const auto made = bar(4, true);
        made->selectIndexes({0, 1, 2, 3}, false);
        made->deselectIndexes({1, 3});
        QCOMPARE(made->selectedIndexes(), (IndexSet{0, 2}));
        made->deselectIndex(0);
        QCOMPARE(made->selectedIndexes(), IndexSet{2});
        made->deselectItem(made->items()[2]);
        QCOMPARE(made->selectedIndexes(), IndexSet{});
        QCOMPARE(made->selectedIndex(), -1);
        made->selectItem(made->items()[3]);
        QCOMPARE(made->selectedItems(), QList{made->items()[3]});
        made->deselectAll();
        QVERIFY(made->selectedItems().isEmpty());
        BFIconTabBarItem stranger({}, {});
        made->selectItem(&stranger);
        QVERIFY(made->selectedItems().isEmpty());
    }

    void leavingMultipleSelectionKeepsTheFirst()
    {
        const auto made = bar(4, true);
        made->selectIndexes({1, 2, 3}, false);
        made->setMultipleSelection(false);
        QCOMPARE(made->selectedIndexes(), IndexSet{1});
    }

    void itemAtX_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<int>("index");
        QTest::newRow("left of the first slot") << 3.99 << -1;
        QTest::newRow("where the first slot begins") << 4.0 << 0;
        QTest::newRow("where the first slot ends") << 35.99 << 0;
        QTest::newRow("where the second slot begins") << 36.0 << 1;
        QTest::newRow("end of the last slot") << 99.99 << 2;
        QTest::newRow("past the last slot") << 100.0 << -1;
        QTest::newRow("far left") << -1e300 << -1;
        QTest::newRow("far right") << 1e300 << -1;
    }
    void itemAtX()
    {
        QFETCH(double, x);
        QFETCH(int, index);
        const auto made = bar(3);
        QCOMPARE(made->itemAtX(x), index < 0 ? nullptr : made->items()[index]);
    }

    void pixels_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::newRow("@1") << 1.0;
        QTest::newRow("@2") << 2.0;
    }
    void pixels()
    {
        QFETCH(qreal, scale);
        const auto made = bar(3);
        made->selectIndex(1);
        const QImage picture = pictureOf(made.get(), scale);
        const auto at = [&](double x, double y) { return picture.pixelColor(qFloor(x * scale), qFloor(y * scale)); };
        for (int index = 0; index < 3; ++index)
            QCOMPARE(at(20.5 + 32 * index, 17.5), QColor(Qt::green));
        QCOMPARE(at(8.5, 17.5).alpha(), 0);                             // beside an icon that is not selected
        QCOMPARE(at(40.5, 17.5).alpha(), palette::tabSelected.alpha()); // beside the selected one
        QCOMPARE(at(1.5, 17.5).alpha(), 0);                             // before the first slot
    }

    void showsFocusPointerAndDisabledLook()
    {
        const auto made = bar(3);
        const auto pictures = [&] { return pictureOf(made.get()); };
        const QImage plain = pictures();
        const QPoint onTheRing(7, 17);
        showAside(made.get());
        made->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(made.get()));
        made->clearFocus();
        made->setFocus(Qt::TabFocusReason);
        QCOMPARE(pictures().pixelColor(onTheRing).rgb(), palette::focusRing.rgb());
        made->clearFocus();
        QCOMPARE(pictures(), plain);
        QTest::mouseMove(made.get(), slotMiddle(1));
        QTRY_COMPARE(pictures().pixelColor(40, 17).alpha(), palette::tabHover.alpha());
        leave(made.get());
        QCOMPARE(pictures(), plain);
        made->setEnabled(false);
        QVERIFY(qAbs(pictures().pixelColor(slotMiddle(1)).alpha() - 255 * palette::disabledOpacity) <= 1);
    }

    void itemWidth()
    {
        const auto made = bar(3);
        made->setItemWidth(50);
        QCOMPARE(made->itemAtX(53), made->items()[0]);
        QCOMPARE(made->itemAtX(54), made->items()[1]);
        QCOMPARE(made->slotRect(2).left(), 104.0);
        QCOMPARE(made->sizeHint().width(), 158);
        made->setItemWidth(0);
        QCOMPARE(made->itemWidth(), 50.0);
    }

    void mirroredSlots()
    {
        const auto made = bar(3);
        made->setLayoutDirection(Qt::RightToLeft);
        made->resize(200, 34);
        QCOMPARE(made->slotRect(0), QRectF(164, 0, 32, 34));
        QTest::mouseClick(made.get(), Qt::LeftButton, {}, QPoint(200 - slotMiddle(2).x(), 17));
        QCOMPARE(made->selectedIndex(), 2);
    }
};

QTEST_MAIN(IconTabBarTest)
#include "IconTabBarTest.moc"
