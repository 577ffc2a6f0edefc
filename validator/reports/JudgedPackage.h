// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/Rule.h"

#include <QList>
#include <QString>

namespace lumora
{

/// What the rules came to for one package, as reports for build servers tell it.
struct JudgedPackage
{
    QString file;
    QList<RuleVerdict> verdicts; ///< in the order of the rules
    QString failure;             ///< why the package could not be read; empty where it could
};

} // namespace lumora
