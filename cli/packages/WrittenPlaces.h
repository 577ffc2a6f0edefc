// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace lumora
{

/// The first file that a command would write over one that it reads, by whatever name; empty when there is none.
QString fileInPlaceOf(const QStringList &read, const QStringList &written);

/// The first file that is named a second time, by whatever name; empty when there is none.
QString fileNamedTwice(const QStringList &files);

} // namespace lumora
