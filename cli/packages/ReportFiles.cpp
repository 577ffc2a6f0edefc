// SPDX-License-Identifier: MIT
#include "ReportFiles.h"

#include "cli/arguments/Declaration.h"
#include "foundation/Version.h"
#include "foundation/WholeFile.h"
#include "validator/reports/JunitReport.h"
#include "validator/reports/SarifReport.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

bool put(Console &console, const QString &path, const QByteArray &bytes)
{
    if (path == u"-") {
        console.print(bytes);
        return true;
    }
    const Outcome written = writeWholeFile(path, bytes);
    if (!written)
        console.complain(written.failure());
    return written.ok();
}

} // namespace

void ReportFiles::declareOn(Declaration &declaration)
{
    declaration.option("--sarif", &sarif, "FILE", "CLI_VALIDATE_SARIF").in(ArgumentGroup::Output);
    declaration.option("--junit", &junit, "FILE", "CLI_VALIDATE_JUNIT").in(ArgumentGroup::Output);
    declaration.option("--html", &html, "FILE", "CLI_VALIDATE_HTML").in(ArgumentGroup::Output);
}

QStringList ReportFiles::paths() const
{
    QStringList paths{sarif, junit, html};
    paths.removeIf([](const QString &path) { return path.isEmpty() || path == u"-"; });
    return paths;
}

bool ReportFiles::write(Console &console, const QList<ShownPackage> &packages, std::optional<Severity> failOn) const
{
    const QString version = QString::fromLatin1(versionText);
    QList<JudgedPackage> judged;
    for (const ShownPackage &package : packages)
        judged += package.judged;
    const bool isSarifWritten = sarif.isEmpty() || put(console, sarif, sarifReport(judged, version));
    const bool isJunitWritten = junit.isEmpty() || put(console, junit, junitReport(judged, failOn));
    const bool isHtmlWritten = html.isEmpty() || put(console, html, htmlReport(packages, version));
    return isSarifWritten && isJunitWritten && isHtmlWritten;
}

} // namespace lumora
