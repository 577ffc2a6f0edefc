// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// Runs one of this folder's Python scripts with the arguments; its output goes to the test's output. Returns false
/// when it fails.
bool runScript(const QString &name, const QStringList &arguments);

/// Every file, folder and link below the folder: path to content for a file of at most 100 bytes, to "SIZE bytes" for a
/// larger one, to "/" for a folder and "-> target" for a link.
QMap<QString, QString> treeBelow(const QString &folder);
