// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

namespace lumora
{

/// The absolute paths of the addresses that name local files, in their order. Also accepts the machine's own name in
/// the address, which some file managers add.
QStringList localFiles(const QList<QUrl> &urls);

} // namespace lumora
