// SPDX-License-Identifier: MIT
#include "app/sidebar/ITSidebar.h"
#include "app/sidebar/ITSidebarItemCell.h"
#include "app/sidebar/SidebarMatrix.h"
#include "app/sidebar/SidebarScrollView.h"
#include "widgets/style/Palette.h"

#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// A sidebar in its scroll view, with items that count their actions.
struct Fixture
{
    explicit Fixture(int items = 6, QSize size = {62, 600})
    {
        scrollView.resize(size);
        sidebar = new ITSidebar;
        scrollView.setDocumentView(sidebar);
        for (int item = 0; item < items; ++item) {
            sidebar->addItemWithImage(NamedImage(u"icon_icons"_s), NamedImage(u"icon_colors"_s), &target,
                                      [this](ITSidebarItemCell *cell) {
                                          sent << static_cast<int>(sidebar->matrix()->cells().indexOf(cell));
                                      });
        }
        scrollView.show();
    }
    ITSidebarItemCell *cell(int index) const { return sidebar->matrix()->cells().at(index); }

    QObject target;
    SidebarScrollView scrollView;
    ITSidebar *sidebar = nullptr;
    QList<int> sent;
};

class OwnCell : public ITSidebarItemCell
{
public:
    using ITSidebarItemCell::ITSidebarItemCell;
};

class OwnSidebar : public ITSidebar
{
public:
    CellClass sidebarItemCellClass() const override
    {
        return [](QWidget *parent) -> ITSidebarItemCell * { return new OwnCell(parent); };
    }
};

} // namespace

class SidebarTest : public QObject
{
    Q_OBJECT

private slots:
    void beginsEmpty()
    {
        ITSidebar sidebar;
        QCOMPARE(sidebar.selectedIndex(), -1);
        QVERIFY(sidebar.selectedItem() == nullptr);
        QVERIFY(sidebar.allowsEmptySelection());
        QCOMPARE(sidebar.cellSize(), QSize(62, 62));
        sidebar.setAllowsEmptySelection(false);
        QCOMPARE(sidebar.selectedIndex(), -1);
    }

