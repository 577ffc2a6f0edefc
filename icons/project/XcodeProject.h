// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <optional>

namespace lumora
{

/// What an Xcode project says of its targets' icons.
struct XcodeProject
{
    /// The icon's name by the target's name, or the whole project's if no target names one; targets without an icon
    /// are left out.
    std::map<QString, QStringList> iconNames;
    QStringList targets; ///< all of them
    bool forMac = false; ///< builds for the Mac and nothing else
};

/// Reads "NAME.xcodeproj"; nothing where its list of objects is missing or broken.
std::optional<XcodeProject> readXcodeProject(const QString &folder);

} // namespace lumora
