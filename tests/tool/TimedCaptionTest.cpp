// SPDX-License-Identifier: MIT
#include "tests/doubles/DrivenCaption.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class TimedCaptionTest : public QObject
{
    Q_OBJECT

private slots:
    void beginsAtRest()
    {
        QStringList shown;
        TimedCaption caption([&](const QString &text) { shown << text; }, u"Generate"_s, this);
        QCOMPARE(shown, QStringList{u"Generate"_s});
        QVERIFY(!timerOf(caption).isActive());
    }

    void returnsToRestAfterTwoSeconds()
    {
        QString shown;
        TimedCaption caption([&](const QString &text) { shown = text; }, u"Generate"_s, this);
        caption.showForAWhile(u"Done"_s);
        QCOMPARE(shown, u"Done"_s);
        const QTimer &timer = timerOf(caption);
        QVERIFY(timer.isActive());
        QVERIFY(timer.isSingleShot());
        QCOMPARE(timer.interval(), 2000);
        // A coarse timer may be a twentieth of its time early.
        QCOMPARE(timer.timerType(), Qt::PreciseTimer);
        letTimePass(caption);
        QCOMPARE(shown, u"Generate"_s);
        QVERIFY(!timer.isActive());
    }

    void shownAgainCountsAnew()
    {
        QString shown;
        TimedCaption caption([&](const QString &text) { shown = text; }, u"Generate"_s, this);
        QElapsedTimer clock;
        clock.start();
        const auto end = [&] { return clock.elapsed() + timerOf(caption).remainingTime(); };
        caption.showForAWhile(u"Done"_s);
        const qint64 first = end();
        QTest::qSleep(20);
        caption.showForAWhile(u"Done"_s);
        // Both ends are rounded to milliseconds.
        QVERIFY(end() - first >= 18);
        letTimePass(caption);
        QCOMPARE(shown, u"Generate"_s);
    }

    void showCallsTheReturnOff()
    {
        QString shown;
        TimedCaption caption([&](const QString &text) { shown = text; }, u"Generate"_s, this);
        caption.showForAWhile(u"Done"_s);
        caption.show(u"Exporting"_s);
        QCOMPARE(shown, u"Exporting"_s);
        QVERIFY(!timerOf(caption).isActive());
    }
};

QTEST_MAIN(TimedCaptionTest)
#include "TimedCaptionTest.moc"
