// SPDX-License-Identifier: MIT
#include "TodaySnippets.h"

#include "icons/today/Motifs.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString buildSetting = u"// project.pbxproj\nASSETCATALOG_COMPILER_APPICON_NAME = AppIcon;\n"_s;
const QString iconName = u"<!-- Info.plist -->\n<key>CFBundleIconName</key>\n<string>AppIcon</string>\n"_s;
const QString iconFile = u"<key>CFBundleIconFile</key>\n<string>AppIcon</string>\n"_s;

QString androidLines(const Motifs &motifs)
{
    QString lines = u"<!-- AndroidManifest.xml -->\n<application\n    android:icon=\"@mipmap/ic_launcher\"\n"
                    "    android:roundIcon=\"@mipmap/ic_launcher_round\">\n"_s;
    if (motifs.hasMonochrome())
        lines += u"    <meta-data\n"
                 "        android:name=\"com.google.firebase.messaging.default_notification_icon\"\n"
                 "        android:resource=\"@drawable/ic_notification\" />\n"_s;
    return lines + u"</application>\n"_s;
}

/// The lines of the files that the set itself has.
QString webLines(const Motifs &motifs, const SetOptions &options)
{
    FilePlan plan;
    QString head;
    QString icons;
    if (!planWeb(motifs, options, {}, plan))
        return {};
    for (const PlannedFile &file : plan.files) {
        if (file.path == "head.html"_L1)
            head = QString::fromUtf8(file.text);
        if (file.path == "site.webmanifest"_L1)
            icons = QString::fromUtf8(
                QJsonDocument(QJsonObject{{u"icons"_s, QJsonDocument::fromJson(file.text).object().value(u"icons"_s)}})
                    .toJson());
    }
    return u"<!-- head -->\n"_s + head + u"\n// site.webmanifest\n"_s + icons;
}

QString windowsLines(const SetOptions &options)
{
    return u"<!-- Package.appxmanifest -->\n<uap:VisualElements DisplayName=\"%1\"\n"
           "    Square44x44Logo=\"Assets\\AppList.png\"\n"
           "    Square150x150Logo=\"Assets\\MedTile.png\"\n"
           "    BackgroundColor=\"transparent\">\n"
           "  <uap:DefaultTile Square71x71Logo=\"Assets\\SmallTile.png\"\n"
           "      Wide310x150Logo=\"Assets\\WideTile.png\"\n"
           "      Square310x310Logo=\"Assets\\LargeTile.png\" />\n"
           "  <uap:SplashScreen Image=\"Assets\\SplashScreen.png\" />\n"
           "</uap:VisualElements>\n\n// app.rc\nIDI_ICON1 ICON \"app.ico\"\n"_s.arg(options.name.toHtmlEscaped());
}

} // namespace

QString todaySnippet(TodaySet set, const Motifs &motifs, const SetOptions &options)
{
    switch (set) {
    case TodaySet::Ios:
    case TodaySet::VisionOs:
        return iconName + u'\n' + buildSetting;
    case TodaySet::MacOs:
        return iconName + iconFile + u'\n' + buildSetting;
    case TodaySet::WatchOs:
    case TodaySet::TvOs:
    case TodaySet::IconComposer:
        return buildSetting;
    case TodaySet::Adaptive:
        return androidLines(motifs);
    case TodaySet::Web:
        return webLines(motifs, options);
    case TodaySet::Windows:
        return windowsLines(options);
    case TodaySet::Linux:
        break;
    }
    return u"# %1.desktop\n[Desktop Entry]\nIcon=%1\n"_s.arg(options.name);
}

} // namespace lumora
