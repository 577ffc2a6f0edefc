// SPDX-License-Identifier: MIT
#include "validator/OpacityFade.h"

#include <QElapsedTimer>
#include <QTest>

using namespace lumora;

class OpacityFadeTest : public QObject
{
    Q_OBJECT

private slots:
    void takesThreeTenthsOfASecondForAllAtOnce()
    {
        QCOMPARE(OpacityFade::duration, 300);
        QWidget coming;
        QWidget other;
        QWidget going;
        setOpacity(&coming, 0);
        setOpacity(&other, 0);
        setOpacity(&going, 1);
        OpacityFade fade;
        QElapsedTimer clock;
        clock.start();
        fade.fade({&coming, &other}, 1);
        fade.fade({&going}, 0);
        bool between = false;
        while (opacity(&coming) < 1 && clock.elapsed() < 20'000) {
            QTest::qWait(1);
            between = between || (opacity(&coming) > 0 && opacity(&coming) < 1);
            QCOMPARE(opacity(&other), opacity(&coming));
            QVERIFY(qAbs(opacity(&going) - (1 - opacity(&coming))) < 1e-9);
        }
        QVERIFY(between);
        QVERIFY(clock.elapsed() >= 290);
        QCOMPARE(opacity(&going), 0.0);
    }

    void endsWhereItWasToldLast()
    {
        QWidget view;
        setOpacity(&view, 0);
        OpacityFade fade;
        fade.fade({&view}, 1);
        fade.fade({&view}, 0.25);
        fade.finish();
        QCOMPARE(opacity(&view), 0.25);
        fade.finish();
        QCOMPARE(opacity(&view), 0.25);
    }

    void outlivesItsViews()
    {
        OpacityFade fade;
        {
            QWidget view;
            setOpacity(&view, 0);
            fade.fade({&view}, 1);
        }
        fade.finish();
    }

    void hidesWhatHasNoOpacity()
    {
        QWidget view;
        setOpacity(&view, 0);
        QVERIFY(view.isHidden());
        setOpacity(&view, 0.5);
        QVERIFY(view.graphicsEffect() != nullptr);
        setOpacity(&view, 1);
        QVERIFY2(view.graphicsEffect() == nullptr, "what is opaque is drawn directly");
        QVERIFY(!view.isHidden());
    }
};

QTEST_MAIN(OpacityFadeTest)
#include "OpacityFadeTest.moc"
