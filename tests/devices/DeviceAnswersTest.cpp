// SPDX-License-Identifier: MIT
#include "devices/DeviceViewController.h"
#include "devices/DeviceViews.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/RadioButton.h"

#include <QLabel>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The texts of the device matrix: how many devices match, and why the others do not.
class DeviceAnswersTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<DeviceViewController> m_controller;

    void choose(int iOS, const QByteArrayList &features)
    {
        if (iOS != 0)
            m_controller->radioButtons().at(static_cast<std::size_t>(iOS - 4))->click();
        for (std::size_t index = 0; index < deviceFeatures.size(); ++index) {
            if (features.contains(QByteArray(deviceFeatures[index].key.data())))
                m_controller->checkboxes()[index]->click();
        }
    }

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*QCoreApplication::instance(), QLocale(u"en"_s));
    }
    void init()
    {
        m_services = std::make_unique<RecordingServices>();
        m_controller = std::make_unique<DeviceViewController>(m_services->services());
        m_controller->view()->resize(835, 595);
        m_controller->view()->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_controller->view()));
    }
    void cleanup()
    {
        m_controller.reset();
        m_services.reset();
    }

    void counts_data()
    {
        QTest::addColumn<int>("iOS");
        QTest::addColumn<QByteArrayList>("features");
        QTest::addColumn<QString>("count");

        QTest::newRow("nothing chosen") << 0 << QByteArrayList() << u"17 of 17 models fit"_s;
        QTest::newRow("iOS 4+") << 4 << QByteArrayList() << u"16 of 17 models fit"_s;
        QTest::newRow("iOS 7+") << 7 << QByteArrayList() << u"10 of 17 models fit"_s;
        QTest::newRow("camera flash") << 0 << QByteArrayList{"flash_cam"} << u"5 of 17 models fit"_s;
        QTest::newRow("OpenGL 3.0") << 0 << QByteArrayList{"opengl_3"} << u"1 of 17 models fit"_s;
    }
    void counts()
    {
        QFETCH(int, iOS);
        QFETCH(QByteArrayList, features);
        choose(iOS, features);
        QTEST(m_controller->countLabel()->text(), "count");
        m_controller->resetButton()->click();
        QCOMPARE(m_controller->countLabel()->text(), u"17 of 17 models fit"_s);
    }

    void saysWhy_data()
    {
        QTest::addColumn<int>("iOS");
        QTest::addColumn<QByteArrayList>("features");
        QTest::addColumn<QString>("toolTip");

        QTest::newRow("fits") << 4 << QByteArrayList() << u"iPhone 3G"_s;
        QTest::newRow("too old") << 7 << QByteArrayList()
                                 << u"iPhone 3G\nRuns iOS 4.2 at most; iOS 7.0 is asked for."_s;
        QTest::newRow("lacks features") << 0 << QByteArrayList{"siri", "gps", "retina"}
                                        << u"iPhone 3G\nLacks: Retina Display, Siri"_s;
        QTest::newRow("both") << 5 << QByteArrayList{"siri"}
                              << u"iPhone 3G\nRuns iOS 4.2 at most; iOS 5.0 is asked for.\nLacks: Siri"_s;
    }
    void saysWhy()
    {
        QFETCH(int, iOS);
        QFETCH(QByteArrayList, features);
        QFETCH(QString, toolTip);
        choose(iOS, features);
        const DevicePicture *picture = m_controller->iPhonesImages().at(0);
        QCOMPARE(picture->toolTip(), toolTip);
        QCOMPARE(m_controller->iPhonesLabels().at(0)->toolTip(), toolTip);
        QCOMPARE(QString(u"iPhone 3G\n"_s + picture->whatsThis()).trimmed(), toolTip);
        m_controller->resetButton()->click();
        QCOMPARE(picture->toolTip(), u"iPhone 3G"_s);
    }

    void fallsShortExactlyWhereItDoesNotMatch()
    {
        const DeviceLists devices = setupData();
        for (const IosChoice &choice : iosChoices) {
            for (const DeviceFeature &feature : deviceFeatures) {
                FilterDictionary filter;
                filter.setMaxIos(choice.version);
                filter.setFeature(feature.key, true);
                for (const auto *list : {&devices.iPhones, &devices.iPods, &devices.iPads}) {
                    for (const DeviceRecord &device : *list)
                        QCOMPARE(shortfall(device, filter) == Shortfall(), matches(device, filter));
                }
            }
        }
    }

    void givesTheMiniAHeading()
    {
        const QLabel *heading = m_controller->miniLabel();
        QCOMPARE(heading->text(), qtTrId("DEVICES_IPAD_MINI"));
        QVERIFY(heading->isVisible());
        QVERIFY(heading->sizeHint().width() <= heading->width());
        for (const DevicePicture *picture : m_controller->iPadsImages())
            QVERIFY2(!heading->geometry().intersects(picture->geometry()), qPrintable(picture->accessibleName()));
    }
};

QTEST_MAIN(DeviceAnswersTest)
#include "DeviceAnswersTest.moc"
