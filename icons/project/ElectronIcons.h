// SPDX-License-Identifier: MIT
#pragma once

#include "NamedIcons.h"

namespace lumora
{

/// The icons that the settings of Electron's packagers name, and those in the usual places for the systems whose icon
/// they do not name. Fails with `LeadsOutside` if a place is outside of the project.
Result<QList<NamedIcon>> electronIcons(const QString &folder);

/// The file with the packager's settings if it cannot be read here: a program, or another format. Empty if there is
/// none or another file counts before it.
QString unreadElectronSettings(const QString &folder);

} // namespace lumora