    void keys_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("after");
        QTest::addColumn<QList<int>>("sent");
        QTest::newRow("down moves on") << 2 << Qt::Key_Down << 3 << QList<int>{3};
        QTest::newRow("up moves back") << 2 << Qt::Key_Up << 1 << QList<int>{1};
        QTest::newRow("down at the last item does nothing") << 5 << Qt::Key_Down << 5 << QList<int>();
        QTest::newRow("up at the first item does nothing") << 0 << Qt::Key_Up << 0 << QList<int>();
        QTest::newRow("down without a selection selects the first") << -1 << Qt::Key_Down << 0 << QList<int>{0};
        QTest::newRow("up without a selection does nothing") << -1 << Qt::Key_Up << -1 << QList<int>();
        QTest::newRow("escape clears") << 2 << Qt::Key_Escape << -1 << QList<int>();
        QTest::newRow("another key is not for the sidebar") << 2 << Qt::Key_A << 2 << QList<int>();
    }
    void keys()
    {
        QFETCH(int, before);
        QFETCH(Qt::Key, key);
        Fixture fixture;
        fixture.sidebar->setSelectedIndex(before);
        // Not clear(): comparing an empty list that keeps its memory with one without memory passes a null pointer to
        // memcmp().
        fixture.sent = {};
        QTest::keyClick(fixture.sidebar, key);
        QTEST(fixture.sidebar->selectedIndex(), "after");
        QTEST(fixture.sent, "sent");
    }

    void selectingTheSelectedIndexReportsAgain()
    {
        Fixture fixture;
        fixture.sidebar->setSelectedIndex(1);
        fixture.sidebar->setSelectedIndex(1);
        QCOMPARE(fixture.sent, (QList<int>{1, 1}));
    }

    void indexesOutOfRangeAreIgnored_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("minus one") << -1;
        QTest::newRow("one past the end") << 6;
        QTest::newRow("far past the end") << std::numeric_limits<int>::max();
    }
    void indexesOutOfRangeAreIgnored()
    {
        QFETCH(int, index);
        Fixture fixture;
        fixture.sidebar->setSelectedIndex(1);
        fixture.sent.clear();
        fixture.sidebar->setSelectedIndex(index);
        QCOMPARE(fixture.sidebar->selectedIndex(), 1);
        QVERIFY(fixture.sent.isEmpty());
    }

    void itemsAreSelectedByTheirPosition()
    {
        Fixture fixture;
        fixture.sidebar->setSelectedItem(fixture.cell(4));
        QCOMPARE(fixture.sidebar->selectedIndex(), 4);
        QCOMPARE(fixture.sidebar->selectedItem(), fixture.cell(4));
        ITSidebarItemCell stranger;
        fixture.sidebar->setSelectedItem(&stranger);
        QCOMPARE(fixture.sidebar->selectedIndex(), 4);
    }

    void ownTargetGoesFirstAndHearsTheEmptySelection()
    {
        Fixture fixture;
        QObject target;
        QList<int> heard;
        fixture.sidebar->setTarget(&target);
        fixture.sidebar->setAction([&](ITSidebar *sidebar) { heard << sidebar->selectedIndex(); });
        fixture.sidebar->setSelectedIndex(3);
        QTest::keyClick(fixture.sidebar, Qt::Key_Escape);
        QCOMPARE(heard, (QList<int>{3, -1}));
        QVERIFY(fixture.sent.isEmpty());
    }

    void targetThatHasGoneLeavesTheItemsToTheirs()
    {
        Fixture fixture;
        {
            QObject target;
            fixture.sidebar->setTarget(&target);
            fixture.sidebar->setAction([](ITSidebar *) {});
        }
        fixture.sidebar->setSelectedIndex(3);
        QCOMPARE(fixture.sent, QList<int>{3});
    }

    void clickSendsTheItemsOwnAction()
    {
        Fixture fixture;
        QObject target;
        int heard = 0;
        fixture.sidebar->setTarget(&target);
        fixture.sidebar->setAction([&](ITSidebar *) { ++heard; });
        QTest::mouseClick(fixture.cell(2), Qt::LeftButton);
        QCOMPARE(fixture.sidebar->selectedIndex(), 2);
        QCOMPARE(fixture.sent, QList<int>{2});
        QCOMPARE(heard, 0);
    }

    void clickOnAnItemWithoutActionReportsThroughTheSidebar()
    {
        Fixture fixture(1);
        fixture.sidebar->addItemWithImage(NamedImage(u"icon_icons"_s));
        QObject target;
        int heard = 0;
        fixture.sidebar->setTarget(&target);
        fixture.sidebar->setAction([&](ITSidebar *) { ++heard; });
        QTest::mouseClick(fixture.cell(1), Qt::LeftButton);
        QCOMPARE(heard, 1);
    }

    void oneItemAtMostIsOn()
    {
        Fixture fixture;
        for (int index : {0, 3, 5, 1}) {
            QTest::mouseClick(fixture.cell(index), Qt::LeftButton);
            int on = 0;
            for (const ITSidebarItemCell *cell : fixture.sidebar->matrix()->cells())
                on += cell->state() ? 1 : 0;
            QCOMPARE(on, 1);
            QVERIFY(fixture.cell(index)->state());
        }
    }

    void forbiddingTheEmptySelectionSelectsTheFirst()
    {
        Fixture fixture;
        QCOMPARE(fixture.sidebar->selectedIndex(), -1);
        fixture.sidebar->setAllowsEmptySelection(false);
        QCOMPARE(fixture.sidebar->selectedIndex(), 0);
        QTest::keyClick(fixture.sidebar, Qt::Key_Escape);
        QCOMPARE(fixture.sidebar->selectedIndex(), -1);
    }

    void frameIsShiftedByTen()
    {
        ITSidebar sidebar;
        sidebar.setFrame(QRect(0, 7, 100, 50));
        QCOMPARE(sidebar.pos(), QPoint(10, 7));
    }

    void sizeFollowsTheItemsAndTheScrollView_data()
    {
        QTest::addColumn<int>("items");
        QTest::addColumn<int>("visibleHeight");
        QTest::addColumn<int>("expected");
        QTest::newRow("higher than the items") << 6 << 600 << 600;
        QTest::newRow("lower than the items") << 6 << 200 << 6 * 62;
        QTest::newRow("no items") << 0 << 200 << 200;
    }
    void sizeFollowsTheItemsAndTheScrollView()
    {
        QFETCH(int, items);
        QFETCH(int, visibleHeight);
        const Fixture fixture(items, {62, visibleHeight});
        QTRY_COMPARE(fixture.scrollView.clipViewSize().height(), visibleHeight);
        QTEST(fixture.sidebar->height(), "expected");
        QCOMPARE(fixture.sidebar->width(), 62);
        QCOMPARE(fixture.sidebar->matrix()->size(), fixture.sidebar->size());
    }

    void selectionIsScrolledIntoView()
    {
        Fixture fixture(6, {62, 130});
        QVERIFY(QTest::qWaitForWindowExposed(&fixture.scrollView));
        fixture.sidebar->setSelectedIndex(5);
        QCOMPARE(fixture.sidebar->y(), 130 - 6 * 62);
        fixture.sidebar->setSelectedIndex(0);
        QCOMPARE(fixture.sidebar->y(), 0);
    }

    void removingARowShrinksTheColumn()
    {
        const Fixture fixture(6, {62, 100});
        fixture.sidebar->removeRow(2);
        QCOMPARE(fixture.sidebar->matrix()->cells().size(), 5);
        QCOMPARE(fixture.sidebar->height(), 5 * 62);
        QCOMPARE(fixture.cell(2)->y(), 2 * 62);
    }

    void imagesOfAnItemAreSetTogether()
    {
        const Fixture fixture;
        const NamedImage image(u"icon_devices"_s);
        fixture.sidebar->setImage(image, 1);
        QCOMPARE(fixture.cell(1)->image(), image);
        QCOMPARE(fixture.cell(1)->alternateImage(), image);
        QVERIFY_EXCEPTION_THROWN(fixture.sidebar->setImage(image, 6), std::out_of_range);
        QVERIFY_EXCEPTION_THROWN(fixture.sidebar->setImage(image, -1), std::out_of_range);
    }

    void alternateImageShowsWhileHeldDownAndWhileSelected()
    {
        const Fixture fixture;
        ITSidebarItemCell *cell = fixture.cell(0);
        QCOMPARE(cell->shownImage(), cell->image());
        cell->setDown(true);
        QCOMPARE(cell->shownImage(), cell->alternateImage());
        cell->setDown(false);
        fixture.sidebar->setSelectedIndex(0);
        QCOMPARE(cell->shownImage(), cell->alternateImage());
        cell->setAlternateImage({});
        QCOMPARE(cell->shownImage(), cell->image());
    }

    void subclassMakesItsOwnCells()
    {
        OwnSidebar sidebar;
        QVERIFY(dynamic_cast<OwnCell *>(sidebar.addItemWithImage(NamedImage(u"icon_icons"_s))) != nullptr);
    }

    void cellGeometry()
    {
        QCOMPARE(ITSidebarItemCell::imageRect(QRectF(0, 0, 62, 62), QSizeF(32, 32)), QRectF(15, 15, 32, 32));
        QCOMPARE(ITSidebarItemCell::imageRect(QRectF(0, 62, 62, 62), QSizeF(33, 20)), QRectF(14.5, 83, 33, 20));
        QCOMPARE(ITSidebarItemCell::selectionRect(QRectF(0, 0, 62, 62)), QRectF(10, 10, 42, 42));
        const ITSidebarItemCell::Shadow shadow = ITSidebarItemCell::shadow();
        QCOMPARE(shadow.offset, QPointF(0, -1));
        QCOMPARE(shadow.color, QColor(Qt::black));
        QCOMPARE(shadow.blurRadius, 3.0);
    }

    void selectionFrameIsDrawn_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<bool>("highlighted");
        QTest::addColumn<bool>("framed");
        QTest::newRow("off") << false << false << false;
        QTest::newRow("held down but off: no frame") << false << true << false;
        QTest::newRow("on") << true << false << true;
        QTest::newRow("on and held down") << true << true << true;
    }
    void selectionFrameIsDrawn()
    {
        QFETCH(bool, on);
        QFETCH(bool, highlighted);
        QFETCH(bool, framed);
        Fixture fixture(2);
        if (on)
            fixture.sidebar->setSelectedIndex(0);
        fixture.cell(0)->setDown(highlighted);
        const QRgb expected = (framed ? palette::sidebarSelection : fixture.scrollView.backgroundColor()).rgb();
        const QImage drawn = fixture.scrollView.grab().toImage();
        // The line is 2 wide around x = 10, halfway down the first cell.
        QCOMPARE(drawn.pixelColor(9, 31).rgb(), expected);
        QCOMPARE(drawn.pixelColor(10, 31).rgb(), expected);
        QVERIFY(drawn.pixelColor(12, 31).rgb() != palette::sidebarSelection.rgb());
    }

    void aDropTargetIsMarked()
    {
        Fixture fixture(2);
        const auto inside = [&fixture] { return fixture.scrollView.grab().toImage().pixelColor(14, 31); };
        const QColor unmarked = inside();
        fixture.cell(0)->setDropTarget(true);
        QVERIFY(inside().lightness() > unmarked.lightness());
        fixture.cell(0)->setDropTarget(false);
        QCOMPARE(inside(), unmarked);
    }

    void scrollViewIsSetUp()
    {
        const Fixture fixture(0);
        QCOMPARE(fixture.sidebar->backgroundColor(), QColor::fromRgbF(0.341F, 0.565F, 0.898F));
        QCOMPARE(fixture.sidebar->scrollerKnobStyle(), ScrollerKnobStyle::Light);
        fixture.sidebar->setBackgroundColor(Qt::red);
        QCOMPARE(fixture.scrollView.backgroundColor(), QColor(Qt::red));
    }
};

QTEST_MAIN(SidebarTest)
#include "SidebarTest.moc"
