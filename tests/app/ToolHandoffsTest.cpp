// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "devices/DeviceViewController.h"
#include "devices/pane/ModelFilterView.h"
#include "devices/pane/TodayDevicePane.h"
#include "foundation/ToolFacts.h"
#include "icons/IconsViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "tool/PaneSides.h"
#include "validator/ValidaterViewController.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// What the package check hands on to other tools.
class ToolHandoffsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void givesThePicturesOfAPackageToTheIcons()
    {
        Application application;
        auto &icons = application.tool<IconsViewController>(ToolIndex::Icons);
        const QString browsed = icons.browsePath();
        QImage picture(1024, 1024, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QTemporaryDir folder;
        QVERIFY(picture.save(folder.filePath(u"icon.png"_s)));
        emit application.validator().iconsWanted(folder.filePath(u"icon.png"_s));
        QCOMPARE(application.delegate.toolInView(), static_cast<std::size_t>(ToolIndex::Icons));
        QTRY_COMPARE(icons.icon().pixelColor(512, 512), QColor(Qt::red));
        QVERIFY2(icons.browsePath() == browsed, "the folder is not the user's");
    }

    void opensTheIconsWithoutAPicture()
    {
        Application application;
        emit application.validator().iconsWanted({});
        QCOMPARE(application.delegate.toolInView(), static_cast<std::size_t>(ToolIndex::Icons));
    }

    void givesTheDemandsOfAPackageToTheDevices()
    {
        Application application;
        emit application.validator().modelsWanted(DeviceDemands{u"15.0"_s, true, {u"arm64"_s, u"unheard-of"_s}});
        QCOMPARE(application.delegate.toolInView(), static_cast<std::size_t>(ToolIndex::Devices));
        auto &devices = application.tool<DeviceViewController>(ToolIndex::Devices);
        QTRY_VERIFY(devices.today() != nullptr);
        const ModelFilter filter = devices.today()->filters()->filter();
        QCOMPARE(filter.iosFrom->major(), 15);
        QCOMPARE(filter.families, std::set<DeviceFamily>{DeviceFamily::IPad});
        QCOMPARE(filter.capabilities.size(), std::size_t(1));
        // Nothing of the first package is left.
        emit application.validator().modelsWanted(DeviceDemands{});
        const ModelFilter none = devices.today()->filters()->filter();
        QVERIFY(!none.iosFrom && none.families.empty() && none.capabilities.empty());
    }

private:
    struct Application
    {
        Application()
        {
            delegate.applicationDidFinishLaunching();
            delegate.activate();
        }

        template <typename Controller> Controller &tool(ToolIndex index)
        {
            return static_cast<Controller &>(*delegate.controller(static_cast<std::size_t>(index)));
        }
        ValidaterViewController &validator() { return tool<ValidaterViewController>(ToolIndex::Validator); }

        RecordingServices services;
        AppDelegate delegate{services.services()};
    };
};

QTEST_MAIN(ToolHandoffsTest)
#include "ToolHandoffsTest.moc"
