// SPDX-License-Identifier: MIT
#include "tests/doubles/DrivenClock.h"
#include "tests/doubles/Pointer.h"

#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/RadioButton.h"
#include "widgets/style/Palette.h"

#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

namespace
{

/// The events of a box, one letter each, in the order of a row.
void happen(CheckboxButton &box, const QString &events)
{
    for (const QChar event : events) {
        if (event == u'e')
            enter(&box);
        else if (event == u'l')
            leave(&box);
        else if (event == u'p')
            QTest::mousePress(&box, Qt::LeftButton);
        else if (event == u'r')
            QTest::mouseRelease(&box, Qt::LeftButton);
        else if (event == u'I')
            box.setInvalid(true);
        else if (event == u'V')
            box.setInvalid(false);
        else if (event == u'i')
            box.setIdle();
        else if (event == u'd')
            box.setEnabled(false);
        else
            QFAIL("no such event");
    }
}

} // namespace

class SelectionButtonsTest : public QObject
{
    Q_OBJECT
private slots:
    void looksChosenOnlyWhileItIs_data()
    {
        QTest::addColumn<bool>("pointerStays");
        QTest::addColumn<QString>("image");
        QTest::newRow("with the pointer still on it") << true << u"button_radiobutton_hover"_s;
        QTest::newRow("with the pointer elsewhere") << false << u"button_radiobutton_idle"_s;
    }
    void looksChosenOnlyWhileItIs()
    {
        QFETCH(bool, pointerStays);
        RadioButton radio;
        connect(&radio, &RadioButton::clicked, &radio, [&radio] { radio.setActive(true); });
        radio.resize(100, 24);
        enter(&radio);
        QTest::mouseClick(&radio, Qt::LeftButton, {}, QPoint(10, 10));
        QVERIFY(radio.isActive());
        if (!pointerStays)
            leave(&radio);
        // Another one is chosen by key.
        radio.setActive(false);
        QTEST(radio.currentImage().name(), "image");
    }

    void aDialogTakesThePointerAway()
    {
        RadioButton radio;
        enter(&radio);
        QCOMPARE(radio.currentImage().name(), u"button_radiobutton_hover"_s);
        QEvent blocked(QEvent::WindowBlocked);
        QCoreApplication::sendEvent(&radio, &blocked);
        QCOMPARE(radio.currentImage().name(), u"button_radiobutton_idle"_s);
    }

    void startsIdle()
    {
        const CheckboxButton box;
        QCOMPARE(box.currentImage().name(), u"button_checkbox_idle"_s);
        QVERIFY(!box.isActive());
        QVERIFY(!box.isStaticBox());
        QVERIFY(!box.isInvalid());
        QVERIFY(box.text().isEmpty());
        QVERIFY(static_cast<const QAbstractButton &>(box).QAbstractButton::text().isEmpty());
        const RadioButton radio;
        QCOMPARE(radio.currentImage().name(), u"button_radiobutton_idle"_s);
        QCOMPARE(radio.hoverImage().name(), u"button_radiobutton_hover"_s);
        QCOMPARE(radio.activeImage().name(), u"button_radiobutton_active"_s);
    }

    void checkboxImage_data()
    {
        QTest::addColumn<QString>("events");
        QTest::addColumn<bool>("ownerToggles");
        QTest::addColumn<QString>("image");
        QTest::newRow("pointer enters") << u"e"_s << false << u"hover"_s;
        QTest::newRow("pointer leaves") << u"el"_s << false << u"idle"_s;
        QTest::newRow("pressed, owner does nothing") << u"epr"_s << false << u"hover"_s;
        QTest::newRow("pressed, owner checks") << u"epr"_s << true << u"active"_s;
        QTest::newRow("pressed twice, owner checks and unchecks") << u"eprpr"_s << true << u"hover"_s;
        QTest::newRow("pressed and left") << u"eprl"_s << true << u"idle"_s;
        QTest::newRow("invalid") << u"I"_s << false << u"invalid"_s;
        QTest::newRow("invalid, pointer enters") << u"Ie"_s << false << u"invalid"_s;
        QTest::newRow("invalid, pointer leaves") << u"Iel"_s << false << u"invalid"_s;
        QTest::newRow("invalid, pressed") << u"Iepr"_s << true << u"invalid"_s;
        QTest::newRow("valid freezes on the active image") << u"V"_s << false << u"active"_s;
        QTest::newRow("valid, pointer enters") << u"Ve"_s << false << u"active"_s;
        QTest::newRow("valid, pointer leaves") << u"Vel"_s << false << u"active"_s;
        QTest::newRow("valid, pressed") << u"Vepr"_s << false << u"active"_s;
        QTest::newRow("invalid, then valid") << u"IV"_s << false << u"active"_s;
        QTest::newRow("set idle") << u"ei"_s << false << u"idle"_s;
        QTest::newRow("a frozen box set idle stays frozen") << u"Iiepr"_s << false << u"idle"_s;
        QTest::newRow("disabled under the pointer") << u"ed"_s << false << u"idle"_s;
        QTest::newRow("pointer enters a disabled box") << u"de"_s << false << u"idle"_s;
    }
    void checkboxImage()
    {
        QFETCH(QString, events);
        QFETCH(bool, ownerToggles);
        QFETCH(QString, image);
        CheckboxButton box;
        box.resize(100, 24);
        if (ownerToggles)
            connect(&box, &CheckboxButton::clicked, &box, [&box] { box.setActive(!box.isActive()); });
        happen(box, events);
        QCOMPARE(box.currentImage().name(), u"button_checkbox_"_s + image);
    }

