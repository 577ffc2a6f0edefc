// SPDX-License-Identifier: MIT
#include "FilledButtons.h"
#include "tests/doubles/Pointer.h"

#include "widgets/buttons/ImageButton.h"

#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class PaintedButtonsTest : public QObject
{
    Q_OBJECT
private slots:
    void iconButtonColors()
    {
        const auto button = iconButton();
        QCOMPARE(button->color(), normal);
        enter(button.get());
        QCOMPARE(button->color(), hover);
        QTest::mousePress(button.get(), Qt::LeftButton);
        QCOMPARE(button->color(), pressed);
        QTest::mouseRelease(button.get(), Qt::LeftButton);
        QCOMPARE(button->color(), pressed);
        leave(button.get());
        QCOMPARE(button->color(), normal);
    }

    void hoverButtonColors()
    {
        const auto button = hoverButton();
        QCOMPARE(button->color(), normal);
        enter(button.get());
        QCOMPARE(button->color(), hover);
        QTest::mouseClick(button.get(), Qt::LeftButton);
        QCOMPARE(button->color(), hover);
        leave(button.get());
        QCOMPARE(button->color(), normal);
    }

    void releaseOutside()
    {
        const auto button = iconButton();
        QSignalSpy clicked(button.get(), &IconButton::clicked);
        enter(button.get());
        QTest::mousePress(button.get(), Qt::LeftButton);
        QTest::mouseMove(button.get(), QPoint(300, 18));
        QTest::mouseRelease(button.get(), Qt::LeftButton, {}, QPoint(300, 18));
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(button->color(), normal);
    }

    void otherMouseButtonsDoNothing()
    {
        const auto button = iconButton();
        QSignalSpy clicked(button.get(), &IconButton::clicked);
        QTest::mouseClick(button.get(), Qt::RightButton);
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(button->color(), normal);
    }

    void normalColorShowsAtOnceEvenUnderThePointer()
    {
        const auto button = hoverButton();
        enter(button.get());
        button->setNormalColor(pressed);
        QCOMPARE(button->color(), pressed);
    }

    void mayBeDeletedByItsAction()
    {
        auto *button = iconButton().release();
        const QPointer<IconButton> alive(button);
        connect(button, &IconButton::clicked, button, [button] { delete button; });
        QTest::mousePress(button, Qt::LeftButton);
        // The release would be sent to a widget that is deleted before QTest uses it again.
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(button, &release);
        QVERIFY(alive.isNull());
    }

    void keys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("clicks");
        QTest::newRow("space") << Qt::Key_Space << 1;
        QTest::newRow("return") << Qt::Key_Return << 1;
        QTest::newRow("enter") << Qt::Key_Enter << 1;
        QTest::newRow("another key") << Qt::Key_A << 0;
    }
    void keys()
    {
        QFETCH(Qt::Key, key);
        const auto button = iconButton();
        QSignalSpy clicked(button.get(), &IconButton::clicked);
        QTest::keyClick(button.get(), key);
        QTEST(static_cast<int>(clicked.count()), "clicks");
        QCOMPARE(button->color(), normal);
        button->setEnabled(false);
        clicked.clear();
        QTest::keyClick(button.get(), key);
        QCOMPARE(clicked.count(), 0);
    }

    void spaceShowsThePressedColor()
    {
        const auto button = iconButton();
        QTest::keyPress(button.get(), Qt::Key_Space);
        QCOMPARE(button->color(), pressed);
        QTest::keyRelease(button.get(), Qt::Key_Space);
        QCOMPARE(button->color(), normal);
    }

    void disablingCountsAsLeaving()
    {
        const auto button = hoverButton();
        enter(button.get());
        button->setEnabled(false);
        QCOMPARE(button->color(), normal);
        QCOMPARE(button->scale(), 1.0);
        enter(button.get());
        QCOMPARE(button->color(), normal);
    }

    void imageButton()
    {
        ImageButton button;
        button.setImageName(u"button_checkbox_idle"_s);
        button.setAlternateImageName(u"button_checkbox_invalid"_s);
        QCOMPARE(button.sizeHint(), QSize(20, 20));
        button.resize(60, 60);
        QCOMPARE(pictureOf(&button).pixelColor(35, 35), QColor(Qt::white));
        QCOMPARE(pictureOf(&button).pixelColor(15, 15).alpha(), 0);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(pictureOf(&button).pixelColor(35, 35), QColor(0xc0, 0x39, 0x2b));
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(pictureOf(&button).pixelColor(35, 35), QColor(Qt::white));
        enter(&button);
        QCOMPARE(button.scale(), 0.95);
        leave(&button);
        QCOMPARE(button.scale(), 1.0);
    }

    void accessibleNames()
    {
        const auto button = iconButton();
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(button.get());
        QCOMPARE(accessible->role(), QAccessible::Button);
        button->setToolTip(u"tip"_s);
        QCOMPARE(accessible->text(QAccessible::Name), u"tip"_s);
        button->setText(u"text"_s);
        QCOMPARE(accessible->text(QAccessible::Name), u"text"_s);
        button->setAccessibleName(u"name"_s);
        QCOMPARE(accessible->text(QAccessible::Name), u"name"_s);
        QVERIFY(!accessible->state().checkable);
        QSignalSpy clicked(button.get(), &IconButton::clicked);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 1);
        button->setEnabled(false);
        QVERIFY(accessible->state().disabled);
        QVERIFY(!accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }
};

QTEST_MAIN(PaintedButtonsTest)
#include "PaintedButtonsTest.moc"
