// SPDX-License-Identifier: MIT
#include "Pointer.h"

#include "widgets/BFIconTabBar.h"
#include "widgets/Palette.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <memory>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

namespace
{

QIcon plainIcon(const QColor &color)
{
    QPixmap pixmap(20, 20);
    pixmap.fill(color);
    return QIcon(pixmap);
}

std::unique_ptr<BFIconTabBar> bar(int count, bool multiple = false)
{
    auto made = std::make_unique<BFIconTabBar>();
    made->setMultipleSelection(multiple);
    QList<BFIconTabBarItem *> items;
    for (int i = 0; i < count; ++i)
        items << BFIconTabBarItem::itemWithIcon(plainIcon(Qt::green), u"tip %1"_s.arg(i));
    made->setItems(items);
    made->resize(made->sizeHint());
    return made;
}

QPoint slotMiddle(int index)
{
    return {4 + 32 * index + 16, 17};
}

class Listener final : public BFIconTabBarDelegate
{
public:
    void tabBarChangedSelection(BFIconTabBar *sender) override { heard << sender->selectedIndex(); }
    QList<int> heard;
};

} // namespace

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

    void clickSelectsAndNotifies()
    {
        const auto made = bar(3);
        Listener listener;
        made->setDelegate(&listener);
        QSignalSpy action(made.get(), &BFIconTabBar::action);
        QTest::mouseClick(made.get(), Qt::LeftButton, {}, slotMiddle(2));
        QCOMPARE(made->selectedIndexes(), IndexSet{2});
        QCOMPARE(action.count(), 1);
        QCOMPARE(listener.heard, QList<int>{2});
    }

    void actionComesBeforeTheDelegate()
    {
        const auto made = bar(3);
        Listener listener;
        made->setDelegate(&listener);
        connect(made.get(), &BFIconTabBar::action, made.get(), [&] { QVERIFY(listener.heard.isEmpty()); });
        made->notify();
        QCOMPARE(listener.heard.size(), 1);
    }

    void clickOutsideChangesNothing_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::newRow("left of startX") << QPoint(2, 17);
        QTest::newRow("past the last slot") << QPoint(101, 17);
    }
    void clickOutsideChangesNothing()
    {
        QFETCH(QPoint, point);
        const auto made = bar(3);
        QSignalSpy action(made.get(), &BFIconTabBar::action);
        QTest::mouseClick(made.get(), Qt::LeftButton, {}, point);
        QCOMPARE(made->selectedIndexes(), IndexSet{0});
        QCOMPARE(action.count(), 0);
    }

    void dragging_data()
    {
        QTest::addColumn<bool>("multiple");
        QTest::addColumn<IndexSet>("before");
        QTest::addColumn<QList<int>>("path");
        QTest::addColumn<IndexSet>("after");
        QTest::addColumn<int>("notices");
        QTest::newRow("single follows the pointer") << false << IndexSet{0} << QList<int>{1, 2, 3} << IndexSet{3} << 3;
        QTest::newRow("single, within one slot") << false << IndexSet{0} << QList<int>{1, 1, 1} << IndexSet{1} << 1;
        QTest::newRow("multiple selects from an unselected one")
            << true << IndexSet{0} << QList<int>{1, 2, 3} << IndexSet{0, 1, 2, 3} << 3;
        QTest::newRow("multiple selects what is selected already")
            << true << IndexSet{0, 2} << QList<int>{1, 2, 3} << IndexSet{0, 1, 2, 3} << 3;
        QTest::newRow("multiple deselects from a selected one")
            << true << IndexSet{0, 1, 3} << QList<int>{1, 2, 3} << IndexSet{0} << 3;
    }
    void dragging()
    {
        QFETCH(bool, multiple);
        QFETCH(IndexSet, before);
        QFETCH(QList<int>, path);
        const auto made = bar(4, multiple);
        made->deselectAll();
        made->selectIndexes(before, false);
        QSignalSpy action(made.get(), &BFIconTabBar::action);
        QVERIFY(!made->isDragging());
        QTest::mousePress(made.get(), Qt::LeftButton, {}, slotMiddle(path.first()));
        QVERIFY(made->isDragging());
        QCOMPARE(made->firstItemWasSelected(), multiple && !before.contains(path.first()));
        for (const int index : path.mid(1)) {
            const QPointF point = slotMiddle(index);
            QMouseEvent move(QEvent::MouseMove, point, made->mapToGlobal(point), Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(made.get(), &move);
        }
        QTest::mouseRelease(made.get(), Qt::LeftButton, {}, slotMiddle(path.last()));
        QVERIFY(!made->isDragging());
        QTEST(made->selectedIndexes(), "after");
        QTEST(static_cast<int>(action.count()), "notices");
        // The drag is over: moving on changes nothing.
        const QPointF point = slotMiddle(0);
        QMouseEvent move(QEvent::MouseMove, point, made->mapToGlobal(point), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(made.get(), &move);
        QTEST(made->selectedIndexes(), "after");
    }

    void keys_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QList<Qt::Key>>("keys");
        QTest::addColumn<int>("selected");
        using Keys = QList<Qt::Key>;
        QTest::newRow("right") << Qt::LeftToRight << Keys{Qt::Key_Right} << 1;
        QTest::newRow("right and left") << Qt::LeftToRight << Keys{Qt::Key_Right, Qt::Key_Right, Qt::Key_Left} << 1;
        QTest::newRow("not past the first") << Qt::LeftToRight << Keys{Qt::Key_Left} << 0;
        QTest::newRow("end") << Qt::LeftToRight << Keys{Qt::Key_End} << 2;
        QTest::newRow("not past the last") << Qt::LeftToRight << Keys{Qt::Key_End, Qt::Key_Right} << 2;
        QTest::newRow("home") << Qt::LeftToRight << Keys{Qt::Key_End, Qt::Key_Home} << 0;
        QTest::newRow("mirrored") << Qt::RightToLeft << Keys{Qt::Key_Left} << 1;
    }
    void keys()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(QList<Qt::Key>, keys);
        const auto made = bar(3);
        made->setLayoutDirection(direction);
        for (const Qt::Key key : keys)
            QTest::keyClick(made.get(), key);
        QTEST(made->selectedIndex(), "selected");
    }

    void spaceTogglesInMultipleSelection()
    {
        const auto made = bar(3, true);
        QTest::keyClick(made.get(), Qt::Key_Right);
        QTest::keyClick(made.get(), Qt::Key_Space);
        QCOMPARE(made->selectedIndexes(), (IndexSet{0, 1}));
        QTest::keyClick(made.get(), Qt::Key_Space);
        QCOMPARE(made->selectedIndexes(), IndexSet{0});
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

    void tooltips()
    {
        const auto made = bar(3);
        showAside(made.get());
        const auto tipAt = [&](const QPoint &point) {
            QHelpEvent event(QEvent::ToolTip, point, made->mapToGlobal(point));
            QCoreApplication::sendEvent(made.get(), &event);
            return event.isAccepted();
        };
        QVERIFY(tipAt(slotMiddle(2)));
        QCOMPARE(QToolTip::text(), u"tip 2"_s);
        QVERIFY(!tipAt(QPoint(2, 17)));
        QTRY_VERIFY(!QToolTip::isVisible());
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

    void accessibility()
    {
        const auto made = bar(3);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(made.get());
        QCOMPARE(accessible->role(), QAccessible::PageTabList);
        QCOMPARE(accessible->childCount(), 3);
        QAccessibleInterface *tab = accessible->child(1);
        QCOMPARE(tab->role(), QAccessible::PageTab);
        QCOMPARE(tab->text(QAccessible::Name), u"tip 1"_s);
        QVERIFY(!tab->state().selected);
        QCOMPARE(accessible->indexOfChild(tab), 1);
        QSignalSpy action(made.get(), &BFIconTabBar::action);
        tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(tab->state().selected);
        QCOMPARE(action.count(), 1);
        QVERIFY(accessible->child(7) == nullptr);
    }
};

QTEST_MAIN(IconTabBarTest)
#include "IconTabBarTest.moc"
