// SPDX-License-Identifier: MIT
#pragma once

#include "validator/bundle/PackageInspection.h"
#include "validator/reports/HtmlReport.h"

#include <QJsonObject>

namespace lumora
{

/// What a page shows of a package that could be read; `json` is all that `--json` says of it. The sizes are left to the
/// caller.
ShownPackage shownPackage(const JudgedPackage &judged, const PackageReport &report, const QJsonObject &json);

} // namespace lumora
