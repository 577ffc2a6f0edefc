// SPDX-License-Identifier: MIT
#include "tool/PaneSides.h"
#include "resources/Resources.h"
#include "tool/PaneFocus.h"
#include "widgets/buttons/Segment.h"
#include "widgets/buttons/SegmentedControl.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace lumora;

namespace
{

/// A pane with two classic controls, one of which is hidden, and a side of today with one control.
struct Scene
{
    Scene()
    {
        auto *layout = new QVBoxLayout(&pane);
        layout->addWidget(classic);
        layout->addWidget(unused);
        unused->hide();
        pane.resize(835, 600);
        sides = new PaneSides(&pane, [this](QWidget *parent) {
            ++made;
            today = new QWidget(parent);
            field = new QLineEdit(today);
            // The last widget of a side is often none that takes the focus.
            new QWidget(today);
            return today;
        });
    }
    void show()
    {
        pane.show();
        pane.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&pane));
    }

    QWidget pane;
    QLineEdit *classic = new QLineEdit;
    QLineEdit *unused = new QLineEdit;
    QWidget *today = nullptr;
    QLineEdit *field = nullptr;
    PaneSides *sides = nullptr;
    int made = 0;
};

} // namespace

class PaneSidesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadResources(); }

    void eachSideHidesTheOther()
    {
        Scene scene;
        scene.show();
        QSignalSpy shown(scene.sides, &PaneSides::shown);
        QCOMPARE(scene.sides->side(), ToolSide::Classic);
        QCOMPARE(scene.made, 0);
        QTest::mouseClick(scene.sides->control()->segments().at(1), Qt::LeftButton);
        QCOMPARE(scene.sides->side(), ToolSide::Today);
        QVERIFY(scene.today->isVisible());
        QCOMPARE(scene.today->geometry(), scene.pane.rect());
        QVERIFY(!scene.classic->isVisible());
        QVERIFY(scene.sides->control()->isVisible());
        QTest::mouseClick(scene.sides->control()->segments().at(0), Qt::LeftButton);
        QVERIFY(!scene.today->isVisible());
        QVERIFY(scene.classic->isVisible());
        QVERIFY2(!scene.unused->isVisible(), "what the classic side itself hides stays hidden");
        scene.sides->show(ToolSide::Today);
        QCOMPARE(scene.made, 1);
        QCOMPARE(shown.size(), 3);
    }

    void todayIsMadeWhenItIsFirstSeen()
    {
        Scene scene;
        scene.sides->show(ToolSide::Today);
        QCOMPARE(scene.made, 0);
        QCOMPARE(scene.sides->control()->currentIndex(), 1);
        scene.show();
        QCOMPARE(scene.made, 1);
        QVERIFY(scene.today->isVisible());
    }

    void aHiddenPaneKeepsItsSide()
    {
        Scene scene;
        scene.show();
        scene.sides->show(ToolSide::Today);
        scene.pane.hide();
        scene.pane.show();
        QVERIFY(scene.today->isVisible());
        scene.pane.hide();
        scene.sides->show(ToolSide::Classic);
        scene.pane.show();
        QVERIFY(!scene.today->isVisible());
        QVERIFY(scene.classic->isVisible());
    }

    void theShortcutSwitches()
    {
        Scene scene;
        scene.show();
        for (const ToolSide side : {ToolSide::Today, ToolSide::Classic}) {
            QTest::keyClick(&scene.pane, Qt::Key_T, Qt::ControlModifier);
            QCOMPARE(scene.sides->side(), side);
        }
    }

    void tabReachesTheSwitchLast_data()
    {
        QTest::addColumn<bool>("today");
        QTest::newRow("classic") << false;
        QTest::newRow("today") << true;
    }
    void tabReachesTheSwitchLast()
    {
        QFETCH(bool, today);
        Scene scene;
        scene.show();
        scene.sides->show(today ? ToolSide::Today : ToolSide::Classic);
        QLineEdit *first = today ? scene.field : scene.classic;
        (new PaneFocus(&scene.pane))->take();
        QCOMPARE(QApplication::focusWidget(), first);
        QTest::keyClick(first, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), scene.sides->control()->segments().at(today ? 1 : 0));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), first);
    }

    void theSwitchIsInTheTrailingCorner_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("from the left") << Qt::LeftToRight;
        QTest::newRow("from the right") << Qt::RightToLeft;
    }
    void theSwitchIsInTheTrailingCorner()
    {
        QFETCH(Qt::LayoutDirection, direction);
        Scene scene;
        scene.pane.setLayoutDirection(direction);
        scene.show();
        for (const int width : {835, 1200}) {
            scene.pane.resize(width, 600);
            const QRect place = scene.sides->control()->geometry();
            QCOMPARE(direction == Qt::LeftToRight ? width - place.right() - 1 : place.left(), 40);
            QCOMPARE(place.top(), 24);
        }
    }
};

QTEST_MAIN(PaneSidesTest)
#include "PaneSidesTest.moc"
