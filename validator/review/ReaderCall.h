// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace lumora
{

/// The arguments that make the window's program a reader of a package.
QStringList reviewCall(const QString &package);
/// The same for the classic checks, which unpack the package into the folder; the icon has `iconScale` pixels a point.
QStringList inspectionCall(const QString &package, const QString &workFolder, int iconScale);

/// True for arguments that one of the functions above returns.
bool isReaderCall(const QStringList &arguments);

/// Does what the arguments say: reads the package, locked in, and answers on the descriptor. Returns the process'
/// status. Expects the texts of the user's language to be installed and no other thread to run.
int answerReaderCall(const QStringList &arguments, int descriptor);

} // namespace lumora
