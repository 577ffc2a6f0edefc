// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/PackageContents.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace lumora
{

struct FileTotal
{
    qsizetype files = 0;
    quint64 bytes = 0; ///< unpacked
};

using FileTotals = QMap<QString, FileTotal>;

/// "code", "catalogs", "pictures", "sounds", "interfaces", "languages", "fonts", "signing", "others", in this order.
QStringList fileKinds();

/// The name of a kind in the user's language.
QString fileKindText(const QString &kind);

/// The totals by kind, and under the empty name those of all files.
FileTotals totalsOf(const PackageContents &contents);

} // namespace lumora