    void frozenBoxStillSendsItsAction()
    {
        CheckboxButton box;
        box.setInvalid(true);
        QVERIFY(box.isStaticBox());
        QSignalSpy clicked(&box, &CheckboxButton::clicked);
        QTest::mouseClick(&box, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
    }

    void pressDoesNotCheck()
    {
        CheckboxButton box;
        QTest::mouseClick(&box, Qt::LeftButton);
        QTest::keyClick(&box, Qt::Key_Space);
        QVERIFY(!box.isActive());
    }

    void radioImage()
    {
        RadioButton radio;
        enter(&radio);
        QCOMPARE(radio.currentImage().name(), u"button_radiobutton_hover"_s);
        connect(&radio, &RadioButton::clicked, &radio, [&radio] { radio.setActive(true); });
        QTest::mouseClick(&radio, Qt::LeftButton);
        QCOMPARE(radio.currentImage().name(), u"button_radiobutton_active"_s);
        leave(&radio);
        QCOMPARE(radio.currentImage().name(), u"button_radiobutton_idle"_s);
        QVERIFY(radio.isActive());
    }

    void drawnImage_data()
    {
        QTest::addColumn<QString>("events");
        QTest::addColumn<bool>("active");
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<QColor>("middle");
        // The middle of the box: white when idle, chrome or its tick when active, red or its cross when invalid.
        for (const qreal scale : {1.0, 2.0}) {
            QTest::addRow("idle @%g", scale) << u""_s << false << scale << QColor(Qt::white);
            QTest::addRow("active whatever the current image @%g", scale)
                << u"I"_s << true << scale << QColor(0x34, 0x49, 0x5e);
            QTest::addRow("invalid @%g", scale) << u"I"_s << false << scale << QColor(0xc0, 0x39, 0x2b);
        }
    }
    void drawnImage()
    {
        QFETCH(QString, events);
        QFETCH(bool, active);
        QFETCH(qreal, scale);
        QFETCH(QColor, middle);
        CheckboxButton box;
        box.resize(100, 24);
        box.setActive(active);
        happen(box, events);
        const QImage picture = pictureOf(&box, scale);
        // Above the tick and the cross, inside the frame.
        QCOMPARE(picture.pixelColor(qRound(10 * scale), qRound(4 * scale)), middle);
    }

    void textIsDrawnFromThirty_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("emptyFrom");
        QTest::addColumn<int>("emptyTo");
        QTest::addColumn<int>("inkFrom");
        QTest::addColumn<int>("inkTo");
        QTest::newRow("left to right") << Qt::LeftToRight << 20 << 30 << 30 << 45;
        QTest::newRow("right to left") << Qt::RightToLeft << 90 << 100 << 60 << 90;
    }
    void textIsDrawnFromThirty()
    {
        QFETCH(Qt::LayoutDirection, direction);
        CheckboxButton box;
        box.setLayoutDirection(direction);
        box.setText(u"HHH"_s);
        box.resize(120, 24);
        const QImage picture = pictureOf(&box);
        const auto inkBetween = [&](int from, int to) {
            for (int x = from; x < to; ++x) {
                for (int y = 0; y < picture.height(); ++y) {
                    if (picture.pixelColor(x, y).alpha() != 0)
                        return true;
                }
            }
            return false;
        };
        QFETCH(int, emptyFrom);
        QFETCH(int, emptyTo);
        QFETCH(int, inkFrom);
        QFETCH(int, inkTo);
        QVERIFY(!inkBetween(emptyFrom, emptyTo));
        QVERIFY(inkBetween(inkFrom, inkTo));
    }

