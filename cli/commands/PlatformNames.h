// SPDX-License-Identifier: MIT
#pragma once

#include "icons/IconCatalogue.h"

#include <QList>
#include <QStringList>

namespace lumora
{

/// The names on the command line of the classic sets, and of all of them together.
QStringList classicPlatformNames();

/// The classic sets of these names, in the order of their table; other names are passed over.
QList<IconPlatform> classicPlatformsNamed(const QStringList &names);

} // namespace lumora
