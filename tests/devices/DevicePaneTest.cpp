// SPDX-License-Identifier: MIT
#include "devices/DeviceViewController.h"
#include "devices/DeviceViews.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/RadioButton.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class DevicePaneTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<DeviceViewController> m_controller;

    static void press(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }
    RadioButton *version(int number) { return m_controller->radioButtons().at(static_cast<std::size_t>(number - 4)); }
    CheckboxButton *feature(const char *key)
    {
        for (std::size_t index = 0; index < deviceFeatures.size(); ++index) {
            if (deviceFeatures[index].key == key)
                return m_controller->checkboxes()[index];
        }
        return nullptr;
    }

    struct Shown
    {
        QString name;
        const DevicePicture *picture;
        const DeviceLabel *label;
        bool active;
    };
    std::vector<Shown> shown() const
    {
        std::vector<Shown> all;
        const auto collect = [&](const QString &name, const auto &devices, const auto &images, const auto &labels) {
            for (std::size_t index = 0; index < devices.size(); ++index)
                all.push_back(
                    {name + QString::number(index), images.at(index), labels.at(index), devices[index].active});
        };
        collect(u"iPhone"_s, m_controller->iPhones(), m_controller->iPhonesImages(), m_controller->iPhonesLabels());
        collect(u"iPod"_s, m_controller->iPods(), m_controller->iPodsImages(), m_controller->iPodsLabels());
        collect(u"iPad"_s, m_controller->iPads(), m_controller->iPadsImages(), m_controller->iPadsLabels());
        return all;
    }
    /// The devices whose picture and label are faded, once every fade has ended; "?" for a partly faded one.
    QStringList faded() const
    {
        QStringList names;
        for (const Shown &device : shown()) {
            const float alpha = device.picture->alphaValue();
            if (alpha != device.label->alphaValue() || (alpha != 1.0F && alpha != 0.25F))
                names += u"?"_s;
            else if (alpha == 0.25F)
                names += device.name;
            if (alpha == 1.0F && !device.active)
                names += u"?"_s;
        }
        return names;
    }

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
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

    void showsEveryDevice()
    {
        const std::vector<Shown> devices = shown();
        QCOMPARE(devices.size(), std::size_t{17});
        for (const Shown &device : devices) {
            QVERIFY(device.active);
            QVERIFY(device.picture->isVisible());
            QVERIFY(!device.picture->image().isNull());
            QCOMPARE(device.picture->alphaValue(), 1.0F);
        }
        QCOMPARE(m_controller->iPhonesLabels().at(1)->text(), u"3GS"_s);
        QCOMPARE(m_controller->iPadsLabels().at(2)->text(), u"2th Gen"_s);
        QCOMPARE(m_controller->iPodsImages().at(4)->image().name(), u"device_iphone"_s);
        QCOMPARE(m_controller->iPadsImages().at(0)->image().name(), u"device_ipad_mini"_s);
    }

    void placesThemFromTheContainersLowerEdge()
    {
        QCOMPARE(m_controller->iPhonesImages().at(2)->geometry(), QRect(90, 0, 35, 65));
        QCOMPARE(m_controller->iPhonesLabels().at(2)->geometry(), QRect(90, 70, 35, 20));
        QCOMPARE(m_controller->iPadsImages().at(0)->geometry(), QRect(0, 0, 71, 90));
        QCOMPARE(m_controller->iPadsLabels().at(0)->geometry(), QRect(0, 95, 71, 20));
        QCOMPARE(m_controller->iPadsImages().at(4)->geometry(), QRect(243, 125, 71, 90));
    }

    void anEmptyListMakesNoViews()
    {
        QWidget container;
        const DeviceGroup none = DeviceGroup::create({}, u"iPhone"_s, placeOfiPad, &container);
        QVERIFY(none.images.empty());
        QVERIFY(none.labels.empty());
        QVERIFY(container.children().isEmpty());
        const DeviceGroup one = DeviceGroup::create({setupiPads().front()}, u"iPad"_s, placeOfiPad, &container);
        QCOMPARE(one.images.size(), std::size_t{1});
        QCOMPARE(container.children().size(), 2);
    }

    void sectionsAndResetButton()
    {
        const auto *ios = m_controller->view()->findChild<QLabel *>(u"iOSLabel"_s);
        QCOMPARE(ios->text(), qtTrId("DEVICES_IOS"));
        QCOMPARE(ios->font().pixelSize(), 18);
        QCOMPARE(ios->palette().color(QPalette::WindowText), palette::rgb(0.902F, 0.494F, 0.133F));
        QCOMPARE(m_controller->view()->findChild<QLabel *>(u"iPodLabel"_s)->font().pixelSize(), 15);
        QCOMPARE(m_controller->resetButton()->text(), qtTrId("RESET"));
        QCOMPARE(m_controller->resetButton()->normalColor(), palette::rgb(0.902F, 0.494F, 0.133F));
        QCOMPARE(version(7)->text(), u"iOS 7+"_s);
        QCOMPARE(feature("flash_cam")->text(), u"Camera Flash"_s);
    }

    void filters_data()
    {
        QTest::addColumn<QList<int>>("versions");
        QTest::addColumn<QByteArrayList>("features");
        QTest::addColumn<QStringList>("faded");

        const QStringList iPods{u"iPod0"_s, u"iPod1"_s, u"iPod2"_s, u"iPod3"_s, u"iPod4"_s};
        const QStringList iPads{u"iPad0"_s, u"iPad1"_s, u"iPad2"_s, u"iPad3"_s, u"iPad4"_s};
        QTest::newRow("iOS 4+") << QList<int>{4} << QByteArrayList() << QStringList{u"iPod0"_s};
        QTest::newRow("iOS 7+") << QList<int>{7} << QByteArrayList()
                                << QStringList{u"iPhone0"_s, u"iPhone1"_s, u"iPod0"_s, u"iPod1"_s,
                                               u"iPod2"_s,   u"iPod3"_s,   u"iPad1"_s};
        QTest::newRow("iOS 5+ after iOS 7+")
            << QList<int>{7, 5} << QByteArrayList() << QStringList{u"iPhone0"_s, u"iPod0"_s, u"iPod1"_s};
        QTest::newRow("the same version twice stays chosen")
            << QList<int>{4, 4} << QByteArrayList() << QStringList{u"iPod0"_s};
        QTest::newRow("camera flash") << QList<int>() << QByteArrayList{"flash_cam"}
                                      << QStringList{u"iPhone0"_s, u"iPhone1"_s} + iPods + iPads;
        QTest::newRow("GPS") << QList<int>() << QByteArrayList{"gps"} << iPods;
        QTest::newRow("a feature ticked and unticked")
            << QList<int>{4} << QByteArrayList{"gps", "gps"} << QStringList{u"iPod0"_s};
        for (const DeviceFeature &each : deviceFeatures) {
            DeviceLists devices = setupData();
            FilterDictionary filter;
            filter.setFeature(each.key, true);
            filterDevices(devices, filter);
            QStringList expected;
            for (std::size_t index = 0; index < devices.iPhones.size(); ++index) {
                if (!devices.iPhones[index].active)
                    expected += u"iPhone"_s + QString::number(index);
            }
            for (std::size_t index = 0; index < devices.iPods.size(); ++index) {
                if (!devices.iPods[index].active)
                    expected += u"iPod"_s + QString::number(index);
            }
            for (std::size_t index = 0; index < devices.iPads.size(); ++index) {
                if (!devices.iPads[index].active)
                    expected += u"iPad"_s + QString::number(index);
            }
            QTest::addRow("the box of %s asks for just that", each.key.data())
                << QList<int>() << QByteArrayList{QByteArray(each.key.data())} << expected;
        }
    }
    void filters()
    {
        QFETCH(QList<int>, versions);
        QFETCH(QByteArrayList, features);
        QFETCH(QStringList, faded);
        for (const int number : std::as_const(versions))
            press(version(number));
        for (const QByteArray &key : std::as_const(features))
            press(feature(key.constData()));
        QTRY_COMPARE(this->faded(), faded);
        for (int number = 4; number <= 7; ++number)
            QCOMPARE(version(number)->isActive(), !versions.isEmpty() && versions.constLast() == number);
        for (const DeviceFeature &each : deviceFeatures)
            QCOMPARE(feature(each.key.data())->isActive(), features.count(QByteArray(each.key.data())) == 1);
    }

    void fadesFromTheOpacityOfTheMoment()
    {
        const DevicePicture *picture = m_controller->iPodsImages().at(0);
        press(version(4));
        QTRY_VERIFY(picture->alphaValue() < 0.9F);
        const float middle = picture->alphaValue();
        QVERIFY(middle > 0.25F);
        press(m_controller->resetButton());
        // The opacity does not jump when the direction changes.
        QVERIFY(picture->alphaValue() <= middle);
        QTRY_COMPARE(picture->alphaValue(), 1.0F);
    }

    void resets()
    {
        press(version(6));
        press(feature("siri"));
        press(feature("flash_cam"));
        QTRY_VERIFY(!faded().isEmpty() && !faded().contains(u"?"_s));
        press(m_controller->resetButton());
        QVERIFY(m_controller->filterDictionary().isEmpty());
        QTRY_COMPARE(faded(), QStringList());
        for (const RadioButton *radio : m_controller->radioButtons())
            QVERIFY(!radio->isActive());
        for (const CheckboxButton *box : m_controller->checkboxes()) {
            QVERIFY(!box->isActive());
            QCOMPARE(box->currentImage(), box->idleImage());
        }
    }

    void resetsOnlyDirectChildren()
    {
        auto *deeper = new CheckboxButton(m_controller->view()->findChild<QWidget *>(u"iPadContainer"_s));
        deeper->setActive(true);
        m_controller->reset();
        QVERIFY(deeper->isActive());
        for (const CheckboxButton *box : m_controller->checkboxes())
            QCOMPARE(box->parentWidget(), m_controller->view());
    }

    void describesMatchingForScreenReaders()
    {
        const DevicePicture *iPod = m_controller->iPodsImages().at(2);
        QCOMPARE(iPod->accessibleName(), u"iPod 3G"_s);
        QCOMPARE(m_controller->iPadsImages().at(0)->accessibleName(), u"iPad mini 1st Gen"_s);
        QCOMPARE(iPod->accessibleDescription(), u"iPod 3G, meets the choice"_s);
        press(feature("gps"));
        QCOMPARE(iPod->accessibleDescription(), u"iPod 3G, does not meet the choice"_s);
        QCOMPARE(m_controller->iPhonesImages().at(0)->accessibleDescription(), u"iPhone 3G, meets the choice"_s);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(const_cast<DevicePicture *>(iPod));
        QCOMPARE(interface->role(), QAccessible::Graphic);
        QCOMPARE(interface->text(QAccessible::Description), iPod->accessibleDescription());
    }

    void worksByKeyboard()
    {
        feature("gps")->setFocus();
        QTest::keyClick(feature("gps"), Qt::Key_Space);
        QVERIFY(feature("gps")->isActive());
        QVERIFY(m_controller->filterDictionary().features().contains("gps"));
    }

    void aFadeEndsWhenItGoesOutOfSight()
    {
        press(feature("gps"));
        QVERIFY(faded().contains(u"?"_s) || faded().isEmpty());
        m_controller->view()->hide();
        QCOMPARE(faded(), (QStringList{u"iPod0"_s, u"iPod1"_s, u"iPod2"_s, u"iPod3"_s, u"iPod4"_s}));
    }

    void filtersOutOfSightWithoutAnimation()
    {
        m_controller->view()->hide();
        m_controller->checkbox_gps_checked(feature("gps"));
        QCOMPARE(faded(), (QStringList{u"iPod0"_s, u"iPod1"_s, u"iPod2"_s, u"iPod3"_s, u"iPod4"_s}));
    }
};

QTEST_MAIN(DevicePaneTest)
#include "DevicePaneTest.moc"
