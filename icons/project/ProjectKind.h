// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

/// The kinds of project that icons are put into.
enum class ProjectKind { Flutter, Capacitor, Cordova, ReactNative, Expo, Tauri, Electron, Maui, Xcode, Gradle };

struct ProjectKindInfo
{
    ProjectKind kind;
    const char *id;
    const char *name;
    const char *mark; ///< the files that identify it
};

inline constexpr std::array<ProjectKindInfo, 10> projectKinds = {{
    {ProjectKind::Flutter, "flutter", "Flutter", "pubspec.yaml with flutter:"},
    {ProjectKind::Capacitor, "capacitor", "Capacitor", "capacitor.config.ts, .js or .json"},
    {ProjectKind::Cordova, "cordova", "Cordova", "config.xml with a widget"},
    {ProjectKind::ReactNative, "react-native", "React Native", "package.json with react-native, and ios/ or android/"},
    {ProjectKind::Expo, "expo", "Expo", "app.json or app.config.js with expo"},
    {ProjectKind::Tauri, "tauri", "Tauri", "src-tauri/tauri.conf.json"},
    {ProjectKind::Electron, "electron", "Electron", "package.json with electron"},
    {ProjectKind::Maui, "maui", ".NET MAUI", "*.csproj with UseMaui"},
    {ProjectKind::Xcode, "xcode", "Xcode", "*.xcodeproj"},
    {ProjectKind::Gradle, "gradle", "Gradle", "settings.gradle or settings.gradle.kts"},
}};

constexpr const ProjectKindInfo &infoOf(ProjectKind kind)
{
    return projectKinds[static_cast<std::size_t>(kind)];
}

} // namespace lumora
