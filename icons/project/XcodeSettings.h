// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace lumora
{

/// Values by the names of their settings.
using SettingValues = QMap<QString, QString>;

/// The settings in a configuration file (.xcconfig) and in those that it includes; a later value replaces an earlier
/// one. Files that are missing or cannot be read count as empty; so does what includes itself.
SettingValues readSettingsFile(const QString &path);

/// The build settings of a project's configurations: those that the project file holds, and those of the configuration
/// files that it refers to.
class XcodeSettings
{
public:
    /// `objects` are those of the project file in `folder`/NAME.xcodeproj.
    XcodeSettings(QString folder, QVariantMap objects);

    /// The value in each configuration of a target that gives the setting one. One that is put together from unknown
    /// settings is left out.
    QStringList ofTarget(const QVariantMap &target, const QString &setting);
    /// As above, of what the target inherits from the whole project.
    QStringList inherited(const QVariantMap &target, const QString &setting);

private:
    /// The values that count first come first.
    using Levels = QList<SettingValues>;

    QVariantMap object(const QVariant &id) const;
    /// The settings of the configuration itself and those of its file.
    Levels levelsOf(const QVariantMap &configuration);
    QMap<QString, Levels> levelsByName(const QVariantMap &owner);
    QStringList values(const QVariantMap &target, const QString &setting, bool isInherited);
    QString pathOf(const QString &reference) const;

    QString m_folder;
    QVariantMap m_objects;
    QMap<QString, QString> m_groups; ///< the group of each reference
    QMap<QString, SettingValues> m_files;
    QMap<QString, Levels> m_shared; ///< the whole project's, by the names of its configurations
};

} // namespace lumora
