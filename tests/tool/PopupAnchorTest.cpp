// SPDX-License-Identifier: MIT
#include "tool/PopupAnchor.h"

#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;
using namespace lumora;

class PopupAnchorTest : public QObject
{
    Q_OBJECT

private slots:
    void anchorPoint_data()
    {
        QTest::addColumn<QPointF>("origin");
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QPointF>("expected");
        QTest::newRow("middle of the control, 5 below it") << QPointF(100, 300) << QSizeF(80, 40) << QPointF(205, 255);
        QTest::newRow("odd width keeps the half point") << QPointF(0, 50) << QSizeF(21, 10) << QPointF(75.5, 35);
        QTest::newRow("no control") << QPointF(0, 0) << QSizeF(0, 0) << QPointF(65, -5);
        QTest::newRow("no control, origin moved") << QPointF(12, 34) << QSizeF(0, 0) << QPointF(77, 29);
    }
    void anchorPoint()
    {
        QFETCH(QPointF, origin);
        QFETCH(QSizeF, size);
        QTEST(popupAnchor(origin, size), "expected");
    }

    void originCountsUpwardsInTheToolView()
    {
        QWidget tool;
        tool.resize(835, 600);
        QWidget panel(&tool);
        panel.setGeometry(400, 100, 300, 200);
        QWidget button(&panel);
        button.setGeometry(20, 30, 120, 40);
        QCOMPARE(popupAnchorOrigin(&button), QPointF(420, 600 - 130));
    }

    void originIsZero_data()
    {
        QTest::addColumn<int>("level");
        QTest::newRow("for no control") << -1;
        QTest::newRow("for a control without parents") << 0;
        QTest::newRow("for a control right on the tool view") << 1;
    }
    void originIsZero()
    {
        QFETCH(int, level);
        QWidget tool;
        tool.resize(835, 600);
        QWidget panel(&tool);
        panel.move(10, 10);
        const QWidget *control = level < 0 ? nullptr : level == 0 ? &tool : &panel;
        QCOMPARE(popupAnchorOrigin(control), QPointF());
    }
};

QTEST_MAIN(PopupAnchorTest)
#include "PopupAnchorTest.moc"
