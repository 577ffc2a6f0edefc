// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectKind.h"
#include "foundation/Result.h"

#include <QList>
#include <QString>

#include <optional>

namespace lumora
{

/// What a picture of a project is for.
enum class IconUse {
    Icon,   ///< may be transparent
    Store,  ///< a store refuses transparency
    Opaque, ///< transparent pixels are lost
    Dark,
    Tinted,
    Foreground, ///< of an adaptive icon
    Background,
    Monochrome,
    Notification,
    Maskable,
};

/// A picture outside of catalogues and resources: the project's own files name it, or its build takes it by its name.
struct NamedIcon
{
    IconUse use = IconUse::Icon;
    QString path; ///< from the project's folder, and within it
    int edge = 0; ///< in pixels; 0 for drawings and icon files
    /// The edge of the smallest square that does as well; nothing if only `edge` does. An icon of which any square does
    /// keeps its size when it is replaced.
    std::optional<int> least;
    bool isNamed = false; ///< by a file of the project, so that a build misses it
};

/// The pictures of the project in this folder; none for kinds that only have catalogues and resources. Fails with
/// `NotReadable` if the file that names them is broken, and with `LeadsOutside` if it names a folder outside of the
/// project.
Result<QList<NamedIcon>> namedIcons(ProjectKind kind, const QString &folder);

/// The name of the file with Expo's settings, below the folder; empty if they are nothing but a program.
QString expoSettings(const QString &folder);

/// The name of a file that may name icons elsewhere, but cannot be read here: a program, or another format. Empty if
/// there is none.
QString unreadSettings(ProjectKind kind, const QString &folder);

} // namespace lumora
