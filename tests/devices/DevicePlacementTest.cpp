// SPDX-License-Identifier: MIT
#include "devices/DevicePlacement.h"
#include "devices/DeviceCatalogue.h"

#include <QTest>

using namespace lumora;

class DevicePlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void placesARow_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QRect>("picture");
        QTest::addColumn<QRect>("label");

        QTest::newRow("first") << 0 << QRect(0, 25, 35, 65) << QRect(0, 0, 35, 20);
        QTest::newRow("second") << 1 << QRect(45, 25, 35, 65) << QRect(45, 0, 35, 20);
        QTest::newRow("seventh") << 6 << QRect(270, 25, 35, 65) << QRect(270, 0, 35, 20);
    }
    void placesARow()
    {
        QFETCH(int, index);
        QTEST(placeInRow(index).picture, "picture");
        QTEST(placeInRow(index).label, "label");
    }

    void placesTheiPads_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QRect>("picture");
        QTest::addColumn<QRect>("label");

        QTest::newRow("the mini stands above the first") << 0 << QRect(0, 150, 71, 90) << QRect(0, 125, 71, 20);
        QTest::newRow("the first iPad begins the row") << 1 << QRect(0, 25, 71, 90) << QRect(0, 0, 71, 20);
        QTest::newRow("second") << 2 << QRect(81, 25, 71, 90) << QRect(81, 0, 71, 20);
        QTest::newRow("third") << 3 << QRect(162, 25, 71, 90) << QRect(162, 0, 71, 20);
        QTest::newRow("fourth") << 4 << QRect(243, 25, 71, 90) << QRect(243, 0, 71, 20);
    }
    void placesTheiPads()
    {
        QFETCH(int, index);
        const DeviceRecord device = setupiPads().at(static_cast<std::size_t>(index));
        QTEST(placeOfiPad(device, index).picture, "picture");
        QTEST(placeOfiPad(device, index).label, "label");
    }

    void aMiniAtAnotherIndexKeepsItsColumn()
    {
        const DeviceRecord mini = setupiPads().front();
        QCOMPARE(placeOfiPad(mini, 2).picture, QRect(162, 150, 71, 90));
    }
};

QTEST_GUILESS_MAIN(DevicePlacementTest)
#include "DevicePlacementTest.moc"
