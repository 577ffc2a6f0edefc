// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"
#include "validator/reports/HtmlReport.h"

#include <QStringList>

#include <optional>

namespace lumora
{

class Declaration;

/// The files that build servers read reports from. "-" is standard output.
struct ReportFiles
{
    QString sarif;
    QString junit;
    QString html;

    void declareOn(Declaration &declaration);
    bool isMeant() const { return !sarif.isEmpty() || !junit.isEmpty() || !html.isEmpty(); }
    bool takesStdout() const { return sarif == u"-" || junit == u"-" || html == u"-"; }
    /// The files on disk.
    QStringList paths() const;
    /// Writes all of them; false after a complaint.
    bool write(Console &console, const QList<ShownPackage> &packages, std::optional<Severity> failOn) const;
};

} // namespace lumora
