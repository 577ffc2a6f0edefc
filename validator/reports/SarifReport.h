// SPDX-License-Identifier: MIT
#pragma once

#include "JudgedPackage.h"

#include <QByteArray>

namespace lumora
{

/// What is broken as SARIF 2.1.0, a result for each piece of evidence: the package is the physical location, the file
/// in it the logical one. Packages that could not be read are notifications of an execution that failed.
QByteArray sarifReport(const QList<JudgedPackage> &packages, const QString &version);

} // namespace lumora
