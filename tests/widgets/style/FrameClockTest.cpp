// SPDX-License-Identifier: MIT
#include "widgets/style/FrameClock.h"

#include <QTest>
#include <QVariantAnimation>

using namespace lumora;

class FrameClockTest : public QObject
{
    Q_OBJECT

private slots:
    void takesAStepEveryFrame()
    {
        const FrameClock frames;
        QVariantAnimation animation;
        animation.setDuration(1000000);
        animation.setStartValue(0.0);
        animation.setEndValue(1000000.0);
        QList<int> steps;
        connect(&animation, &QVariantAnimation::valueChanged, this,
                [&](const QVariant &value) { steps << value.toInt(); });
        animation.start();
        // The platform's own clock, which ticks every 16 ms, takes at least 112 ms for eight steps, since only a late
        // step makes the next one come early. A loaded machine is late often, but not all the time.
        constexpr int count = 8;
        const auto span = [&] {
            return steps.size() > count ? steps.last() - steps.at(steps.size() - 1 - count) : 1000;
        };
        QTRY_VERIFY2_WITH_TIMEOUT(span() < 110, qPrintable(QString::number(span())), 30000);
        QVERIFY2(span() > (count - 1) * (FrameClock::interval.count() - 1), qPrintable(QString::number(span())));
    }

    void restsWhileNothingIsAnimated()
    {
        const FrameClock frames;
        QVariantAnimation animation;
        animation.setDuration(30);
        animation.setStartValue(0.0);
        animation.setEndValue(1.0);
        QTRY_VERIFY(!frames.isRunning());
        animation.start();
        QTRY_VERIFY(frames.isRunning());
        QTRY_COMPARE(animation.state(), QAbstractAnimation::Stopped);
        QCOMPARE(animation.currentValue().toDouble(), 1.0);
        QTRY_VERIFY(!frames.isRunning());
    }
};

QTEST_MAIN(FrameClockTest)
#include "FrameClockTest.moc"
