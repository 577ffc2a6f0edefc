// SPDX-License-Identifier: MIT
#include "StoreReport.h"

#include "cli/console/CommandText.h"
#include "foundation/PrintableText.h"
#include "validator/rules/Wording.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// As wide as the widest verdict of the classic checks.
constexpr int severityWidth = 9;

} // namespace

QStringList findingLines(const QList<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings) {
        const QString code = QString::fromLatin1(finding.rule->code);
        const QString name = QString::fromLatin1(finding.rule->id) + (code.isEmpty() ? QString() : u", "_s + code);
        const QString where = finding.evidence.path.isEmpty() ? QString() : QString(finding.evidence.path + u": "_s);
        lines += u"  "_s + severityWord(finding.rule->severity).leftJustified(severityWidth) +
                 worded(finding.rule->title) + u" ("_s + name + u')';
        lines += QString(severityWidth + 2, u' ') + printableText(where + finding.evidence.text);
        lines += QString(severityWidth + 2, u' ') + worded(finding.rule->fix);
    }
    return lines;
}

QString noFindingsLine()
{
    return u"  "_s + commandText("CLI_CHECK_VALID").leftJustified(severityWidth) + commandText("CLI_STORE_RULES");
}

} // namespace lumora
