// SPDX-License-Identifier: MIT
#include "DrivenClock.h"
#include "Pointer.h"

#include "widgets/HoverButton.h"
#include "widgets/IconButton.h"
#include "widgets/ImageButton.h"
#include "widgets/Palette.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

namespace
{

const QColor normal(10, 20, 30);
const QColor hover(40, 50, 60);
const QColor pressed(70, 80, 90);

std::unique_ptr<IconButton> iconButton()
{
    auto button = std::make_unique<IconButton>();
    button->setNormalColor(normal);
    button->setHoverColor(hover);
    button->setActiveColor(pressed);
    button->resize(180, 36);
    return button;
}

std::unique_ptr<HoverButton> hoverButton()
{
    auto button = std::make_unique<HoverButton>();
    button->setNormalColor(normal);
    button->setHovercolor(hover);
    button->resize(180, 36);
    return button;
}

} // namespace

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
        // The release would be sent to a widget that is gone by the time QTest looks at it again.
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

    void scaleAtGivenTimes_data()
    {
        QTest::addColumn<bool>("in");
        QTest::addColumn<int>("milliseconds");
        QTest::addColumn<qreal>("scale");
        QTest::newRow("in, begin") << true << 0 << 0.95;
        QTest::newRow("in, a quarter") << true << 62 << 0.9252;
        QTest::newRow("in, half") << true << 125 << 0.9;
        QTest::newRow("in, three quarters") << true << 187 << 0.9248;
        QTest::newRow("in, end") << true << 250 << 0.95;
        QTest::newRow("in, long after") << true << 5000 << 0.95;
        QTest::newRow("out, begin") << false << 0 << 0.95;
        QTest::newRow("out, a quarter") << false << 62 << 0.9996;
        QTest::newRow("out, half") << false << 125 << 1.05;
        QTest::newRow("out, three quarters") << false << 187 << 1.0252;
        QTest::newRow("out, end") << false << 250 << 1.0;
        QTest::newRow("out, long after") << false << 5000 << 1.0;
    }
    void scaleAtGivenTimes()
    {
        QFETCH(bool, in);
        QFETCH(int, milliseconds);
        QFETCH(qreal, scale);
        DrivenClock clock;
        const auto button = iconButton();
        showAside(button.get());
        if (in)
            button->touchIn();
        else
            button->touchOut();
        QCoreApplication::processEvents();
        clock.pass(milliseconds);
        QVERIFY2(qAbs(button->scale() - scale) < 1e-9, qPrintable(QString::number(button->scale(), 'g', 12)));
    }

    void pointerPlaysBothAnimations()
    {
        DrivenClock clock;
        const auto button = hoverButton();
        showAside(button.get());
        QCOMPARE(button->scale(), 1.0);
        enter(button.get());
        QCoreApplication::processEvents();
        clock.pass(100);
        QVERIFY2(qAbs(button->scale() - 0.91) < 1e-9, "the first animation does not run");
        leave(button.get());
        QCOMPARE(button->scale(), 0.95);
        QCoreApplication::processEvents();
        clock.pass(125);
        QVERIFY2(qAbs(button->scale() - 1.05) < 1e-9, "the second animation does not take the first one's place");
        clock.pass(1000);
        QCOMPARE(button->scale(), 1.0);
    }

    void hiddenButtonDoesNotAnimate()
    {
        const auto button = hoverButton();
        enter(button.get());
        QCOMPARE(button->scale(), 0.95);
        QCOMPARE(button->findChild<QVariantAnimation *>()->state(), QAbstractAnimation::Stopped);
    }

    void hidingEndsTheAnimation()
    {
        DrivenClock clock;
        const auto button = hoverButton();
        showAside(button.get());
        enter(button.get());
        button->hide();
        QCOMPARE(button->scale(), 1.0);
        QCOMPARE(button->color(), normal);
        QCOMPARE(button->findChild<QVariantAnimation *>()->state(), QAbstractAnimation::Stopped);
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

    void pixels_data()
    {
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : {1.0, 1.25, 1.5, 2.0})
            QTest::addRow("@%g", scale) << scale;
    }
    void pixels()
    {
        QFETCH(qreal, scale);
        const auto button = iconButton();
        button->resize(160, 32);
        const QImage picture = pictureOf(button.get(), scale);
        QCOMPARE(picture.pixelColor(0, 0).alpha() < 128, true); // the rounded corner
        QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 2), normal);
        QCOMPARE(picture.pixelColor(0, picture.height() / 2), normal);
        QCOMPARE(picture.pixelColor(picture.width() - 1, picture.height() / 2), normal);
    }

    void scaleShrinksAroundTheMiddle()
    {
        const auto button = iconButton();
        button->resize(200, 40);
        enter(button.get());
        const QImage picture = pictureOf(button.get());
        // 0.95 of 200 × 40 leaves 5 points at the left and right and 1 at the top and bottom.
        QCOMPARE(picture.pixelColor(4, 20).alpha(), 0);
        QCOMPARE(picture.pixelColor(5, 20), hover);
        QCOMPARE(picture.pixelColor(194, 20), hover);
        QCOMPARE(picture.pixelColor(195, 20).alpha(), 0);
        QCOMPARE(picture.pixelColor(100, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(100, 1), hover);
        QCOMPARE(picture.pixelColor(100, 38), hover);
        QCOMPARE(picture.pixelColor(100, 39).alpha(), 0);
    }

    void disabledIsDrawnPale()
    {
        const auto button = hoverButton();
        button->setEnabled(false);
        const int alpha = pictureOf(button.get()).pixelColor(90, 18).alpha();
        // The painter keeps opacity in 256 steps.
        QVERIFY2(qAbs(alpha - 255 * palette::disabledOpacity) <= 1, qPrintable(QString::number(alpha)));
    }

    void focusRing_data()
    {
        QTest::addColumn<Qt::FocusReason>("reason");
        QTest::addColumn<bool>("ring");
        QTest::newRow("tab") << Qt::TabFocusReason << true;
        QTest::newRow("backtab") << Qt::BacktabFocusReason << true;
        QTest::newRow("shortcut") << Qt::ShortcutFocusReason << true;
        QTest::newRow("mouse") << Qt::MouseFocusReason << false;
        QTest::newRow("code") << Qt::OtherFocusReason << false;
    }
    void focusRing()
    {
        QFETCH(Qt::FocusReason, reason);
        QFETCH(bool, ring);
        const auto button = hoverButton();
        showAside(button.get());
        button->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(button.get()));
        button->clearFocus();
        button->setFocus(reason);
        QVERIFY(button->hasFocus());
        QCOMPARE(pictureOf(button.get()).pixelColor(90, 1).rgb() == palette::chromeText.rgb(), ring);
        QCOMPARE(pictureOf(button.get()).pixelColor(90, 18), normal);
        QTest::keyClick(button.get(), Qt::Key_Shift);
        QVERIFY2(pictureOf(button.get()).pixelColor(90, 1).rgb() == palette::chromeText.rgb(),
                 "a key does not show the ring");
        QTest::mouseClick(button.get(), Qt::LeftButton);
        QVERIFY2(pictureOf(button.get()).pixelColor(90, 1).rgb() != palette::chromeText.rgb(),
                 "a click does not hide the ring");
    }

    void iconKeepsItsAspectAndTheTextKeepsClear()
    {
        const auto button = iconButton();
        button->setIconName(u"button_icon_close"_s);
        button->resize(100, 36);
        const QImage without = pictureOf(button.get());
        // The cross of the icon lies in a square of 18 beginning 12 from the left.
        int right = 0;
        int left = 100;
        for (int x = 0; x < 100; ++x) {
            for (int y = 6; y < 30; ++y) {
                if (without.pixelColor(x, y) != normal) {
                    right = std::max(right, x);
                    left = std::min(left, x);
                }
            }
        }
        QVERIFY2(left >= 12 && right < 30, qPrintable(QStringLiteral("%1 to %2").arg(left).arg(right)));
        button->setText(u"MMMMMMMMMMMM"_s);
        const QImage with = pictureOf(button.get());
        for (int y = 0; y < 36; ++y)
            QCOMPARE(with.pixelColor(right + 4, y), without.pixelColor(right + 4, y));
        QVERIFY(with != without);
    }

    void mirroredIconLiesAtTheRight()
    {
        const auto button = iconButton();
        button->setIconName(u"button_icon_close"_s);
        const auto inkBetween = [&](int from, int to) {
            const QImage picture = pictureOf(button.get());
            for (int x = from; x < to; ++x) {
                for (int y = 6; y < 30; ++y) {
                    if (picture.pixelColor(x, y) != normal)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(inkBetween(12, 30) && !inkBetween(30, 174));
        button->setLayoutDirection(Qt::RightToLeft);
        QVERIFY(inkBetween(150, 168) && !inkBetween(6, 150));
    }

    void textLiesThreePointsAboveTheMiddle_data()
    {
        QTest::addColumn<bool>("hoverButton");
        QTest::newRow("icon button") << false;
        QTest::newRow("hover button") << true;
    }
    void textLiesThreePointsAboveTheMiddle()
    {
        QFETCH(bool, hoverButton);
        const std::unique_ptr<PaintedButton> button = hoverButton ? std::unique_ptr<PaintedButton>(::hoverButton())
                                                                  : std::unique_ptr<PaintedButton>(iconButton());
        button->setText(u"HHH"_s);
        const QImage picture = pictureOf(button.get());
        QRect ink;
        for (int y = 3; y < 33; ++y) {
            for (int x = 10; x < 170; ++x) {
                if (picture.pixelColor(x, y).red() > 128)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(!ink.isEmpty());
        QVERIFY2(qAbs(ink.center().x() - 90) <= 1, "not in the middle from left to right");
        // A letter's middle lies a little above its line's.
        const int above = 18 - ink.center().y();
        QVERIFY2(above >= 3 && above <= 5, qPrintable(QString::number(above)));
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
