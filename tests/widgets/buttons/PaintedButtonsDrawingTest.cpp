// SPDX-License-Identifier: MIT
#include "FilledButtons.h"
#include "tests/doubles/Pointer.h"

#include "widgets/style/Palette.h"

#include <QTest>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class PaintedButtonsDrawingTest : public QObject
{
    Q_OBJECT
private slots:
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

    void disabledIsDrawnPale()
    {
        const auto button = hoverButton();
        button->setEnabled(false);
        const int alpha = pictureOf(button.get()).pixelColor(90, 18).alpha();
        // The painter has 256 steps of opacity.
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
        // The cross of the icon is in a square of 18 points that begins 12 points from the left.
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
        const std::unique_ptr<PaintedButton> button =
            hoverButton ? std::unique_ptr<PaintedButton>(lumora::testing::hoverButton())
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
};

QTEST_MAIN(PaintedButtonsDrawingTest)
#include "PaintedButtonsDrawingTest.moc"
