// SPDX-License-Identifier: MIT
#include "WellsTest.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace lumora;

class ColorWellTest : public WellsTest
{
    Q_OBJECT

private slots:
    void aWellOpensToTheRightAndUsesAPanelByDefault()
    {
        QCOMPARE(m_wells->well.preferredEdgeForPopover(), Qt::RightEdge);
        QVERIFY(m_wells->well.useColorPanelIfAvailable());
        QVERIFY(m_wells->well.popover() == nullptr);
        QVERIFY(!m_wells->well.isActive());
    }

    void aClickOnTheActiveWellClosesAndDeactivates()
    {
        m_wells->click(m_wells->well);
        m_wells->click(m_wells->well);
        QVERIFY(!popover()->isShown());
        QVERIFY(!popover()->balloon()->isVisible());
        QVERIFY(!m_wells->well.isActive());
        QVERIFY(m_wells->well.popover() == nullptr);
        QVERIFY(popover()->colorWell() == nullptr);
    }

    void aSecondWellTakesThePopoverOverUnnoticedByTheFirst()
    {
        popover()->setAnimates(true);
        m_wells->click(m_wells->well);
        int actions = 0;
        popover()->setTarget(this, [&](BFColorPickerPopover *) { ++actions; });
        QSignalSpy pickedByFirst(&m_wells->well, &ColorWell::colorPicked);
        QSignalSpy closed(popover(), &BFColorPickerPopover::closed);
        m_wells->click(m_wells->other);
        // Closed without a fade.
        QCOMPARE(closed.count(), 1);
        QVERIFY(popover()->animates());
        QVERIFY(popover()->isShown());
        QCOMPARE(popover()->colorWell(), &m_wells->other);
        QVERIFY(m_wells->other.isActive());
        QVERIFY(!m_wells->well.isActive());
        QCOMPARE(popover()->color(), second);
        QCOMPARE(actions, 0);
        QCOMPARE(pickedByFirst.count(), 0);
        QCOMPARE(m_wells->well.color(), first);
        QVERIFY(popover()->target() == nullptr);
    }

    void aVisiblePanelServesTheWellWithoutPopover()
    {
        m_wells->openFloatingPanel();
        m_wells->click(m_wells->other);
        QVERIFY(!popover()->isShown());
        QVERIFY(panel()->isVisible());
        QVERIFY(m_wells->other.isActive());
        QVERIFY(!m_wells->well.isActive());
        QVERIFY(m_wells->other.popover() == nullptr);
        QCOMPARE(panel()->color(), second);
        QCOMPARE(m_wells->well.color(), first);
    }

    void withoutThatWishThePopoverOpensInsteadOfThePanel()
    {
        m_wells->openFloatingPanel();
        m_wells->other.setUseColorPanelIfAvailable(false);
        m_wells->click(m_wells->other);
        QVERIFY(popover()->isShown());
        QVERIFY(!panel()->isVisible());
        QVERIFY(m_wells->other.isActive());
        QVERIFY(!m_wells->well.isActive());
        QCOMPARE(popover()->colorWell(), &m_wells->other);
        QVERIFY(m_wells->popoverHostsContent());
    }

    void aDoubleClickMovesThePickerIntoThePopover()
    {
        m_wells->openFloatingPanel();
        QTest::mouseDClick(&m_wells->well, Qt::LeftButton);
        QVERIFY(popover()->isShown());
        QVERIFY(!panel()->isVisible());
        QVERIFY(m_wells->popoverHostsContent());
        QVERIFY(m_wells->well.isActive());
        QCOMPARE(m_wells->well.popover(), popover());
        QCOMPARE(popover()->colorWell(), &m_wells->well);
    }

    void aDoubleClickWithoutAPanelIsASecondClick()
    {
        m_wells->click(m_wells->well);
        QVERIFY(popover()->isShown());
        const QPointF middle = m_wells->well.rect().center();
        QMouseEvent again(QEvent::MouseButtonDblClick, middle, m_wells->well.mapToGlobal(middle), Qt::LeftButton,
                          Qt::LeftButton, {});
        QCoreApplication::sendEvent(&m_wells->well, &again);
        QVERIFY(!popover()->isShown());
        QVERIFY(!m_wells->well.isActive());
    }

    void shiftLetsTwoWellsBeActiveTogether()
    {
        m_wells->openFloatingPanel();
        m_wells->click(m_wells->other, Qt::ShiftModifier);
        QVERIFY(m_wells->well.isActive());
        QVERIFY(m_wells->other.isActive());
        panel()->model()->setColor(picked);
        QCOMPARE(m_wells->well.color(), picked);
        QCOMPARE(m_wells->other.color(), picked);
        m_wells->click(m_wells->other);
        QVERIFY(m_wells->well.isActive());
        QVERIFY(!m_wells->other.isActive());
    }

    void deactivateAllLeavesNoWellActive()
    {
        m_wells->openFloatingPanel();
        m_wells->click(m_wells->other, Qt::ShiftModifier);
        const RgbaColor before = panel()->color();
        const ColorWell *hidden = ColorWell::hiddenWell();
        ColorWell::deactivateAll();
        QVERIFY(!m_wells->well.isActive());
        QVERIFY(!m_wells->other.isActive());
        QVERIFY(ColorWell::hiddenWell() != nullptr);
        QVERIFY(ColorWell::hiddenWell() != hidden);
        QVERIFY(!ColorWell::hiddenWell()->isActive());
        QCOMPARE(ColorWell::hiddenWell()->color(), (RgbaColor{1 / 255.0F, 2 / 255.0F, 3 / 255.0F, 1.0F}));
        QVERIFY(!ColorPanel::isPanelDisabled());
        QCOMPARE(panel()->color(), before);
        panel()->model()->setColor(picked);
        QVERIFY(m_wells->well.color() != picked);
    }

    void tellsItsColorToAScreenReader()
    {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&m_wells->well);
        QCOMPARE(interface->role(), QAccessible::ColorChooser);
        QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("#336699"));
        m_wells->click(m_wells->well);
        panel()->model()->setColor(picked);
        QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("#00ff00"));
        const ColorWell fresh;
        QCOMPARE(fresh.accessibleDescription(), QStringLiteral("#ffffff"));
    }

    void spaceActivatesTheWellToo()
    {
        m_wells->well.setFocus();
        QTest::keyClick(&m_wells->well, Qt::Key_Space);
        QVERIFY(popover()->isShown());
        QVERIFY(m_wells->well.isActive());
    }
};

QTEST_MAIN(ColorWellTest)
#include "ColorWellTest.moc"
