// SPDX-License-Identifier: MIT
#include "WellsTest.h"
#include "color/picker/ChannelRow.h"
#include "color/picker/ColorSlider.h"
#include "color/picker/PickerPages.h"
#include "widgets/popover/ScreenCoordinates.h"

#include <QComboBox>
#include <QSignalSpy>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// Counts how often a widget is shown.
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

class PickerPopoverTest : public WellsTest
{
    Q_OBJECT

private slots:
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
        m_wells->click(m_wells->well);
        QVERIFY(popover()->isShown());
        QVERIFY(popover()->balloon()->isVisible());
        QVERIFY(m_wells->well.isActive());
        QCOMPARE(m_wells->well.popover(), popover());
        QCOMPARE(popover()->colorWell(), &m_wells->well);
        QCOMPARE(popover()->color(), first);
        QCOMPARE(panel()->color(), first);
        QVERIFY(m_wells->popoverHostsContent());
        QVERIFY(!panel()->hostsContentView());
        QVERIFY(panel()->contentView()->isVisible());
        // The floating panel uses the same content and must not be shown for a moment.
        QCOMPARE(panelShown.count, 0);
        QVERIFY(!ColorPanel::isPanelDisabled());
    }

    void theViewIsLaidOutAsGiven()
    {
        m_wells->click(m_wells->well);
        QCOMPARE(m_wells->popoverView()->size(), QSize(250, 400));
        QCOMPARE(popover()->contentViewController()->tabbar()->geometry(), QRect(0, 0, 250, 34));
        QCOMPARE(panel()->contentView()->geometry(), QRect(0, 34, 250, 366));
        QVERIFY(panel()->showsAlpha());
    }

    void tabsAndContentStretchWithTheView()
    {
        m_wells->click(m_wells->well);
        m_wells->popoverView()->resize(300, 450);
        QCOMPARE(popover()->contentViewController()->tabbar()->geometry(), QRect(0, 0, 300, 34));
        QCOMPARE(panel()->contentView()->geometry(), QRect(0, 34, 300, 416));
    }

    void tabGoesFromTheTabsToTheModeToTheRest()
    {
        m_wells->click(m_wells->well);
        panel()->setMode(PickerMode::Sliders);
        QWidget *control = popover()->contentViewController()->tabbar();
        const auto next = [&control] {
            do {
                control = control->nextInFocusChain();
            } while ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isVisible() ||
                     control->accessibleName().isEmpty());
            return control;
        };
        QCOMPARE(next(), static_cast<SlidersPage *>(panel()->contentView()->page(PickerMode::Sliders))->kind());
        for (int step = 0; step < 6; ++step)
            QVERIFY(panel()->contentView()->page(PickerMode::Sliders)->isAncestorOf(next()));
        QCOMPARE(next(), panel()->contentView()->opacityRow()->slider());
    }

    void theArrowPointsAtTheWellsRightEdge()
    {
        m_wells->click(m_wells->well);
        const QPointF tip = flippedOnScreen(popover()->balloon()->popoverWindow()->attachmentPoint());
        QCOMPARE(tip.toPoint(), m_wells->well.mapToGlobal(QPoint(m_wells->well.width(), m_wells->well.height() / 2)));
    }

    void everyModeIsATab()
    {
        m_wells->click(m_wells->well);
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
        m_wells->click(m_wells->well);
        QCOMPARE(popover()->contentViewController()->tabbar()->selectedIndex(), 2);
    }

    void aPickedColorReachesWellAndTarget()
    {
        m_wells->click(m_wells->well);
        int actions = 0;
        RgbaColor told;
        popover()->setTarget(this, [&](BFColorPickerPopover *sender) {
            ++actions;
            told = sender->color();
        });
        QSignalSpy pickedBy(&m_wells->well, &ColorWell::colorPicked);
        panel()->model()->setColor(picked);
        QCOMPARE(m_wells->well.color(), picked);
        QCOMPARE(pickedBy.count(), 1);
        QCOMPARE(actions, 1);
        QCOMPARE(told, picked);
        QCOMPARE(popover()->color(), picked);
        QCOMPARE(m_wells->other.color(), second);
    }

    void aTargetThatIsGoneIsNotTold()
    {
        m_wells->click(m_wells->well);
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
        m_wells->click(m_wells->well);
        popover()->setColor(picked);
        QCOMPARE(panel()->color(), picked);
        popover()->close();
        popover()->setColor(second);
        QCOMPARE(panel()->color(), picked);
    }

    void closingKeepsThePanelsColor()
    {
        m_wells->click(m_wells->well);
        panel()->model()->setColor(picked);
        popover()->close();
        QCOMPARE(panel()->color(), picked);
        QVERIFY(!m_wells->well.isActive());
        panel()->model()->setColor(second);
        QCOMPARE(m_wells->well.color(), picked);
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
        m_wells->click(m_wells->well);
        popover()->setTarget(this, [](BFColorPickerPopover *) {});
        if (cause == u"escape")
            QTest::keyClick(popover()->balloon()->popoverWindow(), Qt::Key_Escape);
        else if (cause == u"press")
            m_wells->click(m_wells->elsewhere);
        else if (cause == u"hide")
            m_wells->well.hide();
        else
            m_wells->window.hide();
        QVERIFY(!popover()->isShown());
        QTRY_VERIFY(!popover()->balloon()->isVisible());
        QVERIFY(!m_wells->well.isActive());
        QVERIFY(popover()->target() == nullptr);
        QVERIFY(popover()->colorWell() == nullptr);
        QVERIFY(!panel()->isVisible());
    }

    void aPressInAnotherWindowDoesNotClose()
    {
        QWidget another;
        another.setGeometry(600, 400, 100, 100);
        another.show();
        m_wells->click(m_wells->well);
        m_wells->click(another);
        QVERIFY(popover()->isShown());
        QVERIFY(m_wells->well.isActive());
    }

    void anotherProgramInFrontDoesNotClose()
    {
        m_wells->click(m_wells->well);
        QMetaObject::invokeMethod(qGuiApp, "applicationStateChanged",
                                  Q_ARG(Qt::ApplicationState, Qt::ApplicationInactive));
        QVERIFY(popover()->isShown());
        QVERIFY(popover()->balloon()->isVisible());
        QVERIFY(m_wells->well.isActive());
    }

    void whatIsNotShownNeedNotClose()
    {
        popover()->setTarget(this, [](BFColorPickerPopover *) {});
        QVERIFY(!popover()->delegatePopoverShouldClose());
        QCOMPARE(popover()->target(), this);
    }

    void aPressInThePopoverDoesNotClose()
    {
        m_wells->click(m_wells->well);
        m_wells->click(*panel()->contentView());
        QVERIFY(popover()->isShown());
    }

    void itOpensAgainWhileItStillFades()
    {
        popover()->setAnimates(true);
        m_wells->click(m_wells->well);
        m_wells->click(m_wells->well);
        QVERIFY(!popover()->isShown());
        QVERIFY(popover()->balloon()->isVisible());
        m_wells->click(m_wells->well);
        QVERIFY(popover()->isShown());
        QVERIFY(m_wells->well.isActive());
        QVERIFY(m_wells->popoverHostsContent());
    }

    void theContentSurvivesItsHost()
    {
        m_wells->click(m_wells->well);
        const PickerContent *content = panel()->contentView();
        m_wells->click(m_wells->other);
        m_wells->click(m_wells->well);
        QCOMPARE(panel()->contentView(), content);
        QVERIFY(m_wells->popoverHostsContent());
    }

    void picksBecomeRecentColors()
    {
        m_wells->click(m_wells->well);
        panel()->model()->setColor({0.11F, 0.22F, 0.33F, 1.0F});
        const std::size_t before = panel()->recentColors().colors().size();
        m_wells->click(m_wells->well);
        QCOMPARE(panel()->recentColors().colors().size(), before + 1);
        QCOMPARE(panel()->recentColors().colors().front(), (RgbaColor{0.11F, 0.22F, 0.33F, 1.0F}));
        // Opening and closing without picking adds nothing.
        m_wells->click(m_wells->other);
        m_wells->click(m_wells->other);
        QCOMPARE(panel()->recentColors().colors().size(), before + 1);
    }
};

QTEST_MAIN(PickerPopoverTest)
#include "PickerPopoverTest.moc"
