// SPDX-License-Identifier: MIT
#include "TabBars.h"
#include "tests/doubles/Pointer.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

namespace
{

class Listener final : public BFIconTabBarDelegate
{
public:
    void tabBarChangedSelection(BFIconTabBar *sender) override { heard << sender->selectedIndex(); }
    QList<int> heard;
};

} // namespace

Q_DECLARE_METATYPE(IndexSet)

class IconTabBarInputTest : public QObject
{
    Q_OBJECT
private slots:
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
        // The drag has ended: further moves change nothing.
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

QTEST_MAIN(IconTabBarInputTest)
#include "IconTabBarInputTest.moc"
