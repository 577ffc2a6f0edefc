// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

namespace lumora
{

/// The absolute paths of those addresses that name files of this machine, in their order. Some file managers put the
/// machine's own name into the address; it is understood.
QStringList localFiles(const QList<QUrl> &urls);

} // namespace lumora
