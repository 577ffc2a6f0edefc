// SPDX-License-Identifier: MIT
#include "widgets/PopoverKeyStatus.h"
#include "widgets/SFBPopover.h"
#include "widgets/ScreenCoordinates.h"
#include "widgets/ViewController.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QVariantAnimation>
#include <QWindow>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QWidget *plainContent(const QSize &size = QSize(200, 100))
{
    auto *content = new QWidget;
    content->resize(size);
    return content;
}

} // namespace

class PopoverTest : public QObject
{
    Q_OBJECT

private:
    /// A window of 400 × 300 at (200, 100) with a button in its middle and a line to type into above it.
    struct Scene
    {
        Scene()
        {
            window.setGeometry(200, 100, 400, 300);
            button = new QPushButton(u"button"_s, &window);
            button->setGeometry(150, 130, 100, 40);
            field = new QLineEdit(&window);
            field->setGeometry(150, 20, 100, 30);
            window.show();
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            button->setFocus();
        }
        QWidget window;
        QPushButton *button = nullptr;
        QLineEdit *field = nullptr;
    };

    /// The arrow's tip in Qt's screen coordinates.
    static QPointF tipOf(const SFBPopover &popover)
    {
        return flippedOnScreen(popover.popoverWindow()->attachmentPoint());
    }

    static QVariantAnimation *fadeOf(const SFBPopover &popover)
    {
        return popover.popoverWindow()->findChild<QVariantAnimation *>(u"alphaValue"_s);
    }

private slots:
    void startsWithTheDefaults()
    {
        const SFBPopover popover;
        QCOMPARE(popover.position(), PopoverPosition::Below);
        QCOMPARE(popover.distance(), 0.0);
        QCOMPARE(popover.borderColor(), QColor(Qt::white));
        QCOMPARE(popover.borderWidth(), 2.0);
        QCOMPARE(popover.cornerRadius(), 8.0);
        QCOMPARE(popover.drawsArrow(), true);
        QCOMPARE(popover.arrowWidth(), 20.0);
        QCOMPARE(popover.arrowHeight(), 16.0);
        QCOMPARE(popover.drawRoundCornerBesideArrow(), true);
        QCOMPARE(popover.viewMargin(), 0.0);
        QCOMPARE(popover.backgroundColor(), QColor::fromRgbF(0.1F, 0.1F, 0.1F, 0.75F));
        QCOMPARE(popover.movable(), false);
        QCOMPARE(popover.resizable(), false);
        QCOMPARE(popover.animates(), true);
        QCOMPARE(popover.closesWhenPopoverResignsKey(), false);
        QCOMPARE(popover.closesWhenApplicationBecomesInactive(), false);
        QCOMPARE(popover.isVisible(), false);
        QVERIFY(popover.popoverWindow()->canBecomeKeyWindow());
        QVERIFY(!popover.popoverWindow()->canBecomeMainWindow());
    }

    void liesBelowThePointWithItsTipOnIt()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        // The base point (200, 130) lies 170 below the window's upper edge, the middle of the button's lower edge.
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        QVERIFY(popover.isVisible());
        QCOMPARE(tipOf(popover), QPointF(scene.window.mapToGlobal(QPoint(200, 170))));
        const QRectF frame = flippedOnScreen(popover.popoverWindow()->frame());
        QCOMPARE(frame, QRectF(scene.window.mapToGlobal(QPoint(200 - 102, 170)), QSizeF(204, 120)));
        QWidget *content = popover.popoverWindow()->contentView();
        QCOMPARE(content->size(), QSize(200, 100));
        QCOMPARE(content->mapToGlobal(QPoint()), frame.topLeft().toPoint() + QPoint(2, 18));
    }

    void ignoresASecondDisplayButMovesWhenTold()
    {
        Scene scene;
        SFBPopover popover(plainContent());
        popover.displayPopoverInWindow(&scene.window, QPointF(200, 130));
        const QRectF before = popover.popoverWindow()->frame();
        popover.displayPopoverInWindow(&scene.window, QPointF(100, 100));
        QCOMPARE(popover.popoverWindow()->frame(), before);
        popover.movePopoverToPoint(QPointF(100, 100));
        QCOMPARE(popover.popoverWindow()->frame(), before.translated(-100, -30));
    }
};

QTEST_MAIN(PopoverTest)
#include "PopoverTest.moc"
