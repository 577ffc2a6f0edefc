// SPDX-License-Identifier: MIT
#pragma once

#include "StringsTable.h"

#include <QStringList>

#include <functional>

namespace lumora
{

/// What a bundle says in the place of values of its Info.plist, by language: the names of the folders without their
/// extension, "Base" among them.
using LocalizedInfo = QMap<QString, StringsTable>;

/// The file in a language's folder.
inline constexpr QLatin1StringView localizedInfoFile("InfoPlist.strings");

/// Reads the file of each of the bundle's folders, given by name; `read` gives a file's content by its path in the
/// bundle, empty where there is none.
LocalizedInfo readLocalizedInfo(const QStringList &folders, const std::function<QByteArray(const QString &path)> &read);

/// The text that stands for the key where the Info.plist has no value: that of the development region, else of "Base",
/// else the English one, else that of the first language that has one. Empty when there is none.
QString localizedText(const LocalizedInfo &info, const QString &key, const QString &developmentRegion);

} // namespace lumora
