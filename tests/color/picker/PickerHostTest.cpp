// SPDX-License-Identifier: MIT
#include "color/picker/BFColorPickerPopover.h"
#include "color/picker/BFColorPickerPopoverView.h"
#include "color/picker/BFColorPickerViewController.h"
#include "color/picker/BFPopoverColorWell.h"
#include "color/picker/ColorPanel.h"
#include "color/picker/PickerContent.h"
#include "widgets/BFIconTabBar.h"
#include "widgets/SFBPopover.h"
#include "widgets/ScreenCoordinates.h"

#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr RgbaColor first{0.2F, 0.4F, 0.6F, 1.0F};
constexpr RgbaColor second{0.8F, 0.1F, 0.3F, 1.0F};
constexpr RgbaColor picked{0.0F, 1.0F, 0.0F, 1.0F};

/// Counts how often a widget comes to the screen.
class ShowCounter final : public QObject
{
public:
    explicit ShowCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Show ? 1 : 0;
        return false;
    }
};

} // namespace

class PickerHostTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_window;
    BFPopoverColorWell *m_well = nullptr;
    BFPopoverColorWell *m_other = nullptr;
    QWidget *m_elsewhere = nullptr;

    static BFColorPickerPopover *popover() { return BFColorPickerPopover::sharedPopover(); }
    static ColorPanel *panel() { return ColorPanel::sharedColorPanel(); }
    static BFColorPickerPopoverView *popoverView() { return popover()->contentViewController()->popoverView(); }
    static bool popoverHostsContent() { return popover()->contentViewController()->colorPanelView() != nullptr; }

    static void click(QWidget *widget, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(widget, Qt::LeftButton, modifiers);
    }

    /// Drags the popover by its background as a mouse does, in several steps, and lets go.
    static void drag(const QPoint &travel, bool letGo = true)
    {
        BFColorPickerPopoverView *view = popoverView();
        const QPoint start = view->mapToGlobal(QPoint(view->width() - 10, 17));
        const auto send = [&](QEvent::Type type, const QPoint &global, Qt::MouseButtons buttons) {
            QMouseEvent event(type, QPointF(view->mapFromGlobal(global)), QPointF(global), Qt::LeftButton, buttons, {});
            QCoreApplication::sendEvent(view, &event);
        };
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        send(QEvent::MouseMove, start + travel / 2, Qt::LeftButton);
        send(QEvent::MouseMove, start + travel, Qt::LeftButton);
        if (letGo)
            send(QEvent::MouseButtonRelease, start + travel, Qt::NoButton);
    }

    void openFloatingPanel()
    {
        click(m_well);
        drag({80, 0});
        QVERIFY(panel()->isVisible());
    }

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(100, 60, 300, 300);
        m_well = new BFPopoverColorWell(m_window.get());
        m_well->setGeometry(20, 100, 80, 40);
        m_well->setColor(first);
        m_other = new BFPopoverColorWell(m_window.get());
        m_other->setGeometry(20, 200, 80, 40);
        m_other->setColor(second);
        m_elsewhere = new QWidget(m_window.get());
        m_elsewhere->setGeometry(200, 10, 50, 50);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        popover()->setAnimates(false);
    }
    void cleanup()
    {
        if (popover()->isShown())
            popover()->close();
        panel()->hide();
        ColorWell::deactivateAll();
        popover()->removeTargetAndAction();
        panel()->setMode(PickerMode::Wheel);
        m_window.reset();
    }

    void aWellOpensToTheRightAndUsesAPanelByDefault()
    {
        QCOMPARE(m_well->preferredEdgeForPopover(), Qt::RightEdge);
        QVERIFY(m_well->useColorPanelIfAvailable());
        QVERIFY(m_well->popover() == nullptr);
        QVERIFY(!m_well->isActive());
    }

    void aFreshPopoverIsWhite()
    {
        BFColorPickerPopover fresh;
        QCOMPARE(fresh.color(), (RgbaColor{1.0F, 1.0F, 1.0F, 1.0F}));
        QVERIFY(fresh.colorPanel() == nullptr);
        QVERIFY(!fresh.isShown());
    }

    void aClickOpensThePopoverAndActivatesTheWell()
    {
        const ShowCounter panelShown(panel());
        click(m_well);
        QVERIFY(popover()->isShown());
        QVERIFY(popover()->balloon()->isVisible());
        QVERIFY(m_well->isActive());
        QCOMPARE(m_well->popover(), popover());
        QCOMPARE(popover()->colorWell(), m_well);
        QCOMPARE(popover()->color(), first);
        QCOMPARE(panel()->color(), first);
        QVERIFY(popoverHostsContent());
        QVERIFY(!panel()->hostsContentView());
        QVERIFY(panel()->contentView()->isVisible());
        // The floating panel is served by the same content and must not flash up meanwhile.
        QCOMPARE(panelShown.count, 0);
        QVERIFY(!ColorPanel::isPanelDisabled());
    }

    void theViewIsLaidOutAsGiven()
    {
        click(m_well);
        QCOMPARE(popoverView()->size(), QSize(250, 400));
        QCOMPARE(popover()->contentViewController()->tabbar()->geometry(), QRect(0, 0, 250, 34));
        QCOMPARE(panel()->contentView()->geometry(), QRect(0, 34, 250, 366));
        QVERIFY(panel()->showsAlpha());
    }

    void theArrowPointsAtTheWellsRightEdge()
    {
        click(m_well);
        const QPointF tip = flippedOnScreen(popover()->balloon()->popoverWindow()->attachmentPoint());
        QCOMPARE(tip.toPoint(), m_well->mapToGlobal(QPoint(m_well->width(), m_well->height() / 2)));
    }

    void everyModeIsATab()
    {
        click(m_well);
        const BFIconTabBar *tabs = popover()->contentViewController()->tabbar();
        QCOMPARE(tabs->items().size(), 4);
        QCOMPARE(tabs->selectedIndex(), 0);
        for (int index = 0; index < 4; ++index) {
            QCOMPARE(tabs->items().at(index)->tooltip(), panel()->toolbarItems().at(index).mode.toolTip);
            QVERIFY(!tabs->items().at(index)->icon().isNull());
            QTest::mouseClick(popover()->contentViewController()->tabbar(), Qt::LeftButton, {},
                              tabs->slotRect(index).center().toPoint());
            QCOMPARE(panel()->mode(), panel()->toolbarItems().at(index).mode.mode);
            QCOMPARE(panel()->selectedItemIdentifier(), panel()->toolbarItems().at(index).mode.identifier);
        }
    }

    void theModeIsKeptForTheNextOpening()
    {
        panel()->setMode(PickerMode::Palettes);
        click(m_well);
        QCOMPARE(popover()->contentViewController()->tabbar()->selectedIndex(), 2);
    }

    void aPickedColorReachesWellAndTarget()
    {
        click(m_well);
        int actions = 0;
        RgbaColor told;
        popover()->setTarget(this, [&](BFColorPickerPopover *sender) {
            ++actions;
            told = sender->color();
        });
        QSignalSpy pickedBy(m_well, &ColorWell::colorPicked);
        panel()->model()->setColor(picked);
        QCOMPARE(m_well->color(), picked);
        QCOMPARE(pickedBy.count(), 1);
        QCOMPARE(actions, 1);
        QCOMPARE(told, picked);
        QCOMPARE(popover()->color(), picked);
        QCOMPARE(m_other->color(), second);
    }

    void aTargetThatIsGoneIsNotTold()
    {
        click(m_well);
        int actions = 0;
        {
            QObject target;
            popover()->setTarget(&target, [&](BFColorPickerPopover *) { ++actions; });
        }
        panel()->model()->setColor(picked);
        QCOMPARE(actions, 0);
    }

    void settingTheShownPopoversColorReachesThePanel()
    {
        click(m_well);
        popover()->setColor(picked);
        QCOMPARE(panel()->color(), picked);
        popover()->close();
        popover()->setColor(second);
        QCOMPARE(panel()->color(), picked);
    }

    void aDragOffTheWellTearsOffFromFiftyPoints_data()
    {
        QTest::addColumn<QPoint>("travel");
        QTest::addColumn<bool>("tornOff");

        QTest::newRow("not moved") << QPoint(0, 0) << false;
        QTest::newRow("49 points snap back") << QPoint(49, 0) << false;
        QTest::newRow("50 points come off") << QPoint(50, 0) << true;
        QTest::newRow("49 points down") << QPoint(0, 49) << false;
        QTest::newRow("50 points up") << QPoint(0, -50) << true;
        QTest::newRow("30 and 40 make 50") << QPoint(30, 40) << true;
        QTest::newRow("far away") << QPoint(150, 90) << true;
    }
    void aDragOffTheWellTearsOffFromFiftyPoints()
    {
        QFETCH(QPoint, travel);
        QFETCH(bool, tornOff);
        click(m_well);
        panel()->setMode(PickerMode::Sliders);
        panel()->model()->setColor(picked);
        int actions = 0;
        popover()->setTarget(this, [&](BFColorPickerPopover *) { ++actions; });
        const QPointF origin = popover()->windowOrigin();
        const QPoint contentBefore = panel()->contentView()->mapToGlobal(QPoint());

        drag(travel);
        QCOMPARE(popover()->isShown(), !tornOff);
        QCOMPARE(panel()->isVisible(), tornOff);
        QCOMPARE(panel()->hostsContentView(), tornOff);
        QCOMPARE(popoverHostsContent(), !tornOff);
        QVERIFY(!popover()->shouldHideAnchor());
        QVERIFY(!popoverView()->isDragging());
        // Either way the same picker goes on for the same well.
        QVERIFY(m_well->isActive());
        QCOMPARE(panel()->mode(), PickerMode::Sliders);
        QCOMPARE(panel()->color(), picked);
        if (tornOff) {
            QVERIFY(!popover()->balloon()->isVisible());
            QCOMPARE(panel()->contentView()->mapToGlobal(QPoint()), contentBefore + travel);
            QCOMPARE(panel()->contentView()->size(), QSize(250, 366));
        } else {
            QTRY_COMPARE(popover()->windowOrigin(), origin);
            QCOMPARE(panel()->contentView()->mapToGlobal(QPoint()), contentBefore);
        }
        panel()->model()->setColor(second);
        QCOMPARE(m_well->color(), second);
        QCOMPARE(actions, 1);
    }

    void theArrowDisappearsFiftyPointsAwayOneStepLater()
    {
        click(m_well);
        drag({0, 60}, false);
        // The window has gone 60 points, but had gone 30 when the last step was judged.
        QVERIFY(!popover()->shouldHideAnchor());
        BFColorPickerPopoverView *view = popoverView();
        const QPoint pointer = view->mapToGlobal(QPoint(view->width() - 10, 17));
        QMouseEvent move(QEvent::MouseMove, QPointF(view->mapFromGlobal(pointer)), QPointF(pointer), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(view, &move);
        QVERIFY(popover()->shouldHideAnchor());
        QVERIFY(!popover()->balloon()->drawsArrow());
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(view->mapFromGlobal(pointer)), QPointF(pointer),
                            Qt::LeftButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(view, &release);
        QVERIFY(!popover()->shouldHideAnchor());
        QVERIFY(panel()->isVisible());
    }

    void aClickOnTheActiveWellClosesAndDeactivates()
    {
        click(m_well);
        click(m_well);
        QVERIFY(!popover()->isShown());
        QVERIFY(!popover()->balloon()->isVisible());
        QVERIFY(!m_well->isActive());
        QVERIFY(m_well->popover() == nullptr);
        QVERIFY(popover()->colorWell() == nullptr);
    }

    void aSecondWellTakesThePopoverOverUnnoticedByTheFirst()
    {
        popover()->setAnimates(true);
        click(m_well);
        int actions = 0;
        popover()->setTarget(this, [&](BFColorPickerPopover *) { ++actions; });
        QSignalSpy pickedByFirst(m_well, &ColorWell::colorPicked);
        QSignalSpy closed(popover(), &BFColorPickerPopover::closed);
        click(m_other);
        // Closed at once, that is, without a fade.
        QCOMPARE(closed.count(), 1);
        QVERIFY(popover()->animates());
        QVERIFY(popover()->isShown());
        QCOMPARE(popover()->colorWell(), m_other);
        QVERIFY(m_other->isActive());
        QVERIFY(!m_well->isActive());
        QCOMPARE(popover()->color(), second);
        QCOMPARE(actions, 0);
        QCOMPARE(pickedByFirst.count(), 0);
        QCOMPARE(m_well->color(), first);
        QVERIFY(popover()->target() == nullptr);
    }

    void closingKeepsThePanelsColor()
    {
        click(m_well);
        panel()->model()->setColor(picked);
        popover()->close();
        QCOMPARE(panel()->color(), picked);
        QVERIFY(!m_well->isActive());
        panel()->model()->setColor(second);
        QCOMPARE(m_well->color(), picked);
    }

    void closes_data()
    {
        QTest::addColumn<QString>("cause");

        QTest::newRow("the Escape key in the popover") << u"escape"_s;
        QTest::newRow("a press elsewhere in the well's window") << u"press"_s;
        QTest::newRow("the well goes out of sight") << u"hide"_s;
        QTest::newRow("the window goes away") << u"window"_s;
    }
    void closes()
    {
        QFETCH(QString, cause);
        click(m_well);
        popover()->setTarget(this, [](BFColorPickerPopover *) {});
        if (cause == u"escape")
            QTest::keyClick(popover()->balloon()->popoverWindow(), Qt::Key_Escape);
        else if (cause == u"press")
            click(m_elsewhere);
        else if (cause == u"hide")
            m_well->hide();
        else
            m_window->hide();
        QVERIFY(!popover()->isShown());
        QTRY_VERIFY(!popover()->balloon()->isVisible());
        QVERIFY(!m_well->isActive());
        QVERIFY(popover()->target() == nullptr);
        QVERIFY(popover()->colorWell() == nullptr);
        QVERIFY(!panel()->isVisible());
    }

    void aPressInAnotherWindowDoesNotClose()
    {
        QWidget another;
        another.setGeometry(600, 400, 100, 100);
        another.show();
        click(m_well);
        click(&another);
        QVERIFY(popover()->isShown());
        QVERIFY(m_well->isActive());
    }

    void aPressInThePopoverDoesNotClose()
    {
        click(m_well);
        click(panel()->contentView());
        QVERIFY(popover()->isShown());
    }

    void itOpensAgainWhileItStillFades()
    {
        popover()->setAnimates(true);
        click(m_well);
        click(m_well);
        QVERIFY(!popover()->isShown());
        QVERIFY(popover()->balloon()->isVisible());
        click(m_well);
        QVERIFY(popover()->isShown());
        QVERIFY(m_well->isActive());
        QVERIFY(popoverHostsContent());
    }

    void aVisiblePanelServesTheWellWithoutPopover()
    {
        openFloatingPanel();
        click(m_other);
        QVERIFY(!popover()->isShown());
        QVERIFY(panel()->isVisible());
        QVERIFY(m_other->isActive());
        QVERIFY(!m_well->isActive());
        QVERIFY(m_other->popover() == nullptr);
        QCOMPARE(panel()->color(), second);
        QCOMPARE(m_well->color(), first);
    }

    void withoutThatWishThePopoverOpensInsteadOfThePanel()
    {
        openFloatingPanel();
        m_other->setUseColorPanelIfAvailable(false);
        click(m_other);
        QVERIFY(popover()->isShown());
        QVERIFY(!panel()->isVisible());
        QVERIFY(m_other->isActive());
        QVERIFY(!m_well->isActive());
        QCOMPARE(popover()->colorWell(), m_other);
        QVERIFY(popoverHostsContent());
    }

    void aDoubleClickMovesThePickerIntoThePopover()
    {
        openFloatingPanel();
        QTest::mouseDClick(m_well, Qt::LeftButton);
        QVERIFY(popover()->isShown());
        QVERIFY(!panel()->isVisible());
        QVERIFY(popoverHostsContent());
        QVERIFY(m_well->isActive());
        QCOMPARE(m_well->popover(), popover());
        QCOMPARE(popover()->colorWell(), m_well);
    }

    void shiftLetsTwoWellsBeActiveTogether()
    {
        openFloatingPanel();
        click(m_other, Qt::ShiftModifier);
        QVERIFY(m_well->isActive());
        QVERIFY(m_other->isActive());
        panel()->model()->setColor(picked);
        QCOMPARE(m_well->color(), picked);
        QCOMPARE(m_other->color(), picked);
        click(m_other);
        QVERIFY(m_well->isActive());
        QVERIFY(!m_other->isActive());
    }

    void deactivateAllLeavesNoWellActive()
    {
        openFloatingPanel();
        click(m_other, Qt::ShiftModifier);
        const RgbaColor before = panel()->color();
        const ColorWell *hidden = ColorWell::hiddenWell();
        ColorWell::deactivateAll();
        QVERIFY(!m_well->isActive());
        QVERIFY(!m_other->isActive());
        QVERIFY(ColorWell::hiddenWell() != nullptr);
        QVERIFY(ColorWell::hiddenWell() != hidden);
        QVERIFY(!ColorWell::hiddenWell()->isActive());
        QCOMPARE(ColorWell::hiddenWell()->color(), (RgbaColor{1 / 255.0F, 2 / 255.0F, 3 / 255.0F, 1.0F}));
        QVERIFY(!ColorPanel::isPanelDisabled());
        QCOMPARE(panel()->color(), before);
        panel()->model()->setColor(picked);
        QVERIFY(m_well->color() != picked);
    }

    void aDisabledPanelDoesNotComeToTheFront()
    {
        ColorPanel::disablePanel();
        panel()->orderFront();
        QVERIFY(!panel()->isVisible());
        ColorPanel::enablePanel();
        panel()->orderFront();
        QVERIFY(panel()->isVisible());
    }

    void thePanelTakesItsContentBackFromAnOpenPopover()
    {
        click(m_well);
        QVERIFY(popoverHostsContent());
        panel()->orderFront();
        QVERIFY(!popoverHostsContent());
        QVERIFY(panel()->hostsContentView());
    }

    void theContentSurvivesItsHost()
    {
        click(m_well);
        const PickerContent *content = panel()->contentView();
        click(m_other);
        click(m_well);
        QCOMPARE(panel()->contentView(), content);
        QVERIFY(popoverHostsContent());
    }

    void closingThePanelDeactivatesItsWells()
    {
        openFloatingPanel();
        panel()->close();
        QVERIFY(!m_well->isActive());
        click(m_well);
        QVERIFY(popover()->isShown());
    }

    void picksBecomeRecentColors()
    {
        click(m_well);
        panel()->model()->setColor({0.11F, 0.22F, 0.33F, 1.0F});
        const std::size_t before = panel()->recentColors().colors().size();
        click(m_well);
        QCOMPARE(panel()->recentColors().colors().size(), before + 1);
        QCOMPARE(panel()->recentColors().colors().front(), (RgbaColor{0.11F, 0.22F, 0.33F, 1.0F}));
        // Opening and closing without picking adds nothing.
        click(m_other);
        click(m_other);
        QCOMPARE(panel()->recentColors().colors().size(), before + 1);
    }

    void spaceActivatesTheWellToo()
    {
        m_well->setFocus();
        QTest::keyClick(m_well, Qt::Key_Space);
        QVERIFY(popover()->isShown());
        QVERIFY(m_well->isActive());
    }

    void describesTheSharedPanelsColor()
    {
        panel()->setColor({0.204F, 0.286F, 0.369F, 1.0F});
        QCOMPARE(ColorPanel::colorText(), u"r: 52, g: 73, b: 94, a: 255"_s);
    }
};

QTEST_MAIN(PickerHostTest)
#include "PickerHostTest.moc"
