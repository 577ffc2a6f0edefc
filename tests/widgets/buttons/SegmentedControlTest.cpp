// SPDX-License-Identifier: MIT
#include "widgets/buttons/SegmentedControl.h"
#include "resources/Resources.h"
#include "widgets/buttons/Segment.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QLayout>
#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// A shown control of three texts, the first of which has the focus.
struct Scene
{
    Scene()
    {
        control.show();
        control.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&control));
        control.segments().front()->setFocus(Qt::TabFocusReason);
    }
    Segment *at(int index) const { return control.segments().at(static_cast<std::size_t>(index)); }

    SegmentedControl control{{u"One"_s, u"Two"_s, u"Three"_s}};
    QSignalSpy chosen{&control, &SegmentedControl::chosen};
};

} // namespace

class SegmentedControlTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadResources(); }

    void keysChoose_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("current");
        const auto ltr = Qt::LeftToRight;
        const auto rtl = Qt::RightToLeft;
        QTest::newRow("right") << ltr << QList<int>{Qt::Key_Right} << 1;
        QTest::newRow("down") << ltr << QList<int>{Qt::Key_Down} << 1;
        QTest::newRow("right and left") << ltr << QList<int>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Left} << 1;
        QTest::newRow("not beyond the first") << ltr << QList<int>{Qt::Key_Left, Qt::Key_Up} << 0;
        QTest::newRow("not beyond the last")
            << ltr << QList<int>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down} << 2;
        QTest::newRow("left, read from the right") << rtl << QList<int>{Qt::Key_Left} << 1;
        QTest::newRow("right, read from the right") << rtl << QList<int>{Qt::Key_Right} << 0;
        QTest::newRow("down, read from the right") << rtl << QList<int>{Qt::Key_Down} << 1;
    }
    void keysChoose()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(QList<int>, keys);
        QFETCH(int, current);
        Scene scene;
        scene.control.setLayoutDirection(direction);
        for (const int key : keys)
            QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
        QCOMPARE(scene.control.currentIndex(), current);
        QCOMPARE(QApplication::focusWidget(), scene.at(current));
        QVERIFY(scene.chosen.isEmpty() || scene.chosen.last().first().toInt() == current);
    }

    void everyPressChooses_data()
    {
        QTest::addColumn<QString>("by");
        QTest::newRow("mouse") << u"mouse"_s;
        QTest::newRow("space") << u"space"_s;
        QTest::newRow("return") << u"return"_s;
        QTest::newRow("assistive technology") << u"reader"_s;
    }
    void everyPressChooses()
    {
        QFETCH(QString, by);
        Scene scene;
        Segment *third = scene.at(2);
        if (by == u"mouse")
            QTest::mouseClick(third, Qt::LeftButton);
        else if (by == u"reader")
            QAccessible::queryAccessibleInterface(third)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
        else
            QTest::keyClick(third, by == u"space" ? Qt::Key_Space : Qt::Key_Return);
        QCOMPARE(scene.control.currentIndex(), 2);
        QCOMPARE(scene.chosen.size(), 1);
        // The chosen one stays chosen.
        QTest::mouseClick(third, Qt::LeftButton);
        QVERIFY(third->isActive());
        QCOMPARE(scene.chosen.size(), 1);
    }

    void programChoosesSilently()
    {
        Scene scene;
        for (const int index : {2, -1, 3, 2}) {
            scene.control.setCurrentIndex(index);
            QCOMPARE(scene.control.currentIndex(), 2);
        }
        QVERIFY(scene.chosen.isEmpty());
    }

    void screenReadersFindAGroupOfToggleButtons()
    {
        Scene scene;
        scene.control.setAccessibleName(u"Number"_s);
        QAccessibleInterface *group = QAccessible::queryAccessibleInterface(&scene.control);
        QCOMPARE(group->role(), QAccessible::Grouping);
        QCOMPARE(group->text(QAccessible::Name), u"Number"_s);
        QCOMPARE(group->childCount(), 3);
        scene.control.setCurrentIndex(1);
        for (int index = 0; index < 3; ++index) {
            const QAccessibleInterface *segment = group->child(index);
            QCOMPARE(segment->role(), QAccessible::Button);
            QCOMPARE(segment->text(QAccessible::Name), scene.at(index)->text());
            QVERIFY(segment->state().checkable);
            QCOMPARE(segment->state().checked != 0, index == 1);
            // Only the chosen one is a stop of Tab.
            QCOMPARE(scene.at(index)->focusPolicy(), index == 1 ? Qt::StrongFocus : Qt::ClickFocus);
        }
    }

    void outerEndsAreRoundAndInnerOnesAreNot_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("from the left") << Qt::LeftToRight;
        QTest::newRow("from the right") << Qt::RightToLeft;
    }
    void outerEndsAreRoundAndInnerOnesAreNot()
    {
        QFETCH(Qt::LayoutDirection, direction);
        Scene scene;
        scene.control.setLayoutDirection(direction);
        scene.control.setCurrentIndex(1);
        QCoreApplication::sendPostedEvents();
        scene.control.layout()->activate();
        const QImage image = scene.control.grab().toImage();
        const QRect middle = scene.at(1)->geometry();
        // A chosen inner segment is filled to its corners; the control's own corners are empty, its edge is a line.
        QCOMPARE(image.pixelColor(middle.topLeft()), QColor(palette::chromeText.rgb()));
        QCOMPARE(image.pixelColor(middle.bottomRight()), QColor(palette::chromeText.rgb()));
        for (const QPoint corner : {QPoint(0, 0), QPoint(image.width() - 1, image.height() - 1)})
            QVERIFY(image.pixelColor(corner) != QColor(palette::chromeText.rgb()));
        for (const QPoint edge : {QPoint(0, image.height() / 2), QPoint(image.width() - 1, image.height() / 2)})
            QCOMPARE(image.pixelColor(edge), QColor(palette::chromeText.rgb()));
        QVERIFY2(image.pixelColor(1, image.height() / 2) != QColor(palette::chromeText.rgb()), "the edge is one line");
    }
};

QTEST_MAIN(SegmentedControlTest)
#include "SegmentedControlTest.moc"
