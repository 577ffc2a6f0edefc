// SPDX-License-Identifier: MIT
#include "FilledButtons.h"
#include "tests/doubles/DrivenClock.h"
#include "tests/doubles/Pointer.h"

#include <QTest>

using namespace lumora;
using namespace lumora::testing;

class PressAnimationTest : public QObject
{
    Q_OBJECT
private slots:
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
};

QTEST_MAIN(PressAnimationTest)
#include "PressAnimationTest.moc"
