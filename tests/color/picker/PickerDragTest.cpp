// SPDX-License-Identifier: MIT
#include "WellsTest.h"

using namespace lumora;

class PickerDragTest : public WellsTest
{
    Q_OBJECT

private slots:
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
        m_wells->click(m_wells->well);
        panel()->setMode(PickerMode::Sliders);
        panel()->model()->setColor(picked);
        int actions = 0;
        popover()->setTarget(this, [&](BFColorPickerPopover *) { ++actions; });
        const QPointF origin = popover()->windowOrigin();
        const QPoint contentBefore = panel()->contentView()->mapToGlobal(QPoint());

        m_wells->drag(travel);
        QCOMPARE(popover()->isShown(), !tornOff);
        QCOMPARE(panel()->isVisible(), tornOff);
        QCOMPARE(panel()->hostsContentView(), tornOff);
        QCOMPARE(m_wells->popoverHostsContent(), !tornOff);
        QVERIFY(!popover()->shouldHideAnchor());
        QVERIFY(!m_wells->popoverView()->isDragging());
        // In both ways the same picker continues for the same well.
        QVERIFY(m_wells->well.isActive());
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
        QCOMPARE(m_wells->well.color(), second);
        QCOMPARE(actions, 1);
    }

    void theArrowDisappearsFiftyPointsAwayOneStepLater()
    {
        m_wells->click(m_wells->well);
        m_wells->drag({0, 60}, false);
        // The window has moved 60 points, but it had moved 30 when the last step was checked.
        QVERIFY(!popover()->shouldHideAnchor());
        const BFColorPickerPopoverView *view = m_wells->popoverView();
        const QPoint pointer = view->mapToGlobal(QPoint(view->width() - 10, 17));
        m_wells->send(QEvent::MouseMove, pointer, Qt::LeftButton);
        QVERIFY(popover()->shouldHideAnchor());
        QVERIFY(!popover()->balloon()->drawsArrow());
        // Dragged back, it points at the well again, also one step later.
        m_wells->send(QEvent::MouseMove, pointer - QPoint(0, 20), Qt::LeftButton);
        QVERIFY(popover()->shouldHideAnchor());
        m_wells->send(QEvent::MouseMove, pointer, Qt::LeftButton);
        QVERIFY(!popover()->shouldHideAnchor());
        m_wells->send(QEvent::MouseButtonRelease, pointer, Qt::NoButton);
        QVERIFY(!popover()->shouldHideAnchor());
        QVERIFY(panel()->isVisible());
    }

    void onlyTheLeftButtonDrags()
    {
        m_wells->click(m_wells->well);
        const QPointF origin = popover()->windowOrigin();
        QTest::mousePress(m_wells->popoverView(), Qt::RightButton, {}, QPoint(240, 17));
        QVERIFY(!m_wells->popoverView()->isDragging());
        m_wells->send(QEvent::MouseMove, m_wells->popoverView()->mapToGlobal(QPoint(240, 97)), Qt::RightButton);
        QCOMPARE(popover()->windowOrigin(), origin);
    }
};

QTEST_MAIN(PickerDragTest)
#include "PickerDragTest.moc"