    void ampersandIsDrawnAndNamed()
    {
        CheckboxButton box;
        box.setText(u"Black & white"_s);
        QCOMPARE(box.text(), u"Black & white"_s);
        QVERIFY(box.shortcut().isEmpty());
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(accessible->text(QAccessible::Name), u"Black & white"_s);
    }

    void pointingHand()
    {
        CheckboxButton box;
        QCOMPARE(box.cursor().shape(), Qt::PointingHandCursor);
        box.setEnabled(false);
        QCOMPARE(box.cursor().shape(), Qt::ArrowCursor);
        box.setEnabled(true);
        QCOMPARE(box.cursor().shape(), Qt::PointingHandCursor);
    }

    void accessibility()
    {
        CheckboxButton box;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
        QVERIFY(accessible->state().checkable);
        QVERIFY(!accessible->state().checked);
        box.setActive(true);
        QVERIFY(accessible->state().checked);
        QSignalSpy clicked(&box, &CheckboxButton::clicked);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(clicked.count(), 1);
        RadioButton radio;
        QCOMPARE(QAccessible::queryAccessibleInterface(&radio)->role(), QAccessible::RadioButton);
    }

    void arrowKeysChooseInTheGroup_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("active"); ///< before; -1 for none
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<QList<int>>("clicks");
        QTest::addColumn<int>("focused");
        const Qt::LayoutDirection ltr = Qt::LeftToRight;
        const Qt::LayoutDirection rtl = Qt::RightToLeft;
        QTest::newRow("right") << ltr << 0 << QList<int>{Qt::Key_Right} << QList<int>{1} << 1;
        QTest::newRow("down") << ltr << -1 << QList<int>{Qt::Key_Down} << QList<int>{1} << 1;
        QTest::newRow("right and up") << ltr << 0 << QList<int>{Qt::Key_Right, Qt::Key_Up} << QList<int>{1, 0} << 0;
        QTest::newRow("not past the ends")
            << ltr << 0 << QList<int>{Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right} << QList<int>{1} << 1;
        QTest::newRow("onto the chosen one") << ltr << 1 << QList<int>{Qt::Key_Right} << QList<int>{} << 1;
        QTest::newRow("left, read from the right") << rtl << 0 << QList<int>{Qt::Key_Left} << QList<int>{1} << 1;
        QTest::newRow("right, read from the right") << rtl << 0 << QList<int>{Qt::Key_Right} << QList<int>{} << 0;
    }
    void arrowKeysChooseInTheGroup()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(int, active);
        QFETCH(QList<int>, keys);
        QFETCH(QList<int>, clicks);
        QFETCH(int, focused);
        QWidget pane;
        pane.setLayoutDirection(direction);
        auto *deeper = new RadioButton(new QWidget(&pane));
        const QList<RadioButton *> group{new RadioButton(&pane), new RadioButton(&pane)};
        new CheckboxButton(&pane);
        QList<int> clicked;
        for (int index = 0; index < group.size(); ++index) {
            group[index]->setActive(index == active);
            connect(group[index], &RadioButton::clicked, &pane, [&group, &clicked, index] {
                clicked << index;
                for (int one = 0; one < group.size(); ++one)
                    group[one]->setActive(one == index);
            });
        }
        pane.show();
        pane.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&pane));
        group[0]->setFocus();
        for (const int key : keys)
            QTest::keyClick(pane.focusWidget(), static_cast<Qt::Key>(key));
        QCOMPARE(clicked, clicks);
        QCOMPARE(pane.focusWidget(), group[focused]);
        QVERIFY(!deeper->isActive());
    }

    void sizeHintHoldsTheText()
    {
        CheckboxButton box;
        QCOMPARE(box.sizeHint(), QSize(20, 24));
        box.setText(u"Retina display"_s);
        QVERIFY(box.sizeHint().width() > 30 + QFontMetrics(latoBold(15)).horizontalAdvance(box.text()));
    }
};

QTEST_MAIN(SelectionButtonsTest)
#include "SelectionButtonsTest.moc"
