// SPDX-License-Identifier: MIT
#pragma once

#include "tests/icons/today/TodayPictures.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <utility>

namespace lumora
{

using namespace Qt::StringLiterals;

/// The files of a project, small but with the marks of its kind: content by path.
using Tree = QMap<QString, QByteArray>;

inline const QByteArray manifest = "<manifest xmlns:android=\"http://schemas.android.com/apk/res/android\">"
                                   "<application android:icon=\"@mipmap/ic_launcher\"/></manifest>";
inline const QByteArray manifestWithRound =
    "<manifest xmlns:android=\"http://schemas.android.com/apk/res/android\"><application "
    "android:icon=\"@mipmap/ic_app\" android:roundIcon=\"@mipmap/ic_app_round\"/></manifest>";
inline const QByteArray universalList =
    "{\"images\":[{\"idiom\":\"universal\",\"platform\":\"ios\",\"size\":\"1024x1024\"},"
    "{\"idiom\":\"universal\",\"platform\":\"ios\",\"size\":\"1024x1024\","
    "\"appearances\":[{\"appearance\":\"luminosity\",\"value\":\"tinted\"}]}],"
    "\"info\":{\"author\":\"xcode\",\"version\":1}}";
inline const QByteArray deviceList =
    "{\"images\":[{\"size\":\"20x20\",\"idiom\":\"iphone\",\"filename\":\"Icon-App-20x20@2x.png\",\"scale\":\"2x\"},"
    "{\"size\":\"83.5x83.5\",\"idiom\":\"ipad\",\"filename\":\"Icon-App-83.5x83.5@2x.png\",\"scale\":\"2x\"},"
    "{\"size\":\"1024x1024\",\"idiom\":\"ios-marketing\",\"filename\":\"Icon-App-1024x1024@1x.png\",\"scale\":\"1x\"}],"
    "\"info\":{\"version\":1,\"author\":\"xcode\"}}";
inline const QByteArray macList =
    "{\"images\":[{\"size\":\"16x16\",\"idiom\":\"mac\",\"filename\":\"app_icon_16.png\",\"scale\":\"1x\"},"
    "{\"size\":\"16x16\",\"idiom\":\"mac\",\"filename\":\"app_icon_32.png\",\"scale\":\"2x\"},"
    "{\"size\":\"32x32\",\"idiom\":\"mac\",\"filename\":\"app_icon_32.png\",\"scale\":\"1x\"},"
    "{\"size\":\"512x512\",\"idiom\":\"mac\",\"filename\":\"app_icon_1024.png\",\"scale\":\"2x\"}]}";

/// A project file with a target for each name and icon.
inline QByteArray xcodeProject(const QList<std::pair<QByteArray, QByteArray>> &targets,
                               const QByteArray &sdk = "iphoneos")
{
    QByteArray text = "// !$*UTF8*$!\n{\n\tarchiveVersion = 1;\n\tclasses = {\n\t};\n\tobjects = {\n"
                      "/* Begin XCBuildConfiguration section */\n"
                      "\t\tC0 /* Release */ = {isa = XCBuildConfiguration; buildSettings = {SDKROOT = " +
                      sdk + "; }; name = Release; };\n";
    for (const auto &[target, icon] : targets) {
        text +=
            "\t\tT" + target + " /* " + target + " */ = {\n\t\t\tisa = PBXNativeTarget;\n" +
            "\t\t\tbuildConfigurationList = L" + target + ";\n\t\t\tname = \"" + target + "\";\n\t\t};\n" + "\t\tL" +
            target + " = {isa = XCConfigurationList; buildConfigurations = (\n\t\t\t\tC" + target +
            " /* Debug */,\n\t\t\t); };\n" + "\t\tC" + target +
            " = {isa = XCBuildConfiguration; buildSettings = {\n\t\t\t\tASSETCATALOG_COMPILER_APPICON_NAME = " + icon +
            ";\n\t\t\t\tOTHER = \"a \\\"quoted\\\" word\";\n\t\t\t}; name = Debug; };\n";
    }
    return text + "\t};\n\trootObject = P0;\n}\n";
}

inline const Tree flutter = {
    {u"pubspec.yaml"_s, "name: app\nflutter:\n  uses-material-design: true\n"},
    {u"ios/Runner/Assets.xcassets/AppIcon.appiconset/Contents.json"_s, deviceList},
    {u"ios/Runner.xcodeproj/project.pbxproj"_s, xcodeProject({{"Runner", "AppIcon"}})},
    {u"macos/Runner/Assets.xcassets/AppIcon.appiconset/Contents.json"_s, macList},
    {u"android/settings.gradle"_s, ""},
    {u"android/app/src/main/AndroidManifest.xml"_s, manifest},
    {u"web/index.html"_s, "<html>"},
    {u"web/manifest.json"_s, "{}"},
    {u"web/favicon.png"_s, encodedPng(testPicture(16, 16))},
    {u"windows/runner/resources/app_icon.ico"_s, "old"},
};
inline const Tree capacitor = {
    {u"capacitor.config.ts"_s, "export default {};"},
    {u"package.json"_s, "{}"},
    {u"ios/App/App/Assets.xcassets/AppIcon.appiconset/Contents.json"_s,
     "{\"images\":[{\"filename\":\"AppIcon-512@2x.png\",\"idiom\":\"universal\",\"platform\":\"ios\","
     "\"size\":\"1024x1024\"}]}"},
    {u"android/app/src/main/AndroidManifest.xml"_s, manifest},
};
inline const Tree cordova = {
    {u"config.xml"_s, "<widget xmlns=\"http://www.w3.org/ns/widgets\"><platform name=\"ios\">"
                      "<icon src=\"res/ios/60@2x.png\" width=\"120\" height=\"120\"/></platform>"
                      "<platform name=\"android\"><icon src=\"res/a/hdpi.png\" width=\"72\"/></platform></widget>"},
};
inline const Tree reactNative = {
    {u"package.json"_s, "{\"dependencies\":{\"react-native\":\"0.80\"}}"},
    {u"ios/Mine/Images.xcassets/AppIcon.appiconset/Contents.json"_s, universalList},
    {u"ios/Mine.xcodeproj/project.pbxproj"_s, xcodeProject({{"Mine", "AppIcon"}})},
    {u"android/app/src/main/AndroidManifest.xml"_s, manifestWithRound},
};
inline const Tree expo = {
    {u"app.json"_s, "{\"expo\":{\"icon\":\"./assets/icon.png\",\"ios\":{\"icon\":{\"light\":\"./assets/l.png\","
                    "\"tinted\":\"./assets/t.png\"}},\"android\":{\"adaptiveIcon\":{\"foregroundImage\":"
                    "\"./assets/f.png\"}},\"web\":{\"favicon\":\"./assets/favicon.png\"}}}"},
    {u"package.json"_s, "{\"dependencies\":{\"expo\":\"54\"}}"},
};
inline const Tree tauri = {
    {u"src-tauri/tauri.conf.json"_s, "{}"},
    {u"src-tauri/icons/icon.ico"_s, "old"},
    {u"package.json"_s, "{}"},
    {u"src-tauri/gen/apple/Assets.xcassets/AppIcon.appiconset/Contents.json"_s, deviceList},
};
inline const Tree electron = {
    {u"package.json"_s, "{\"devDependencies\":{\"electron\":\"30\"},\"build\":{\"directories\":{\"buildResources\":"
                        "\"resources\"}}}"},
};
inline const Tree maui = {
    {u"App.csproj"_s, "<Project><PropertyGroup><UseMaui>true</UseMaui></PropertyGroup></Project>"},
};
inline const Tree xcode = {
    {u"Mine.xcodeproj/project.pbxproj"_s, xcodeProject({{"App", "Icon"}, {"Watch", "Icon"}})},
    {u"Mine/Assets.xcassets/Other.appiconset/Contents.json"_s, universalList},
    {u"Mine/Assets.xcassets/Icon.appiconset/Contents.json"_s, universalList},
    {u"Watch/Assets.xcassets/Icon.appiconset/Contents.json"_s,
     "{\"images\":[{\"idiom\":\"universal\",\"platform\":\"watchos\",\"size\":\"1024x1024\"}]}"},
};
inline const Tree gradle = {
    {u"settings.gradle.kts"_s, ""},
    {u"app/src/main/AndroidManifest.xml"_s, manifestWithRound},
    {u"app/src/main/res/mipmap-hdpi/ic_app.webp"_s, "old"},
    {u"app/src/main/res/values/colors.xml"_s, "<resources><color name=\"ic_app_background\">#000</color></resources>"},
};

} // namespace lumora
