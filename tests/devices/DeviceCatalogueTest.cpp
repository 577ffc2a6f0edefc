// SPDX-License-Identifier: MIT
#include "devices/DeviceCatalogue.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

/// The keys of a device's features, in the order of the catalogue's columns.
QString featuresOf(const DeviceRecord &device)
{
    QStringList keys;
    for (const char *key : {"multitask", "retina", "siri", "gps", "compass", "gyroscope", "back_cam", "front_cam",
                            "flash_cam", "video_rec", "bluetooth_le", "opengl_2", "opengl_3"}) {
        if (hasFeature(device, key))
            keys += QLatin1StringView(key);
    }
    return keys.join(u' ');
}

} // namespace

class DeviceCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void holdsEveryDevice_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("image");
        QTest::addColumn<float>("maxIos");
        QTest::addColumn<QString>("features");

        const QString all = u"multitask retina siri gps compass gyroscope back_cam front_cam flash_cam video_rec "
                            "bluetooth_le opengl_2"_s;
        const QString noFlash =
            u"multitask retina siri gps compass gyroscope back_cam front_cam video_rec bluetooth_le opengl_2"_s;
        const QString iPhoneOld = u"device_iphone_old"_s;
        const QString iPhone = u"device_iphone"_s;
        const QString iPodOld = u"device_ipod_old"_s;
        const QString iPad = u"device_ipad"_s;

        QTest::newRow("iPhone 3G") << u"iPhones"_s << 0 << u"3G"_s << iPhoneOld << 4.2F << u"gps back_cam"_s;
        QTest::newRow("iPhone 3GS") << u"iPhones"_s << 1 << u"3GS"_s << iPhoneOld << 6.1F
                                    << u"multitask gps compass back_cam video_rec opengl_2"_s;
        QTest::newRow("iPhone 4") << u"iPhones"_s << 2 << u"4"_s << iPhoneOld << 7.0F
                                  << u"multitask retina gps compass gyroscope back_cam front_cam flash_cam video_rec "
                                     "opengl_2"_s;
        QTest::newRow("iPhone 4S") << u"iPhones"_s << 3 << u"4S"_s << iPhoneOld << 7.0F << all;
        QTest::newRow("iPhone 5") << u"iPhones"_s << 4 << u"5"_s << iPhone << 7.0F << all;
        QTest::newRow("iPhone 5C") << u"iPhones"_s << 5 << u"5C"_s << iPhone << 7.0F << all;
        QTest::newRow("iPhone 5S") << u"iPhones"_s << 6 << u"5S"_s << iPhone << 7.0F << all + u" opengl_3"_s;
        QTest::newRow("iPod 1G") << u"iPods"_s << 0 << u"1G"_s << iPodOld << 3.1F << QString();
        QTest::newRow("iPod 2G") << u"iPods"_s << 1 << u"2G"_s << iPodOld << 4.2F << QString();
        QTest::newRow("iPod 3G") << u"iPods"_s << 2 << u"3G"_s << iPodOld << 5.1F << u"multitask opengl_2"_s;
        QTest::newRow("iPod 4G") << u"iPods"_s << 3 << u"4G"_s << iPodOld << 6.1F
                                 << u"multitask retina gyroscope back_cam front_cam video_rec opengl_2"_s;
        QTest::newRow("iPod 5G, with the picture of an iPhone")
            << u"iPods"_s << 4 << u"5G"_s << iPhone << 7.0F
            << u"multitask retina siri gyroscope back_cam front_cam video_rec bluetooth_le opengl_2"_s;
        QTest::newRow("iPad mini") << u"iPads"_s << 0 << u"1st Gen"_s << u"device_ipad_mini"_s << 7.0F
                                   << u"multitask siri gps compass gyroscope back_cam front_cam video_rec "
                                      "bluetooth_le opengl_2"_s;
        QTest::newRow("iPad 1") << u"iPads"_s << 1 << u"1st Gen"_s << iPad << 5.1F
                                << u"multitask gps compass opengl_2"_s;
        QTest::newRow("iPad 2, with its own spelling")
            << u"iPads"_s << 2 << u"2th Gen"_s << iPad << 7.0F
            << u"multitask gps compass gyroscope back_cam front_cam video_rec opengl_2"_s;
        QTest::newRow("iPad 3") << u"iPads"_s << 3 << u"3rd Gen"_s << iPad << 7.0F << noFlash;
        QTest::newRow("iPad 4") << u"iPads"_s << 4 << u"4th Gen"_s << iPad << 7.0F << noFlash;
    }
    void holdsEveryDevice()
    {
        QFETCH(QString, list);
        QFETCH(int, index);
        const DeviceLists lists = setupData();
        const std::vector<DeviceRecord> &devices = list == u"iPhones" ? lists.iPhones
                                                   : list == u"iPods" ? lists.iPods
                                                                      : lists.iPads;
        const DeviceRecord &device = devices.at(static_cast<std::size_t>(index));
        QTEST(text(device.model), "model");
        QTEST(text(device.image), "image");
        QTEST(device.maxIos, "maxIos");
        QTEST(featuresOf(device), "features");
        QVERIFY(device.active);
    }

    void holdsSeventeenDevices()
    {
        QCOMPARE(setupiPhones().size(), std::size_t{7});
        QCOMPARE(setupiPods().size(), std::size_t{5});
        QCOMPARE(setupiPads().size(), std::size_t{5});
        QCOMPARE(setupData(), (DeviceLists{setupiPhones(), setupiPods(), setupiPads()}));
    }

    void noTwoRecordsAreEqual()
    {
        const DeviceLists lists = setupData();
        std::vector<DeviceRecord> devices = lists.iPhones;
        devices.insert(devices.end(), lists.iPods.begin(), lists.iPods.end());
        devices.insert(devices.end(), lists.iPads.begin(), lists.iPads.end());
        for (std::size_t one = 0; one < devices.size(); ++one) {
            for (std::size_t other = one + 1; other < devices.size(); ++other)
                QVERIFY2(devices[one] != devices[other], qPrintable(text(devices[one].model)));
        }
    }

    void sharedLabelsBelongToDifferentRecords()
    {
        const DeviceRecord iPhone3G = setupiPhones().at(0);
        const DeviceRecord iPod3G = setupiPods().at(2);
        QCOMPARE(iPhone3G.model, iPod3G.model);
        QVERIFY(iPhone3G != iPod3G);

        const std::vector<DeviceRecord> iPads = setupiPads();
        QCOMPARE(iPads.at(0).model, iPads.at(1).model);
        QVERIFY(iPads.at(0).image != iPads.at(1).image);
    }

    void aFlashNeedsABackCameraAndNoiPadHasOne()
    {
        const DeviceLists lists = setupData();
        for (const auto *list : {&lists.iPhones, &lists.iPods, &lists.iPads}) {
            for (const DeviceRecord &device : *list)
                QVERIFY(!device.cameraFlash || device.backCamera);
        }
        for (const DeviceRecord &device : lists.iPads)
            QVERIFY(!device.cameraFlash);
    }

    void offersTheFeaturesInOrder()
    {
        QStringList offered;
        for (const DeviceFeature &feature : deviceFeatures)
            offered += text(feature.label) + u'=' + text(feature.key);
        QCOMPARE(offered, (QStringList{u"Retina Display=retina"_s, u"Multitask=multitask"_s, u"Siri=siri"_s,
                                       u"Video Recording=video_rec"_s, u"Compass=compass"_s, u"Gyroscope=gyroscope"_s,
                                       u"GPS=gps"_s, u"Back Camera=back_cam"_s, u"Front Camera=front_cam"_s,
                                       u"Camera Flash=flash_cam"_s, u"Bluetooth LE=bluetooth_le"_s,
                                       u"OpenGL 2.0=opengl_2"_s, u"OpenGL 3.0=opengl_3"_s}));
        QStringList versions;
        for (const IosChoice &choice : iosChoices)
            versions += text(choice.label) + u'=' + QString::number(static_cast<double>(choice.version));
        QCOMPARE(versions, (QStringList{u"iOS 4+=4"_s, u"iOS 5+=5"_s, u"iOS 6+=6"_s, u"iOS 7+=7"_s}));
    }

    void anUnknownKeyReadsAsNo()
    {
        QVERIFY(deviceFeature("teleport") == nullptr);
        QVERIFY(!hasFeature(setupiPhones().at(6), "teleport"));
    }
};

QTEST_GUILESS_MAIN(DeviceCatalogueTest)
#include "DeviceCatalogueTest.moc"
