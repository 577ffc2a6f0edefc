// SPDX-License-Identifier: MIT
#include "WellsTest.h"

#include <QAccessible>
#include <QAction>
#include <QKeySequence>
#include <QSignalSpy>

using namespace lumora;
using namespace Qt::StringLiterals;

class ColorPanelTest : public WellsTest
{
    Q_OBJECT

private slots:
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
        m_wells->click(m_wells->well);
        QVERIFY(m_wells->popoverHostsContent());
        panel()->orderFront();
        QVERIFY(!m_wells->popoverHostsContent());
        QVERIFY(panel()->hostsContentView());
    }

    void closingThePanelDeactivatesItsWells()
    {
        m_wells->openFloatingPanel();
        panel()->close();
        QVERIFY(!m_wells->well.isActive());
        m_wells->click(m_wells->well);
        QVERIFY(popover()->isShown());
    }

    void closesByKey_data()
    {
        QTest::addColumn<QKeySequence>("keys");

        QTest::newRow("Escape") << QKeySequence(Qt::Key_Escape);
        QTest::newRow("what closes a window") << QKeySequence(QKeySequence::Close);
    }
    void closesByKey()
    {
        QFETCH(QKeySequence, keys);
        // A command of the main window with the same keys is not triggered.
        QAction command;
        command.setShortcut(QKeySequence::Close);
        command.setShortcutContext(Qt::ApplicationShortcut);
        m_wells->window.addAction(&command);
        const QSignalSpy triggered(&command, &QAction::triggered);
        m_wells->openFloatingPanel();
        panel()->activateWindow();
        QTest::keySequence(panel(), keys);
        QVERIFY(!panel()->isVisible());
        QVERIFY(!m_wells->well.isActive());
        QCOMPARE(triggered.count(), 0);
    }

    void isADialogByItsTitle()
    {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(panel());
        QCOMPARE(interface->role(), QAccessible::Dialog);
        QCOMPARE(interface->text(QAccessible::Name), panel()->windowTitle());
    }

    void aColorGivenToTheActiveWellIsThePickersToo_data()
    {
        QTest::addColumn<bool>("tornOff");
        QTest::newRow("in the popover") << false;
        QTest::newRow("in the floating panel") << true;
    }
    void aColorGivenToTheActiveWellIsThePickersToo()
    {
        QFETCH(bool, tornOff);
        if (tornOff)
            m_wells->openFloatingPanel();
        else
            m_wells->click(m_wells->well);
        const QSignalSpy pickedColors(&m_wells->well, &ColorWell::colorPicked);
        m_wells->well.setColor(second);
        QCOMPARE(panel()->color(), second);
        QCOMPARE(pickedColors.count(), 0);
        // The next change in the picker starts from there.
        panel()->model()->setColor({second.red, second.green, second.blue, 0.5F});
        QCOMPARE(m_wells->well.color(), (RgbaColor{second.red, second.green, second.blue, 0.5F}));
        QCOMPARE(pickedColors.count(), 1);
        // A well that is not active does not change the picker.
        m_wells->other.setColor(picked);
        QVERIFY(panel()->color() != picked);
    }

    void theRecentPageTakesUpWhatIsPickedWhileItIsOpen()
    {
        panel()->setColor(first);
        panel()->setMode(PickerMode::Recent);
        const std::size_t before = panel()->recentColors().colors().size();
        // A drag over several colors adds only the last.
        panel()->model()->setColor(second);
        panel()->model()->setColor(picked);
        QCOMPARE(panel()->recentColors().colors().size(), before + 1);
        QCOMPARE(panel()->recentColors().colors().front(), picked);
        // Leaving the page adds nothing.
        panel()->setMode(PickerMode::Wheel);
        QCOMPARE(panel()->recentColors().colors().size(), before + 1);
    }

    void describesTheSharedPanelsColor()
    {
        panel()->setColor({0.204F, 0.286F, 0.369F, 1.0F});
        QCOMPARE(ColorPanel::colorText(), u"r: 52, g: 73, b: 94, a: 255"_s);
    }
};

QTEST_MAIN(ColorPanelTest)
#include "ColorPanelTest.moc"
