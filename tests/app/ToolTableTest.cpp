// SPDX-License-Identifier: MIT
#include "app/ToolTable.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "tool/ToolViewController.h"
#include "widgets/style/NamedImage.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// Repeats every fact of the table on purpose.
struct Expected
{
    const char *name;
    const char *sidebarImage;
    const char *controller;
    const char *headerKey;
    const char *helpTitleKey;
    const char *helpTextKey;
    const char *helpIcon;
    std::array<float, 3> color;
    std::array<float, 3> borderColor;
    const char *openedExtension;
};

constexpr Expected expectedTools[] = {
    {"icons",
     "icon_icons",
     "lumora::IconsViewController",
     "APP_ICONS",
     "HELP_ICONS",
     "HELP_ICONS_TEXT",
     "help_icon_icons",
     {0.204F, 0.596F, 0.859F},
     {0.161F, 0.502F, 0.725F},
     "png"},
    {"placeholders",
     "icon_placeholders",
     "lumora::PlaceholderViewController",
     "APP_PLACEHOLDER",
     "HELP_PLACEHOLDER",
     "HELP_PLACEHOLDER_TEXT",
     "help_icon_placeholder",
     {0.180F, 0.800F, 0.443F},
     {0.153F, 0.682F, 0.376F},
     nullptr},
    {"resizer",
     "icon_resizer",
     "lumora::ResizerViewController",
     "APP_RESIZER",
     "HELP_RESIZER",
     "HELP_RESIZER_TEXT",
     "help_icon_resizer",
     {0.906F, 0.298F, 0.235F},
     {0.753F, 0.224F, 0.169F},
     nullptr},
    {"color",
     "icon_colors",
     "lumora::ColorViewController",
     "APP_COLOR",
     "HELP_COLOR",
     "HELP_COLOR_TEXT",
     "help_icon_color",
     {0.608F, 0.349F, 0.714F},
     {0.557F, 0.267F, 0.678F},
     nullptr},
    {"devices",
     "icon_devices",
     "lumora::DeviceViewController",
     "APP_DEVICES",
     "HELP_DEVICES",
     "HELP_DEVICES_TEXT",
     "help_icon_devices",
     {0.902F, 0.494F, 0.133F},
     {0.827F, 0.329F, 0.000F},
     nullptr},
    {"validator",
     "icon_validater_active",
     "lumora::ValidaterViewController",
     "APP_VALIDATER",
     "HELP_VALIDATER",
     "HELP_VALIDATER_TEXT",
     "help_icon_validater",
     {0.945F, 0.769F, 0.059F},
     {0.953F, 0.612F, 0.071F},
     "ipa"},
};

QColor colorOf(const std::array<float, 3> &components)
{
    return QColor::fromRgbF(components[0], components[1], components[2]);
}

} // namespace

class ToolTableTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void rows_data()
    {
        QTest::addColumn<int>("index");
        QCOMPARE(toolTable().size(), std::size(expectedTools));
        for (int index = 0; index < static_cast<int>(std::size(expectedTools)); ++index)
            QTest::newRow(expectedTools[index].name) << index;
    }
    void rows()
    {
        QFETCH(int, index);
        const Tool &tool = toolTable()[static_cast<std::size_t>(index)];
        const Expected &expected = expectedTools[index];
        QCOMPARE(tool.name, expected.name);
        QCOMPARE(tool.sidebarImage, expected.sidebarImage);
        QCOMPARE(tool.headerKey, expected.headerKey);
        QCOMPARE(tool.helpTitleKey, expected.helpTitleKey);
        QCOMPARE(tool.helpTextKey, expected.helpTextKey);
        QCOMPARE(tool.helpIcon, expected.helpIcon);
        QCOMPARE(platformColor(tool.color), colorOf(expected.color));
        QCOMPARE(platformColor(tool.borderColor), colorOf(expected.borderColor));
        QCOMPARE(tool.openedExtension, expected.openedExtension);
        QCOMPARE(tool.openFile != nullptr, expected.openedExtension != nullptr);
        QVERIFY(!NamedImage(QString::fromLatin1(tool.sidebarImage)).isNull());
        QVERIFY(!NamedImage(QString::fromLatin1(tool.helpIcon)).isNull());
        for (const char *key : {tool.headerKey, tool.helpTitleKey, tool.helpTextKey, tool.todayHelpTextKey})
            QVERIFY2(key == nullptr || qtTrId(key) != QLatin1StringView(key), key);
        RecordingServices services;
        QCOMPARE(tool.todayHelpTextKey == nullptr, tool.makeController(services.services())->sides() == nullptr);
        QCOMPARE(tool.makeController(services.services())->metaObject()->className(), expected.controller);
    }
};

QTEST_MAIN(ToolTableTest)
#include "ToolTableTest.moc"
