// SPDX-License-Identifier: MIT
#include "app/TimedCaption.h"

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
    }

    void returnsToRestAfterTwoSeconds()
    {
        QString shown;
        TimedCaption caption([&](const QString &text) { shown = text; }, u"Generate"_s, this);
        QElapsedTimer clock;
        clock.start();
        caption.showForAWhile(u"Done"_s);
        QCOMPARE(shown, u"Done"_s);
        QTRY_COMPARE_WITH_TIMEOUT(shown, u"Generate"_s, 4000);
        QVERIFY2(clock.elapsed() >= 1990, qPrintable(QString::number(clock.elapsed())));
    }

    void shownAgainCountsAnew()
    {
        QString shown;
        TimedCaption caption([&](const QString &text) { shown = text; }, u"Generate"_s, this);
        caption.showForAWhile(u"Done"_s);
        QTest::qWait(1000);
        QElapsedTimer clock;
        clock.start();
        caption.showForAWhile(u"Done"_s);
        QTRY_COMPARE_WITH_TIMEOUT(shown, u"Generate"_s, 4000);
        QVERIFY2(clock.elapsed() >= 1990, qPrintable(QString::number(clock.elapsed())));
    }

    void showCallsTheReturnOff()
    {
        QString shown;
        TimedCaption caption([&](const QString &text) { shown = text; }, u"Generate"_s, this);
        caption.showForAWhile(u"Done"_s);
        caption.show(u"Exporting"_s);
        QTest::qWait(static_cast<int>(TimedCaption::duration.count()) + 300);
        QCOMPARE(shown, u"Exporting"_s);
    }
};

QTEST_MAIN(TimedCaptionTest)
#include "TimedCaptionTest.moc"
