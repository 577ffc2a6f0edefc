// SPDX-License-Identifier: MIT
#include "tool/PaneFocus.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace lumora;

namespace
{

/// A window with a pane of three controls, and a control of the window after them.
struct Scene
{
    Scene()
    {
        auto *layout = new QVBoxLayout(&pane);
        for (QPushButton *button : {&first, &second, &third})
            layout->addWidget(button);
        auto *all = new QVBoxLayout(&window);
        all->addWidget(&pane);
        all->addWidget(&help);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    QWidget pane;
    QPushButton first, second, third, help;
    PaneFocus *focus = new PaneFocus(&pane);
};

} // namespace

class PaneFocusTest : public QObject
{
    Q_OBJECT

private slots:
    void theNextControlOfThePaneTakesTheFocus_data()
    {
        QTest::addColumn<bool>("byHiding");
        QTest::newRow("of a hidden one") << true;
        QTest::newRow("of a disabled one") << false;
    }
    void theNextControlOfThePaneTakesTheFocus()
    {
        QFETCH(bool, byHiding);
        Scene scene;
        scene.third.setFocus();
        const auto setUsable = [&](bool usable) {
            byHiding ? scene.third.setVisible(usable) : scene.third.setEnabled(usable);
        };
        setUsable(false);
        QCOMPARE(QApplication::focusWidget(), &scene.first);
        // It comes back with the control.
        setUsable(true);
        QTRY_COMPARE(QApplication::focusWidget(), &scene.third);
    }

    void theNextControlTakesItWhileAnotherWindowHasTheKeyboard_data()
    {
        QTest::addColumn<bool>("byHiding");
        QTest::newRow("of a hidden one") << true;
        QTest::newRow("of a disabled one") << false;
    }
    void theNextControlTakesItWhileAnotherWindowHasTheKeyboard()
    {
        QFETCH(bool, byHiding);
        Scene scene;
        scene.third.setFocus();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        byHiding ? scene.third.hide() : scene.third.setEnabled(false);
        QCOMPARE(scene.window.focusWidget(), &scene.first);
        QVERIFY(other.isActiveWindow());
        scene.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&scene.window));
        QCOMPARE(QApplication::focusWidget(), &scene.first);
        byHiding ? scene.third.show() : scene.third.setEnabled(true);
        QTRY_COMPARE(QApplication::focusWidget(), &scene.third);
    }

    void aPaneWithoutControlsTakesItItself()
    {
        Scene scene;
        scene.first.setFocus();
        for (QPushButton *button : {&scene.third, &scene.second, &scene.first})
            button->hide();
        QCOMPARE(QApplication::focusWidget(), &scene.pane);
        scene.second.show();
        scene.first.show();
        QTRY_COMPARE(QApplication::focusWidget(), &scene.first);
    }

    void itComesBackOverSeveralStandIns()
    {
        Scene scene;
        scene.first.setFocus();
        scene.first.hide();
        QCOMPARE(QApplication::focusWidget(), &scene.second);
        scene.second.hide();
        QCOMPARE(QApplication::focusWidget(), &scene.third);
        scene.third.hide();
        QCOMPARE(QApplication::focusWidget(), &scene.pane);
        scene.first.show();
        QTRY_COMPARE(QApplication::focusWidget(), &scene.first);
    }

    void aFocusThatWasMovedStaysThere()
    {
        Scene scene;
        scene.first.setFocus();
        scene.first.hide();
        QCOMPARE(QApplication::focusWidget(), &scene.second);
        scene.help.setFocus();
        scene.first.show();
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::focusWidget(), &scene.help);
    }

    void aPaneMayGoWhileItHasTheFocus()
    {
        QWidget window;
        auto *pane = new QWidget(&window);
        auto *button = new QPushButton(pane);
        new PaneFocus(pane);
        QPushButton elsewhere(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        button->setFocus();
        button->hide();
        QCOMPARE(QApplication::focusWidget(), pane);
        delete pane;
        QVERIFY(!qobject_cast<QPushButton *>(QApplication::focusWidget()) || QApplication::focusWidget() == &elsewhere);
    }

    void takesItFromTheWindow()
    {
        Scene scene;
        scene.help.setFocus();
        scene.first.setEnabled(false);
        scene.focus->take();
        QCOMPARE(QApplication::focusWidget(), &scene.second);
    }
};

QTEST_MAIN(PaneFocusTest)
#include "PaneFocusTest.moc"
