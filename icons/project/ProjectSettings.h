// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QString>

namespace lumora
{

/// The content of a file of settings; empty if it is missing, cannot be read or is too large.
QByteArray settingsFile(const QString &path);

/// The object in a JSON file; empty as above, and if the file is broken.
QJsonObject jsonSettings(const QString &path);

/// The texts of an object and of the objects in it, by names such as "mac.icon".
QMap<QString, QString> flatSettings(const QJsonObject &object);

/// The same of a YAML file, as far as it is written in lines of "name: value" that are indented by spaces.
QMap<QString, QString> yamlSettings(const QByteArray &text);

/// A path in settings, relative to their folder; empty if it leads out of the folder.
QString pathWithin(const QString &named);

} // namespace lumora
