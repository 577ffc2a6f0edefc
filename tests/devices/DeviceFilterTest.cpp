// SPDX-License-Identifier: MIT
#include "devices/DeviceFilter.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The devices that do not match, each as "list:index".
QStringList fadedDevices(const DeviceLists &devices)
{
    QStringList faded;
    const auto collect = [&](const QString &name, const std::vector<DeviceRecord> &list) {
        for (std::size_t index = 0; index < list.size(); ++index) {
            if (!list[index].active)
                faded += name + QString::number(index);
        }
    };
    collect(u"iPhone"_s, devices.iPhones);
    collect(u"iPod"_s, devices.iPods);
    collect(u"iPad"_s, devices.iPads);
    return faded;
}

QStringList fadedBy(const FilterDictionary &filter)
{
    DeviceLists devices = setupData();
    filterDevices(devices, filter);
    return fadedDevices(devices);
}

const QStringList alliPods{u"iPod0"_s, u"iPod1"_s, u"iPod2"_s, u"iPod3"_s, u"iPod4"_s};
const QStringList alliPads{u"iPad0"_s, u"iPad1"_s, u"iPad2"_s, u"iPad3"_s, u"iPad4"_s};

} // namespace

class DeviceFilterTest : public QObject
{
    Q_OBJECT

private slots:
    void fadesWhatDoesNotMatch_data()
    {
        QTest::addColumn<float>("maxIos"); // 0 is not a version
        QTest::addColumn<QByteArrayList>("features");
        QTest::addColumn<QStringList>("faded");

        const QByteArrayList none;
        QTest::newRow("nothing chosen") << 0.0F << none << QStringList();
        QTest::newRow("iOS 4+: 4.2 meets it, 3.1 does not") << 4.0F << none << QStringList{u"iPod0"_s};
        QTest::newRow("iOS 5+") << 5.0F << none << QStringList{u"iPhone0"_s, u"iPod0"_s, u"iPod1"_s};
        QTest::newRow("iOS 6+") << 6.0F << none
                                << QStringList{u"iPhone0"_s, u"iPod0"_s, u"iPod1"_s, u"iPod2"_s, u"iPad1"_s};
        QTest::newRow("iOS 7+: a newest version of 7.0 meets it")
            << 7.0F << none
            << QStringList{u"iPhone0"_s, u"iPhone1"_s, u"iPod0"_s, u"iPod1"_s, u"iPod2"_s, u"iPod3"_s, u"iPad1"_s};
        QTest::newRow("camera flash") << 0.0F << QByteArrayList{"flash_cam"}
                                      << QStringList{u"iPhone0"_s, u"iPhone1"_s} + alliPods + alliPads;
        QTest::newRow("OpenGL 3.0") << 0.0F << QByteArrayList{"opengl_3"}
                                    << QStringList{u"iPhone0"_s, u"iPhone1"_s, u"iPhone2"_s,
                                                   u"iPhone3"_s, u"iPhone4"_s, u"iPhone5"_s} +
                                           alliPods + alliPads;
        QTest::newRow("GPS") << 0.0F << QByteArrayList{"gps"} << alliPods;
        QTest::newRow("version and feature together")
            << 6.0F << QByteArrayList{"gps"} << QStringList{u"iPhone0"_s} + alliPods + QStringList{u"iPad1"_s};
        QTest::newRow("every ticked feature is needed")
            << 0.0F << QByteArrayList{"siri", "retina"}
            << QStringList{u"iPhone0"_s, u"iPhone1"_s, u"iPhone2"_s, u"iPod0"_s, u"iPod1"_s,
                           u"iPod2"_s,   u"iPod3"_s,   u"iPad0"_s,   u"iPad1"_s, u"iPad2"_s};
        QTest::newRow("a feature that no device has")
            << 0.0F << QByteArrayList{"teleport"}
            << QStringList{u"iPhone0"_s, u"iPhone1"_s, u"iPhone2"_s, u"iPhone3"_s,
                           u"iPhone4"_s, u"iPhone5"_s, u"iPhone6"_s} +
                   alliPods + alliPads;
    }
    void fadesWhatDoesNotMatch()
    {
        QFETCH(float, maxIos);
        QFETCH(QByteArrayList, features);
        FilterDictionary filter;
        if (maxIos > 0.0F)
            filter.setMaxIos(maxIos);
        for (const QByteArray &key : std::as_const(features))
            filter.setFeature(key.constData(), true);
        QTEST(fadedBy(filter), "faded");
    }

    void untickingReturnsToThePreviousResult()
    {
        FilterDictionary filter;
        filter.setMaxIos(5.0F);
        const QStringList before = fadedBy(filter);
        filter.setFeature("siri", true);
        QVERIFY(fadedBy(filter) != before);
        filter.setFeature("siri", false);
        QCOMPARE(fadedBy(filter), before);
        QVERIFY(filter.features().empty());
    }

    void anotherVersionReplacesTheFirst()
    {
        FilterDictionary filter;
        filter.setMaxIos(7.0F);
        filter.setMaxIos(5.0F);
        QCOMPARE(filter.maxIos().value_or(0.0F), 5.0F);
        QCOMPARE(fadedBy(filter), (QStringList{u"iPhone0"_s, u"iPod0"_s, u"iPod1"_s}));
    }

    void clearingMakesAllActiveAgain()
    {
        DeviceLists devices = setupData();
        FilterDictionary filter;
        filter.setMaxIos(7.0F);
        filter.setFeature("flash_cam", true);
        filterDevices(devices, filter);
        QVERIFY(!fadedDevices(devices).isEmpty());
        filter.clear();
        QVERIFY(filter.isEmpty());
        filterDevices(devices, filter);
        QCOMPARE(devices, setupData());
    }
};

QTEST_GUILESS_MAIN(DeviceFilterTest)
#include "DeviceFilterTest.moc"
