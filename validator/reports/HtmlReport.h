// SPDX-License-Identifier: MIT
#pragma once

#include "JudgedPackage.h"
#include "SizeTree.h"

#include <QByteArray>
#include <QList>

#include <utility>

namespace lumora
{

/// Names and values in the order in which they are shown.
using NamedValues = QList<std::pair<QString, QString>>;

/// A package as a page shows it.
struct ShownPackage
{
    JudgedPackage judged;
    QByteArray iconPng; ///< empty where the package has none
    NamedValues facts;
    NamedValues signature;
    SizeNode sizes;
};

/// One page that needs nothing beside itself: the icon, facts, findings, signature and sizes of each package. It runs
/// no script and fetches nothing, and no name out of a package is more than text in it.
QByteArray htmlReport(const QList<ShownPackage> &packages, const QString &version);

} // namespace lumora
